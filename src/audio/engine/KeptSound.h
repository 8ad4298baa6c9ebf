#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <span>

namespace tarvelo::engine {

// Sound that is ready and has not been taken, frame by frame: taken at its front, added to at its
// end, changed anywhere in between. Not for two threads at once.
class KeptSound final
{
public:
    // Channels are interleaved. Two sounds that do not fit are laid over each other for so many
    // frames.
    KeptSound(int channels, std::int64_t fadeFrames);

    // Nothing is kept, and frames are counted from 0 again.
    void clear();
    // Frames that were given: all that there are, less the ones to be kept back.
    std::size_t take(std::span<float> interleaved, std::int64_t keptBack);
    void append(std::span<const float> samples);
    // The samples take the place of everything from the frame on, which lies between begin() and
    // end(), and come up while that goes.
    void replaceFrom(std::int64_t frame, std::span<float> samples);

    bool isEmpty() const { return m_samples.empty(); }
    std::int64_t begin() const { return m_taken; }
    std::int64_t end() const;
    std::int64_t frames() const { return end() - begin(); }

private:
    void fadeIn(std::span<float> samples, std::size_t from) const;

    const std::size_t m_channels;
    const std::size_t m_fade; // samples
    std::deque<float> m_samples;
    std::int64_t m_taken = 0;
};

} // namespace tarvelo::engine
