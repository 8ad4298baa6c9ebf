#pragma once

#include "audio/engine/PulseHandles.h"

#include <functional>
#include <memory>

namespace tarvelo::engine {

// A connection to the session's sound server, and the loop with a thread of its own that carries
// it. It is made in the background, and anew a while after it was lost or could not be made.
class PulseConnection final
{
public:
    // Who uses the connection, and what streams it has there. All of it is called with the loop's
    // lock held, mostly on the loop's thread.
    struct User
    {
        // The handles of the connection until now go: those of the user go before.
        std::function<void()> letGo;
        // The server, or nobody, said something about the connection.
        std::function<void()> answered;
        std::function<void()> isReady;
        // Runs inside callbacks of the very handles that are lost, which go with the next
        // connection. To be followed by retryLater(), unless none is wanted.
        std::function<void()> isLost;
    };

    PulseConnection(pa_usec_t retryInterval, User user);
    PulseConnection(const PulseConnection &) = delete;
    PulseConnection &operator=(const PulseConnection &) = delete;
    // The user's handles are gone by then, and close() was called.
    ~PulseConnection();

    // Not with the lock held. False when there can be no connection, ever.
    bool start();
    bool isStarted() const { return m_loop != nullptr; }
    pa_threaded_mainloop *loop() const { return m_loop.get(); }

    // All below with the lock held.
    pa_context *context() const { return m_context.get(); }
    bool isReady() const;
    // For the next connection, since the last one is lost.
    bool isWaiting() const { return m_retry != nullptr; }
    void retryLater();
    // Nobody waits for the next try when the user asks now.
    void retryNow();
    // The user hears no more.
    void close();

private:
    void connect();
    void contextChanged();
    void freeRetry();

    const pa_usec_t m_retryInterval;
    User m_user;
    PulseLoopPointer m_loop;
    PulseContextPointer m_context;
    pa_time_event *m_retry = nullptr;
};

} // namespace tarvelo::engine
