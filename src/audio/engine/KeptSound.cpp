#include "audio/engine/KeptSound.h"

#include <algorithm>

namespace tarvelo::engine {

KeptSound::KeptSound(int channels, std::int64_t fadeFrames)
    : m_channels(static_cast<std::size_t>(channels))
    , m_fade(static_cast<std::size_t>(fadeFrames) * m_channels)
{
}

void KeptSound::clear()
{
    m_samples.clear();
    m_taken = 0;
}

std::size_t KeptSound::take(std::span<float> interleaved, std::int64_t keptBack)
{
    const std::size_t kept = static_cast<std::size_t>(keptBack) * m_channels;
    const std::size_t given =
        std::min(interleaved.size(), m_samples.size() - std::min(kept, m_samples.size()));
    const auto end = m_samples.begin() + static_cast<std::ptrdiff_t>(given);
    std::copy(m_samples.begin(), end, interleaved.begin());
    m_samples.erase(m_samples.begin(), end);
    m_taken += static_cast<std::int64_t>(given / m_channels);
    return given / m_channels;
}

void KeptSound::append(std::span<const float> samples)
{
    m_samples.insert(m_samples.end(), samples.begin(), samples.end());
}

void KeptSound::replaceFrom(std::int64_t frame, std::span<float> samples)
{
    const std::size_t kept = static_cast<std::size_t>(frame - m_taken) * m_channels;
    fadeIn(samples, kept);
    m_samples.resize(std::min(m_samples.size(), kept));
    append(samples);
}

// The sound that is there from the sample on goes while the new one comes.
void KeptSound::fadeIn(std::span<float> samples, std::size_t from) const
{
    const std::size_t steps = m_fade / m_channels + 1;
    for (std::size_t at = 0; at < std::min(m_fade, samples.size()); ++at) {
        const std::size_t step = at / m_channels + 1;
        const float share = static_cast<float>(step) / static_cast<float>(steps);
        const float old = from + at < m_samples.size() ? m_samples[from + at] : 0;
        samples[at] = share * samples[at] + (1 - share) * old;
    }
}

std::int64_t KeptSound::end() const
{
    return m_taken + static_cast<std::int64_t>(m_samples.size() / m_channels);
}

} // namespace tarvelo::engine
