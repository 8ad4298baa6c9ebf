#include "audio/engine/PulseOutput.h"

#include "audio/engine/PcmFormat.h"

#include <algorithm>
#include <span>
#include <utility>

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

} // namespace

PulseOutput::PulseOutput(std::function<void()> tellOfEnd)
    : m_tellOfEnd(std::move(tellOfEnd))
    , m_connection(RetryInterval, {[this] { m_stream.reset(); }, [] {}, [this] { openStream(); },
                                   [this] { lost(); }})
{
}

PulseOutput::~PulseOutput()
{
    if (!m_connection.isStarted())
        return;
    const PulseLock lock(m_connection.loop());
    m_supply = nullptr;
    m_stream.reset();
    m_connection.close();
}

bool PulseOutput::prepare()
{
    return m_connection.start();
}

void PulseOutput::start(SoundSupply &supply)
{
    const PulseLock lock(m_connection.loop());
    m_supply = &supply;
    m_isPaused = false;
    m_isFinished = false;
    if (m_connection.isReady())
        openStream();
    else
        m_connection.retryNow();
}

void PulseOutput::stop()
{
    if (!m_connection.isStarted())
        return;
    const PulseLock lock(m_connection.loop());
    m_supply = nullptr;
    m_stream.reset();
}

void PulseOutput::pause()
{
    const PulseLock lock(m_connection.loop());
    m_isPaused = true;
    if (isReady(m_stream))
        forget(pa_stream_cork(m_stream.get(), 1, nullptr, nullptr));
}

void PulseOutput::resume()
{
    const PulseLock lock(m_connection.loop());
    m_isPaused = false;
    if (isReady(m_stream)) {
        forget(pa_stream_cork(m_stream.get(), 0, nullptr, nullptr));
        fill();
    } else {
        m_connection.retryNow();
    }
}

double PulseOutput::seconds()
{
    if (!m_connection.isStarted())
        return 0;
    const PulseLock lock(m_connection.loop());
    return m_supply ? m_supply->secondsAt(m_heard.at(pa_rtclock_now())) : 0;
}

void PulseOutput::moreIsThere()
{
    const PulseLock lock(m_connection.loop());
    fill();
}

bool PulseOutput::isFinished()
{
    const PulseLock lock(m_connection.loop());
    return m_supply && m_isFinished && m_supply->isAtEnd();
}

void PulseOutput::openStream()
{
    if (!m_supply)
        return;
    m_isDraining = false;
    m_heard.restart(m_supply->format().rate);
    const pa_sample_spec spec = specOf(m_supply->format());
    m_stream.reset(pa_stream_new(m_connection.context(), "Lecture", &spec, nullptr));
    if (!m_stream) {
        m_connection.retryLater();
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

void PulseOutput::lost()
{
    if (m_supply)
        m_supply->restartAt(m_heard.at(pa_rtclock_now()));
    m_heard = HeardFrames();
    m_connection.retryLater();
}

void PulseOutput::fill()
{
    if (!m_supply || !isReady(m_stream) || m_connection.isWaiting())
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
    if (!m_supply || m_connection.isWaiting() || m_isPaused)
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

} // namespace tarvelo::engine
