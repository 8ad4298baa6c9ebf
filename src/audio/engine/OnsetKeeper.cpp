#include "audio/engine/OnsetKeeper.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace tarvelo::engine {

namespace {

// The unit in which loudness is compared, and the frames it takes to fade from nothing to all.
constexpr std::size_t Hop = 64;

// In seconds of the original. Until then it counts as loud after it was: longer than a period of
// the lowest voice, so that no voice is chopped.
constexpr double Hold = 0.012;
// It counts as loud so much before it is: at a fifth of the speed that is 8 ms, which nobody hears.
constexpr double Before = 0.0015;
// Steady sound does not keep its peaks exactly when it is stretched.
constexpr float Clearly = 1.5F;

float peakOf(std::span<const float> samples)
{
    float peak = 0;
    for (const float sample : samples)
        peak = std::max(peak, std::abs(sample));
    return peak;
}

} // namespace

OnsetKeeper::OnsetKeeper(PcmFormat format, double rate, std::int64_t framesBefore)
    : m_format(format)
    , m_channels(static_cast<std::size_t>(format.channels))
    , m_rate(rate)
    , m_place(static_cast<double>(framesBefore))
{
}

void OnsetKeeper::follow(std::span<const float> original)
{
    while (!original.empty()) {
        const std::size_t inside = static_cast<std::size_t>(m_framesHeard) % Hop;
        const std::size_t count = std::min(original.size(), (Hop - inside) * m_channels);
        if (inside == 0)
            m_peaks.push_back(0);
        m_peaks.back() = std::max(m_peaks.back(), peakOf(original.first(count)));
        m_framesHeard += static_cast<std::int64_t>(count / m_channels);
        original = original.subspan(count);
    }
}

void OnsetKeeper::shape(std::span<float> stretched)
{
    constexpr float Step = 1.0F / static_cast<float>(Hop);
    while (!stretched.empty()) {
        const auto piece = stretched.first(std::min(stretched.size(), Hop * m_channels));
        const std::size_t count = piece.size() / m_channels;
        const double frames = static_cast<double>(count) * m_rate;
        const float wanted = gainFor(loudestAround(m_place + frames / 2), piece);
        for (std::size_t at = 0; at < piece.size(); ++at) {
            if (at % m_channels == 0)
                m_gain += std::clamp(wanted - m_gain, -Step, Step);
            piece[at] *= m_gain;
        }
        m_place += frames;
        forgetBefore(m_place - Hold * m_format.rate);
        stretched = stretched.subspan(piece.size());
    }
}

float OnsetKeeper::gainFor(float original, std::span<const float> stretched)
{
    const float peak = peakOf(stretched);
    const float loudest = std::max(peak, m_lastPeak);
    m_lastPeak = peak;
    return loudest > Clearly * original ? Clearly * original / loudest : 1;
}

float OnsetKeeper::loudestAround(double frame) const
{
    const auto hopAt = [this](double place) {
        const auto hop = static_cast<std::int64_t>(std::floor(place / static_cast<double>(Hop)));
        return std::clamp<std::int64_t>(hop - m_firstPeak, 0, std::ssize(m_peaks));
    };
    const auto first = m_peaks.begin() + hopAt(frame - Hold * m_format.rate);
    const auto end = m_peaks.begin() + hopAt(frame + Before * m_format.rate + Hop);
    return first < end ? *std::max_element(first, end) : 0;
}

void OnsetKeeper::forgetBefore(double frame)
{
    while (!m_peaks.empty() && static_cast<double>((m_firstPeak + 2) * std::int64_t{Hop}) < frame) {
        m_peaks.pop_front();
        ++m_firstPeak;
    }
}

} // namespace tarvelo::engine
