#include "audio/engine/SampleRing.h"

#include <algorithm>

namespace tarvelo::engine {

SampleRing::SampleRing(std::size_t capacity)
    : m_samples(capacity, 0.0F)
{
}

std::size_t SampleRing::write(std::span<const float> samples)
{
    const std::size_t written = m_written.load(std::memory_order_relaxed);
    const std::size_t room = capacity() - (written - m_read.load(std::memory_order_acquire));
    const std::size_t count = std::min(room, samples.size());
    const std::size_t start = written % capacity();
    const std::size_t beforeEnd = std::min(count, capacity() - start);
    std::ranges::copy(samples.first(beforeEnd), m_samples.data() + start);
    std::ranges::copy(samples.subspan(beforeEnd, count - beforeEnd), m_samples.data());
    m_written.store(written + count, std::memory_order_release);
    return count;
}

std::size_t SampleRing::read(std::span<float> samples)
{
    const std::size_t taken = m_read.load(std::memory_order_relaxed);
    const std::size_t there = m_written.load(std::memory_order_acquire) - taken;
    const std::size_t count = std::min(there, samples.size());
    const std::size_t start = taken % capacity();
    const std::size_t beforeEnd = std::min(count, capacity() - start);
    std::copy_n(m_samples.data() + start, beforeEnd, samples.data());
    std::copy_n(m_samples.data(), count - beforeEnd, samples.data() + beforeEnd);
    m_read.store(taken + count, std::memory_order_release);
    return count;
}

} // namespace tarvelo::engine
