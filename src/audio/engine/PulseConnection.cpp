#include "audio/engine/PulseConnection.h"

#include <utility>

namespace tarvelo::engine {

PulseConnection::PulseConnection(pa_usec_t retryInterval, User user)
    : m_retryInterval(retryInterval)
    , m_user(std::move(user))
{
}

PulseConnection::~PulseConnection()
{
    if (m_loop)
        pa_threaded_mainloop_stop(m_loop.get());
}

bool PulseConnection::start()
{
    if (m_loop)
        return true;
    m_loop.reset(pa_threaded_mainloop_new());
    if (!m_loop || pa_threaded_mainloop_start(m_loop.get()) < 0) {
        m_loop.reset();
        return false;
    }
    const PulseLock lock(m_loop.get());
    connect();
    return true;
}

void PulseConnection::connect()
{
    freeRetry();
    m_user.letGo();
    PulseContextPointer context(
        pa_context_new(pa_threaded_mainloop_get_api(m_loop.get()), "Tarvelo"));
    if (!context) {
        // Without memory for another one now, there may be some later.
        m_user.isLost();
        return;
    }
    m_context = std::move(context);
    pa_context_set_state_callback(
        m_context.get(),
        [](pa_context *, void *self) { static_cast<PulseConnection *>(self)->contextChanged(); },
        this);
    if (pa_context_connect(m_context.get(), nullptr, PA_CONTEXT_NOAUTOSPAWN, nullptr) < 0)
        m_user.isLost();
}

void PulseConnection::contextChanged()
{
    const pa_context_state_t state = pa_context_get_state(m_context.get());
    m_user.answered();
    if (!PA_CONTEXT_IS_GOOD(state))
        m_user.isLost();
    else if (state == PA_CONTEXT_READY)
        m_user.isReady();
}

bool PulseConnection::isReady() const
{
    return m_context && pa_context_get_state(m_context.get()) == PA_CONTEXT_READY;
}

// The context keeps the time, so that there is none before the first.
void PulseConnection::retryLater()
{
    if (m_retry || !m_context)
        return;
    m_retry = pa_context_rttime_new(
        m_context.get(), pa_rtclock_now() + m_retryInterval,
        [](pa_mainloop_api *, pa_time_event *, const timeval *, void *self) {
            static_cast<PulseConnection *>(self)->connect();
        },
        this);
}

void PulseConnection::retryNow()
{
    if (m_retry)
        connect();
}

void PulseConnection::close()
{
    freeRetry();
    m_context.reset();
}

void PulseConnection::freeRetry()
{
    if (m_retry)
        pa_threaded_mainloop_get_api(m_loop.get())->time_free(m_retry);
    m_retry = nullptr;
}

} // namespace tarvelo::engine
