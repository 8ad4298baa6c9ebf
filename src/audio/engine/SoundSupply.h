#pragma once

#include "audio/engine/PcmFormat.h"

#include <cstddef>
#include <cstdint>
#include <span>

namespace tarvelo::engine {

// What an output plays. Called on the output's thread, never waits. Frames are counted from the
// last restart.
class SoundSupply
{
public:
    SoundSupply() = default;
    SoundSupply(const SoundSupply &) = delete;
    SoundSupply &operator=(const SoundSupply &) = delete;
    virtual ~SoundSupply() = default;

    virtual PcmFormat format() const = 0;
    // By how many frames what is taken next begins before the end of what was taken: so much is to
    // be replaced, since the user wants to hear something else. 0 when asked again.
    virtual std::int64_t takeStepBack() = 0;
    // How many frames there were. Who got fewer than asked for is told when there are more.
    virtual std::size_t take(std::span<float> interleaved) = 0;
    // The last frame has been taken.
    virtual bool isAtEnd() const = 0;
    // The second of the sound that is heard with the frame.
    virtual double secondsAt(double frame) const = 0;
    // What was taken after the frame has not been heard, and is wanted again.
    virtual void restartAt(double frame) = 0;
};

// Who plays a supply. For any thread.
class SoundTaker
{
public:
    SoundTaker() = default;
    SoundTaker(const SoundTaker &) = delete;
    SoundTaker &operator=(const SoundTaker &) = delete;
    virtual ~SoundTaker() = default;

    // The supply has more than it had, or something else.
    virtual void moreIsThere() = 0;
    // The first frame that is far enough from being heard to be replaced.
    virtual std::int64_t firstReplaceableFrame() = 0;
};

} // namespace tarvelo::engine
