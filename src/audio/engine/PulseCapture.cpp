#include "audio/engine/PulseCapture.h"

#include "audio/engine/SoundSink.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

namespace tarvelo::engine {

namespace {

constexpr pa_usec_t BlockLength = 20 * PA_USEC_PER_MSEC;
// A word may be lost until the next attempt, not a sentence.
constexpr pa_usec_t RetryInterval = PA_USEC_PER_SEC / 4;

} // namespace

std::unique_ptr<PulseCapture> PulseCapture::open(std::chrono::milliseconds patience)
{
    std::unique_ptr<PulseCapture> capture(new PulseCapture);
    if (!capture->m_connection.start())
        return nullptr;
    return capture->waitUntilOpen(patience) ? std::move(capture) : nullptr;
}

PulseCapture::PulseCapture()
    : m_connection(RetryInterval, {[this] { m_stream.reset(); }, [this] { answered(); },
                                   [this] { askForMicrophone(); }, [this] { lost(); }})
{
}

PulseCapture::~PulseCapture()
{
    if (!m_connection.isStarted())
        return;
    const PulseLock lock(m_connection.loop());
    m_sink = nullptr;
    m_stream.reset();
    m_connection.close();
}

bool PulseCapture::waitUntilOpen(std::chrono::milliseconds patience)
{
    std::unique_lock lock(m_mutex);
    int answers = -1;
    while (m_outcome == Outcome::Pending && m_answers != answers) {
        answers = m_answers;
        m_answered.wait_for(lock, patience, [this, answers] {
            return m_outcome != Outcome::Pending || m_answers != answers;
        });
    }
    return m_outcome == Outcome::Opened;
}

void PulseCapture::answered()
{
    const std::lock_guard lock(m_mutex);
    ++m_answers;
    m_answered.notify_one();
}

void PulseCapture::settle(Outcome outcome)
{
    const std::lock_guard lock(m_mutex);
    if (m_outcome == Outcome::Pending)
        m_outcome = outcome;
    m_answered.notify_one();
}

void PulseCapture::resume(SoundSink &sink)
{
    const PulseLock lock(m_connection.loop());
    m_sink = &sink;
    if (isReady(m_stream))
        forget(pa_stream_cork(m_stream.get(), 0, nullptr, nullptr));
}

void PulseCapture::pause()
{
    const PulseLock lock(m_connection.loop());
    if (!m_sink)
        return;
    if (isReady(m_stream)) {
        takeWhatIsThere();
        forget(pa_stream_cork(m_stream.get(), 1, nullptr, nullptr));
    }
    m_sink->breakOff();
    m_sink = nullptr;
}

void PulseCapture::askForMicrophone()
{
    pa_operation *const question = pa_context_get_source_info_by_name(
        m_connection.context(), "@DEFAULT_SOURCE@",
        [](pa_context *, const pa_source_info *microphone, int end, void *self) {
            if (microphone)
                static_cast<PulseCapture *>(self)->microphoneFound(*microphone);
            else if (end < 0)
                static_cast<PulseCapture *>(self)->lost();
        },
        this);
    if (!question)
        lost();
    forget(question);
}

void PulseCapture::microphoneFound(const pa_source_info &microphone)
{
    answered();
    if (m_format.rate == 0)
        m_format = {static_cast<int>(microphone.sample_spec.rate),
                    std::min<int>(microphone.sample_spec.channels, 2)};
    openStream();
}

void PulseCapture::openStream()
{
    const pa_sample_spec spec = specOf(m_format);
    m_stream.reset(pa_stream_new(m_connection.context(), "Lecture", &spec, nullptr));
    if (!m_stream) {
        lost();
        return;
    }
    pa_stream_set_state_callback(
        m_stream.get(),
        [](pa_stream *, void *self) { static_cast<PulseCapture *>(self)->streamChanged(); }, this);
    pa_stream_set_read_callback(
        m_stream.get(),
        [](pa_stream *, std::size_t, void *self) {
            static_cast<PulseCapture *>(self)->takeWhatIsThere();
        },
        this);
    constexpr auto Any = static_cast<std::uint32_t>(-1);
    const auto block = static_cast<std::uint32_t>(pa_usec_to_bytes(BlockLength, &spec));
    const pa_buffer_attr buffer{Any, Any, Any, Any, block};
    const int flags = PA_STREAM_ADJUST_LATENCY | (m_sink ? 0 : PA_STREAM_START_CORKED);
    if (pa_stream_connect_record(m_stream.get(), nullptr, &buffer,
                                 static_cast<pa_stream_flags_t>(flags)) < 0)
        lost();
}

void PulseCapture::streamChanged()
{
    const pa_stream_state_t state = pa_stream_get_state(m_stream.get());
    if (state == PA_STREAM_READY) {
        settle(Outcome::Opened);
        // Somebody may have paused or gone on since the stream was asked for.
        const bool isCorked = pa_stream_is_corked(m_stream.get()) > 0;
        if (isCorked != !m_sink)
            forget(pa_stream_cork(m_stream.get(), m_sink ? 0 : 1, nullptr, nullptr));
    } else if (!PA_STREAM_IS_GOOD(state))
        lost();
}

void PulseCapture::lost()
{
    settle(Outcome::Failed);
    if (m_sink)
        m_sink->breakOff();
    m_connection.retryLater();
}

void PulseCapture::takeWhatIsThere()
{
    for (;;) {
        const void *bytes = nullptr;
        std::size_t count = 0;
        if (pa_stream_peek(m_stream.get(), &bytes, &count) < 0 || count == 0)
            return;
        const std::size_t samples = count / sizeof(float);
        if (m_sink && bytes)
            m_sink->put({static_cast<const float *>(bytes), samples});
        else if (m_sink) // the server lost some: silence keeps what follows in its place
            m_sink->put(std::vector<float>(samples, 0.0F));
        pa_stream_drop(m_stream.get());
    }
}

} // namespace tarvelo::engine
