#include "audio/engine/PulseOutput.h"

#include <algorithm>

namespace tarvelo::engine {

namespace {

// So much sound waits in the server: enough for a thread that is not always woken at once, and
// little enough for a change to be heard soon.
constexpr pa_usec_t BufferLength = 400 * PA_USEC_PER_MSEC;
constexpr pa_usec_t StartLength = 50 * PA_USEC_PER_MSEC;
// The speaker takes its sound out of that in portions of this length.
constexpr pa_usec_t PortionLength = 25 * PA_USEC_PER_MSEC;
constexpr pa_usec_t RetryInterval = PA_USEC_PER_SEC;

constexpr std::size_t BlockFrames = 2048;

pa_sample_spec specFor(const PcmFormat &format)
{
    return {PA_SAMPLE_FLOAT32NE, static_cast<std::uint32_t>(format.rate),
            static_cast<std::uint8_t>(format.channels)};
}

} // namespace

PulseOutput::PulseOutput(std::function<void()> tellOfEnd)
    : m_tellOfEnd(std::move(tellOfEnd))
{
}

PulseOutput::~PulseOutput()
{
    if (!m_loop)
        return;
    {
        const PulseLock lock(m_loop.get());
        m_supply = nullptr;
        freeRetry();
        m_stream.reset();
        m_context.reset();
    }
    pa_threaded_mainloop_stop(m_loop.get());
}

bool PulseOutput::prepare()
{
    if (m_loop)
        return true;
    m_loop.reset(pa_threaded_mainloop_new());
    if (!m_loop || pa_threaded_mainloop_start(m_loop.get()) < 0) {
        m_loop.reset();
        return false;
    }
    const PulseLock lock(m_loop.get());
    connectContext();
    return true;
}

void PulseOutput::start(SoundSupply &supply)
{
    const PulseLock lock(m_loop.get());
    m_supply = &supply;
    m_isPaused = false;
    m_isFinished = false;
    if (isContextReady())
        openStream();
    else if (m_retry) // nobody waits for the next second when the user asks now
        connectContext();
}

void PulseOutput::stop()
{
    if (!m_loop)
        return;
    const PulseLock lock(m_loop.get());
    m_supply = nullptr;
    m_stream.reset();
}

void PulseOutput::pause()
{
    const PulseLock lock(m_loop.get());
    m_isPaused = true;
    if (isStreamReady())
        forget(pa_stream_cork(m_stream.get(), 1, nullptr, nullptr));
}

void PulseOutput::resume()
{
    const PulseLock lock(m_loop.get());
    m_isPaused = false;
    if (isStreamReady()) {
        forget(pa_stream_cork(m_stream.get(), 0, nullptr, nullptr));
        fill();
    } else if (m_retry) {
        connectContext();
    }
}

double PulseOutput::seconds()
{
    if (!m_loop)
        return 0;
    const PulseLock lock(m_loop.get());
    return m_supply ? m_supply->secondsAt(m_heard.at(pa_rtclock_now())) : 0;
}

void PulseOutput::moreIsThere()
{
    const PulseLock lock(m_loop.get());
    fill();
}

bool PulseOutput::isFinished()
{
    const PulseLock lock(m_loop.get());
    return m_supply && m_isFinished && m_supply->isAtEnd();
}

void PulseOutput::connectContext()
{
    freeRetry();
    m_stream.reset();
    m_context.reset(pa_context_new(pa_threaded_mainloop_get_api(m_loop.get()), "Tarvelo"));
    if (!m_context)
        return;
    pa_context_set_state_callback(
        m_context.get(),
        [](pa_context *, void *self) { static_cast<PulseOutput *>(self)->contextChanged(); }, this);
    if (pa_context_connect(m_context.get(), nullptr, PA_CONTEXT_NOAUTOSPAWN, nullptr) < 0)
        retryLater();
}

void PulseOutput::contextChanged()
{
    const pa_context_state_t state = pa_context_get_state(m_context.get());
    if (!PA_CONTEXT_IS_GOOD(state))
        lost();
    else if (state == PA_CONTEXT_READY && m_supply)
        openStream();
}

void PulseOutput::openStream()
{
    m_isDraining = false;
    m_heard.restart(m_supply->format().rate);
    const pa_sample_spec spec = specFor(m_supply->format());
    m_stream.reset(pa_stream_new(m_context.get(), "Lecture", &spec, nullptr));
    if (!m_stream) {
        retryLater();
        return;
    }
    pa_stream_set_state_callback(
        m_stream.get(),
        [](pa_stream *, void *self) { static_cast<PulseOutput *>(self)->streamChanged(); }, this);
    pa_stream_set_write_callback(
        m_stream.get(),
        [](pa_stream *, std::size_t, void *self) { static_cast<PulseOutput *>(self)->fill(); },
        this);
    pa_stream_set_latency_update_callback(
        m_stream.get(),
        [](pa_stream *, void *self) { static_cast<PulseOutput *>(self)->timingChanged(); }, this);
    constexpr auto Any = static_cast<std::uint32_t>(-1);
    const auto length = static_cast<std::uint32_t>(pa_usec_to_bytes(BufferLength, &spec));
    const auto start = static_cast<std::uint32_t>(pa_usec_to_bytes(StartLength, &spec));
    const auto portion = static_cast<std::uint32_t>(pa_usec_to_bytes(PortionLength, &spec));
    const pa_buffer_attr buffer{Any, length, start, portion, Any};
    const int flags = PA_STREAM_EARLY_REQUESTS | PA_STREAM_AUTO_TIMING_UPDATE |
                      (m_isPaused ? PA_STREAM_START_CORKED : 0);
    if (pa_stream_connect_playback(m_stream.get(), nullptr, &buffer,
                                   static_cast<pa_stream_flags_t>(flags), nullptr, nullptr) < 0)
        lost();
}

void PulseOutput::streamChanged()
{
    const pa_stream_state_t state = pa_stream_get_state(m_stream.get());
    if (state == PA_STREAM_READY) {
        forget(pa_stream_cork(m_stream.get(), m_isPaused ? 1 : 0, nullptr, nullptr));
        fill();
    } else if (!PA_STREAM_IS_GOOD(state)) {
        lost();
    }
}

// Runs inside callbacks of the very handles that are lost: they go when the retry makes new ones.
void PulseOutput::lost()
{
    if (m_supply)
        m_supply->restartAt(m_heard.at(pa_rtclock_now()));
    m_heard = HeardFrames();
    retryLater();
}

void PulseOutput::retryLater()
{
    if (m_retry)
        return;
    m_retry = pa_context_rttime_new(
        m_context.get(), pa_rtclock_now() + RetryInterval,
        [](pa_mainloop_api *, pa_time_event *, const timeval *, void *self) {
            static_cast<PulseOutput *>(self)->connectContext();
        },
        this);
}

void PulseOutput::freeRetry()
{
    if (m_retry)
        pa_threaded_mainloop_get_api(m_loop.get())->time_free(m_retry);
    m_retry = nullptr;
}

void PulseOutput::fill()
{
    if (!m_supply || !isStreamReady() || m_retry)
        return;
    const auto channels = static_cast<std::size_t>(m_supply->format().channels);
    m_block.resize(BlockFrames * channels);
    for (;;) {
        const std::size_t writable = pa_stream_writable_size(m_stream.get());
        if (writable == static_cast<std::size_t>(-1))
            return;
        const std::size_t frames = std::min(BlockFrames, writable / (sizeof(float) * channels));
        if (frames == 0)
            return;
        const std::size_t count = m_supply->take(std::span(m_block).first(frames * channels));
        write(count);
        if (count < frames)
            break;
    }
    drain();
}

void PulseOutput::write(std::size_t frames)
{
    if (frames == 0)
        return;
    const std::size_t frameSize = m_block.size() / BlockFrames * sizeof(float);
    pa_stream_write(m_stream.get(), m_block.data(), frames * frameSize, nullptr, 0,
                    PA_SEEK_RELATIVE);
    m_heard.wrote(static_cast<std::int64_t>(frames));
    m_isFinished = false;
}

// Also starts what is too short to start by itself. One question at a time: the server forgets the
// first when it is asked a second one.
void PulseOutput::drain()
{
    if (m_isDraining || m_isPaused || !m_supply->isAtEnd())
        return;
    m_isDraining = true;
    m_framesToDrain = m_heard.written();
    forget(pa_stream_drain(
        m_stream.get(),
        [](pa_stream *stream, int success, void *self) {
            static_cast<PulseOutput *>(self)->drained(stream, success != 0);
        },
        this));
}

// More may have been written since the question, a pause may have come between, or the user has
// gone elsewhere.
void PulseOutput::drained(const pa_stream *stream, bool isTrue)
{
    if (stream != m_stream.get())
        return;
    m_isDraining = false;
    if (!m_supply || m_retry || m_isPaused)
        return;
    if (!isTrue || m_framesToDrain != m_heard.written() || !m_supply->isAtEnd()) {
        fill();
        return;
    }
    m_heard.allWasHeard();
    m_isFinished = true;
    m_tellOfEnd();
}

// What the speaker has taken is still to be heard; but a stream that stands still has either got it
// back or plays it to its end, and stands exactly where it was read.
void PulseOutput::timingChanged()
{
    const pa_timing_info *timing = pa_stream_get_timing_info(m_stream.get());
    if (!m_supply || !timing || timing->read_index_corrupt)
        return;
    const PcmFormat format = m_supply->format();
    const double frameSize = static_cast<double>(sizeof(float)) * format.channels;
    const double read = static_cast<double>(timing->read_index) / frameSize;
    if (timing->playing == 0) {
        m_heard.standsAt(read);
        return;
    }
    const double inSpeaker = static_cast<double>(timing->sink_usec) * format.rate / 1e6;
    const pa_usec_t age = pa_timeval_age(&timing->timestamp);
    m_heard.movedAt(read - inSpeaker, pa_rtclock_now() - age, read > 0);
}

bool PulseOutput::isContextReady() const
{
    return m_context && pa_context_get_state(m_context.get()) == PA_CONTEXT_READY;
}

bool PulseOutput::isStreamReady() const
{
    return m_stream && pa_stream_get_state(m_stream.get()) == PA_STREAM_READY;
}

} // namespace tarvelo::engine
