#pragma once

#include <cstdint>
#include <vector>

namespace tarvelo::engine {

// Which second of a sound every frame comes from that is made of it, over all changes of rate and
// jumps. Frames count from 0 where the map begins. Not for two threads at once.
class RateMap final
{
public:
    // From the frame on the sound comes from the second, at the rate.
    struct Segment
    {
        std::int64_t frame = 0;
        double seconds = 0;
        double rate = 1;
        bool isJump = false;
    };

    RateMap(int framesPerSecond, double seconds);

    // Forgets everything else.
    void beginAt(double seconds, double rate);
    // It takes the place of all that begins at its frame or later.
    void replaceFrom(const Segment &segment);
    // Of what was before the frame nobody will ask any more.
    void forgetBefore(std::int64_t frame);

    const Segment &first() const { return m_segments.front(); }
    double lastRate() const { return m_segments.back().rate; }
    // The same sound at another rate from the frame on.
    Segment goingOnFrom(std::int64_t frame, double rate) const;
    // 0 to the length of the sound. Who has jumped is there at once, though the sound takes a
    // moment to follow.
    double secondsAt(double frame) const;

private:
    double soundAt(double frame) const;

    const int m_framesPerSecond;
    const double m_seconds;
    std::vector<Segment> m_segments{Segment()}; // by frame, never empty
};

} // namespace tarvelo::engine
