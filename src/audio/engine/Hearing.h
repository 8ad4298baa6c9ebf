#pragma once

#include <atomic>
#include <cstddef>
#include <span>

namespace tarvelo::engine {

struct PcmFormat;

// What came from the microphone so far, in seconds of sound.
struct SoundHeard
{
    double arrived = 0;
    // How much of it there was at the last moment that could be heard, 0 before the first.
    double lastHeard = 0;
};

// Listens to captured sound for moments that can be heard. One thread puts, any may ask, and nobody
// ever waits.
class Hearing final
{
public:
    // Full scale is 1. A microphone that is open gives more than this in a quiet room; one that is
    // switched off, or the wrong one, gives less.
    static constexpr float Threshold = 0.002F;

    explicit Hearing(const PcmFormat &format);

    void put(std::span<const float> interleaved);
    SoundHeard soFar() const { return {m_arrived, m_lastHeard}; }

private:
    double seconds(std::size_t samples) const;

    double m_samplesASecond;
    std::size_t m_samples = 0; // the putting thread's
    std::atomic<double> m_arrived = 0;
    std::atomic<double> m_lastHeard = 0;
};

} // namespace tarvelo::engine
