#pragma once

#include <span>

namespace tarvelo::engine {

// Where captured sound goes. Called from the sound server's thread, one call at a time; must not
// wait for anything.
class SoundSink
{
public:
    virtual ~SoundSink() = default;
    virtual void put(std::span<const float> interleaved) = 0;
    // What comes next does not join on to what came last.
    virtual void breakOff() = 0;
};

} // namespace tarvelo::engine
