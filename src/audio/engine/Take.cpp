#include "audio/engine/Take.h"

#include "audio/engine/TakeWriter.h"
#include "platform/SignalMask.h"

#include <algorithm>
#include <chrono>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace tarvelo::engine {

namespace {

// Long enough to sleep well, short enough that a killed program loses little.
constexpr std::chrono::milliseconds WriteInterval{50};
constexpr std::size_t SamplesInBlock = 8192;

std::size_t ringSize(const PcmFormat &input)
{
    return static_cast<std::size_t>(input.rate) * static_cast<std::size_t>(input.channels) *
           Take::SecondsInRing;
}

} // namespace

std::unique_ptr<Take> Take::start(const std::string &path, const PcmFormat &input,
                                  const RecorderSettings &settings)
{
    auto writer = TakeWriter::create(path, input, settings);
    if (!writer)
        return nullptr;
    std::unique_ptr<Take> take(new Take(input, std::move(writer)));
    try {
        const platform::AllSignalsBlocked blocked;
        take->m_thread = std::thread([self = take.get()] { self->writeUntilEnd(); });
        return take;
    } catch (const std::system_error &) {
        take.reset();
        ::unlink(path.c_str());
        return nullptr;
    }
}

Take::Take(const PcmFormat &input, std::unique_ptr<TakeWriter> writer)
    : m_input(input)
    , m_ring(ringSize(input))
    , m_fader(input.rate, input.channels, [this](auto samples) { intoRing(samples); })
    , m_hearing(input)
    , m_writer(std::move(writer))
    , m_block(SamplesInBlock - SamplesInBlock % static_cast<std::size_t>(input.channels))
{
}

Take::~Take()
{
    finish();
}

double Take::seconds() const
{
    return std::min<double>(m_secondsSafe, m_secondsTaken - m_secondsRefused);
}

void Take::put(std::span<const float> interleaved)
{
    m_hearing.put(interleaved);
    m_fader.put(interleaved);
    const double samples = static_cast<double>(m_samplesTaken + m_fader.samplesHeldBack());
    m_secondsTaken = samples / (m_input.rate * m_input.channels);
}

void Take::breakOff()
{
    m_fader.breakOff();
}

void Take::intoRing(std::span<const float> samples)
{
    m_samplesTaken += m_ring.write(samples);
}

void Take::writeUntilEnd()
{
    for (bool isAtEnd = false; !isAtEnd; writeWhatIsThere()) {
        std::unique_lock lock(m_mutex);
        isAtEnd = m_endComes.wait_for(lock, WriteInterval, [this] { return m_isAtEnd; });
    }
}

void Take::writeWhatIsThere()
{
    m_writer->keepSynced();
    noteWhatIsSafe();
    while (const std::size_t count = m_ring.read(m_block)) {
        if (!m_writer->write(std::span(m_block).first(count)))
            m_secondsRefused =
                m_secondsRefused + static_cast<double>(count) / (m_input.rate * m_input.channels);
        noteWhatIsSafe();
    }
}

void Take::noteWhatIsSafe()
{
    m_secondsInFile = m_writer->secondsInFile();
    m_secondsSafe = m_writer->secondsSafe();
}

bool Take::finish()
{
    if (m_isFinished)
        return m_isComplete;
    m_isFinished = true;
    breakOff();
    {
        const std::lock_guard lock(m_mutex);
        m_isAtEnd = true;
    }
    m_endComes.notify_one();
    if (m_thread.joinable())
        m_thread.join();
    m_isComplete = m_writer->finish();
    noteWhatIsSafe();
    return m_isComplete;
}

} // namespace tarvelo::engine
