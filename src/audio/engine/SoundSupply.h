#pragma once

#include "audio/engine/PcmFormat.h"

#include <cstddef>
#include <span>

namespace tarvelo::engine {

// What an output plays. Called on the output's thread, never waits. Frames are counted from the
// last restart; what has been taken is heard as it is.
class SoundSupply
{
public:
    SoundSupply() = default;
    SoundSupply(const SoundSupply &) = delete;
    SoundSupply &operator=(const SoundSupply &) = delete;
    virtual ~SoundSupply() = default;

    virtual PcmFormat format() const = 0;
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

    // The supply has more than it had when it had too little.
    virtual void moreIsThere() = 0;
};

} // namespace tarvelo::engine
