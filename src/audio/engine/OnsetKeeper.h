#pragma once

#include "audio/engine/PcmFormat.h"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <span>

namespace tarvelo::engine {

// Stretching smears a sound that begins suddenly to both sides: at a fifth of the speed it is heard
// 40 ms too early. This makes the stretched sound quieter wherever it is clearly louder than the
// original at that place and just before, and touches nothing else. For one thread.
class OnsetKeeper final
{
public:
    // The original comes with so many frames before the one that the stretched sound begins with.
    OnsetKeeper(PcmFormat format, double rate, std::int64_t framesBefore);

    // The original goes on, ahead of what is made of it. Both are interleaved, of whole frames.
    void follow(std::span<const float> original);
    void shape(std::span<float> stretched);

private:
    float loudestAround(double frame) const;
    void forgetBefore(double frame);
    float gainFor(float original, std::span<const float> stretched);

    PcmFormat m_format;
    std::size_t m_channels;
    double m_rate;
    std::deque<float> m_peaks;      // of every so many frames of the original
    std::int64_t m_firstPeak = 0;   // its number
    std::int64_t m_framesHeard = 0; // of the original
    double m_place;                 // in the original, where the stretched sound goes on
    float m_gain = 1;
    float m_lastPeak = 0; // of the stretched sound
};

} // namespace tarvelo::engine
