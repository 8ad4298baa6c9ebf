#pragma once

#include <cstdint>

namespace tarvelo::engine {

// Which frame of a stream is heard, from what was written and what the server says now and then of
// how far the speaker is. In between it goes on with the clock; it never goes back, and never
// beyond what was written. Times are in microseconds of any one clock. Not for two threads at once.
class HeardFrames final
{
public:
    // A stream that begins.
    void restart(int framesPerSecond);
    void wrote(std::int64_t frames) { m_written += frames; }
    std::int64_t written() const { return m_written; }

    // The server says: it stands still, exactly there.
    void standsAt(double frame);
    // The server says: it was there, and moves on. What has not begun to be read does not move yet.
    void movedAt(double frame, std::uint64_t time, bool hasBegun);
    void allWasHeard() { m_last = static_cast<double>(m_written); }

    double at(std::uint64_t time);

private:
    int m_framesPerSecond = 0;
    std::int64_t m_written = 0;
    double m_frame = 0;
    std::uint64_t m_time = 0;
    bool m_isMoving = false;
    double m_last = 0;
};

} // namespace tarvelo::engine
