#include "audio/engine/Hearing.h"

#include "audio/engine/PcmFormat.h"

#include <algorithm>
#include <cmath>

namespace tarvelo::engine {

Hearing::Hearing(const PcmFormat &format)
    : m_samplesASecond(static_cast<double>(format.rate) * format.channels)
{
}

double Hearing::seconds(std::size_t samples) const
{
    return static_cast<double>(samples) / m_samplesASecond;
}

void Hearing::put(std::span<const float> interleaved)
{
    // From the end: in ordinary sound that finds one at once. What is no number is not heard.
    const auto last = std::find_if(interleaved.rbegin(), interleaved.rend(),
                                   [](float sample) { return std::abs(sample) >= Threshold; });
    const auto upToIt = static_cast<std::size_t>(interleaved.rend() - last);
    if (upToIt > 0)
        m_lastHeard = seconds(m_samples + upToIt);
    m_samples += interleaved.size();
    m_arrived = seconds(m_samples);
}

} // namespace tarvelo::engine
