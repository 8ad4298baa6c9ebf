#include "audio/engine/HeardFrames.h"

#include <algorithm>

namespace tarvelo::engine {

void HeardFrames::restart(int framesPerSecond)
{
    *this = HeardFrames();
    m_framesPerSecond = framesPerSecond;
}

void HeardFrames::standsAt(double frame)
{
    m_frame = frame;
    m_isMoving = false;
    m_last = frame;
}

void HeardFrames::movedAt(double frame, std::uint64_t time, bool hasBegun)
{
    m_frame = frame;
    m_time = time;
    m_isMoving = hasBegun;
}

double HeardFrames::at(std::uint64_t time)
{
    const double passed = m_isMoving ? static_cast<double>(time - std::min(time, m_time)) : 0;
    const double frame = m_frame + passed * m_framesPerSecond / 1e6;
    m_last = std::clamp(frame, m_last, std::max(static_cast<double>(m_written), m_last));
    return m_last;
}

} // namespace tarvelo::engine
