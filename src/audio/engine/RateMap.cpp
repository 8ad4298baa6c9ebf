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
    m_stretches.assign(1, Stretch{0, seconds, rate, false});
}

void RateMap::replaceFrom(const Stretch &stretch)
{
    std::erase_if(m_stretches, [&](const Stretch &it) { return it.frame >= stretch.frame; });
    m_stretches.push_back(stretch);
}

void RateMap::forgetBefore(std::int64_t frame)
{
    while (m_stretches.size() > 1 && m_stretches[1].frame < frame)
        m_stretches.erase(m_stretches.begin());
}

RateMap::Stretch RateMap::goingOnFrom(std::int64_t frame, double rate) const
{
    // It takes the place of a jump that nobody has heard yet.
    const Stretch &last = m_stretches.back();
    if (last.isJump && frame <= last.frame)
        return {frame, last.seconds, rate, true};
    // From a whole frame on, as the source can be moved to no other place.
    const auto source = std::round(soundAt(static_cast<double>(frame)) * m_framesPerSecond);
    return {frame, source / m_framesPerSecond, rate, false};
}

double RateMap::secondsAt(double frame) const
{
    const auto isAhead = [frame](const Stretch &it) {
        return it.isJump && static_cast<double>(it.frame) > frame;
    };
    const auto found = std::find_if(m_stretches.rbegin(), m_stretches.rend(), isAhead);
    return found == m_stretches.rend() ? soundAt(frame) : found->seconds;
}

double RateMap::soundAt(double frame) const
{
    const auto isBefore = [frame](const Stretch &it) {
        return static_cast<double>(it.frame) <= frame;
    };
    auto found = std::find_if(m_stretches.rbegin(), m_stretches.rend(), isBefore);
    if (found == m_stretches.rend())
        --found;
    const double passed = (frame - static_cast<double>(found->frame)) / m_framesPerSecond;
    return std::clamp(found->seconds + passed * found->rate, 0.0, m_seconds);
}

} // namespace tarvelo::engine
