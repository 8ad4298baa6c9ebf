#pragma once

#include <atomic>
#include <cstddef>
#include <span>
#include <vector>

namespace tarvelo::engine {

// Samples on their way from one thread to one other. Neither side ever waits: what does not fit is
// not taken. All of its memory is there, and touched, from the beginning.
class SampleRing final
{
public:
    explicit SampleRing(std::size_t capacity);
    SampleRing(const SampleRing &) = delete;
    SampleRing &operator=(const SampleRing &) = delete;

    std::size_t capacity() const { return m_samples.size(); }

    // For the writing thread alone. Returns how many samples, from the first on, were taken.
    std::size_t write(std::span<const float> samples);
    // For the reading thread alone. Returns how many samples were given.
    std::size_t read(std::span<float> samples);

private:
    std::vector<float> m_samples;
    // Counts of all samples that ever went in and out.
    std::atomic<std::size_t> m_written = 0;
    std::atomic<std::size_t> m_read = 0;
};

} // namespace tarvelo::engine
