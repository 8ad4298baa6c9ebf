#pragma once

#include "audio/engine/HeardFrames.h"
#include "audio/engine/PulseConnection.h"
#include "audio/engine/PulseHandles.h"
#include "audio/engine/SoundSupply.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <vector>

namespace tarvelo::engine {

// The default output of the session's sound server. Connects in the background, and again when the
// server was away; what is to be played waits for that. Little of it waits in the server, and
// nothing there is ever changed: a change is heard half a second later. For the main
// thread, none of whose calls waits for the server.
class PulseOutput final : public SoundTaker
{
public:
    // `tellOfEnd` is called on the server's thread when the last frame of a supply has been heard;
    // again when somebody went back, and now and then twice for one end: ask isFinished().
    explicit PulseOutput(std::function<void()> tellOfEnd);
    PulseOutput(const PulseOutput &) = delete;
    PulseOutput &operator=(const PulseOutput &) = delete;
    ~PulseOutput() override;

    // False when there can be no connection, ever.
    bool prepare();
    // Plays the supply, which begins at its frame 0, until stop() has returned.
    void start(SoundSupply &supply);
    void stop();
    // Stops at once, without losing a frame, and goes on from there.
    void pause();
    void resume();
    // The second of the sound that is heard now; 0 without a supply. A pause is estimated until the
    // server has said, some milliseconds later, with which frame it began.
    double seconds();
    // All of the supply has been heard, and it has no more.
    bool isFinished();

    void moreIsThere() override;

private:
    // All below run with the loop's lock held.
    void openStream();
    void streamChanged();
    void timingChanged();
    void lost();
    void fill();
    void write(std::size_t frames);
    void drain();
    void drained(const pa_stream *stream, bool isTrue);

    std::function<void()> m_tellOfEnd;
    PulseConnection m_connection;
    PulseStreamPointer m_stream;
    SoundSupply *m_supply = nullptr;
    std::vector<float> m_block;
    HeardFrames m_heard;
    std::int64_t m_framesToDrain = 0; // were written when the server was asked to tell of the end
    bool m_isDraining = false;
    bool m_isPaused = false;
    bool m_isFinished = false;
};

} // namespace tarvelo::engine
