#pragma once

#include "audio/engine/PcmFormat.h"

#include <pulse/pulseaudio.h>

#include <cstdint>
#include <memory>

namespace tarvelo::engine {

// libpulse's handles. All but the loop itself are touched with the loop's lock held, or from its
// own thread, only.
struct PulseDeleter
{
    void operator()(pa_threaded_mainloop *loop) const { pa_threaded_mainloop_free(loop); }
    void operator()(pa_context *context) const
    {
        pa_context_set_state_callback(context, nullptr, nullptr);
        pa_context_disconnect(context);
        pa_context_unref(context);
    }
    void operator()(pa_stream *stream) const
    {
        pa_stream_set_state_callback(stream, nullptr, nullptr);
        pa_stream_set_read_callback(stream, nullptr, nullptr);
        pa_stream_set_write_callback(stream, nullptr, nullptr);
        pa_stream_set_latency_update_callback(stream, nullptr, nullptr);
        pa_stream_disconnect(stream);
        pa_stream_unref(stream);
    }
};

using PulseLoopPointer = std::unique_ptr<pa_threaded_mainloop, PulseDeleter>;
using PulseContextPointer = std::unique_ptr<pa_context, PulseDeleter>;
using PulseStreamPointer = std::unique_ptr<pa_stream, PulseDeleter>;

class PulseLock final
{
public:
    explicit PulseLock(pa_threaded_mainloop *loop)
        : m_loop(loop)
    {
        pa_threaded_mainloop_lock(m_loop);
    }
    PulseLock(const PulseLock &) = delete;
    PulseLock &operator=(const PulseLock &) = delete;
    ~PulseLock() { pa_threaded_mainloop_unlock(m_loop); }

private:
    pa_threaded_mainloop *m_loop;
};

inline pa_sample_spec specOf(const PcmFormat &format)
{
    return {PA_SAMPLE_FLOAT32NE, static_cast<std::uint32_t>(format.rate),
            static_cast<std::uint8_t>(format.channels)};
}

inline bool isReady(const PulseStreamPointer &stream)
{
    return stream && pa_stream_get_state(stream.get()) == PA_STREAM_READY;
}

// Nobody waits for the answer.
inline void forget(pa_operation *operation)
{
    if (operation)
        pa_operation_unref(operation);
}

} // namespace tarvelo::engine
