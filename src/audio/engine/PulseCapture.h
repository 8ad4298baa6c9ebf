#pragma once

#include "audio/engine/PcmFormat.h"
#include "audio/engine/PulseConnection.h"
#include "audio/engine/PulseHandles.h"

#include <chrono>
#include <condition_variable>
#include <memory>
#include <mutex>

namespace tarvelo::engine {

class SoundSink;

// The default input of the session's sound server. Once open it stays so: when the microphone or
// the server goes away there is no sound until one is back, which is looked for all the time.
class PulseCapture final
{
public:
    // Null when there is no server, no microphone, or no answer before the patience ends. Opening
    // takes a handful of answers, and patience begins anew with each: a server that is slow but
    // there must not cost a lecture.
    static std::unique_ptr<PulseCapture> open(std::chrono::milliseconds patience);
    PulseCapture(const PulseCapture &) = delete;
    PulseCapture &operator=(const PulseCapture &) = delete;
    ~PulseCapture();

    // What the microphone gives by itself, of at most two channels. Stays the same, whatever
    // microphone comes next.
    const PcmFormat &format() const { return m_format; }

    // From now on sound goes into the sink, until pause() or destruction returns.
    void resume(SoundSink &sink);
    // All sound that has arrived by now is in the sink; then the sink hears of the break.
    void pause();

private:
    enum class Outcome { Pending, Opened, Failed };

    PulseCapture();
    bool waitUntilOpen(std::chrono::milliseconds patience);
    void answered();
    void settle(Outcome outcome);

    // All below run with the loop's lock held.
    void askForMicrophone();
    void microphoneFound(const pa_source_info &microphone);
    void openStream();
    void streamChanged();
    void lost();
    void takeWhatIsThere();

    PulseConnection m_connection;
    PulseStreamPointer m_stream;
    PcmFormat m_format;
    SoundSink *m_sink = nullptr; // none while paused

    std::mutex m_mutex;
    std::condition_variable m_answered;
    Outcome m_outcome = Outcome::Pending;
    int m_answers = 0;
};

} // namespace tarvelo::engine
