#include "audio/engine/RateMap.h"

#include <algorithm>
#include <cmath>

namespace tarvelo::engine {

RateMap::RateMap(int framesPerSecond, double seconds)
    : m_framesPerSecond(framesPerSecond)
    , m_seconds(seconds)
{
}

void RateMap::beginAt(double seconds, double rate)
{
    m_segments.assign(1, Segment{0, seconds, rate, false});
}

void RateMap::replaceFrom(const Segment &segment)
{
    std::erase_if(m_segments, [&](const Segment &it) { return it.frame >= segment.frame; });
    m_segments.push_back(segment);
}

void RateMap::forgetBefore(std::int64_t frame)
{
    while (m_segments.size() > 1 && m_segments[1].frame < frame)
        m_segments.erase(m_segments.begin());
}

RateMap::Segment RateMap::goingOnFrom(std::int64_t frame, double rate) const
{
    // It takes the place of a jump that nobody has heard yet.
    const Segment &last = m_segments.back();
    if (last.isJump && frame <= last.frame)
        return {frame, last.seconds, rate, true};
    // From a whole frame on, as the source can be moved to no other place.
    const auto source = std::round(soundAt(static_cast<double>(frame)) * m_framesPerSecond);
    return {frame, source / m_framesPerSecond, rate, false};
}

double RateMap::secondsAt(double frame) const
{
    const auto isAhead = [frame](const Segment &it) {
        return it.isJump && static_cast<double>(it.frame) > frame;
    };
    const auto found = std::find_if(m_segments.rbegin(), m_segments.rend(), isAhead);
    return found == m_segments.rend() ? soundAt(frame) : found->seconds;
}

double RateMap::soundAt(double frame) const
{
    const auto isBefore = [frame](const Segment &it) {
        return static_cast<double>(it.frame) <= frame;
    };
    auto found = std::find_if(m_segments.rbegin(), m_segments.rend(), isBefore);
    if (found == m_segments.rend())
        --found;
    const double passed = (frame - static_cast<double>(found->frame)) / m_framesPerSecond;
    return std::clamp(found->seconds + passed * found->rate, 0.0, m_seconds);
}

} // namespace tarvelo::engine
