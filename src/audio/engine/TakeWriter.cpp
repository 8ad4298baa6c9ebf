#include "audio/engine/TakeWriter.h"

#include "audio/engine/Ffmpeg.h"
#include "audio/engine/IndexedCopy.h"
#include "audio/engine/OutputFile.h"
#include "audio/engine/RecorderSettings.h"
#include "audio/engine/Resampler.h"
#include "audio/engine/TakeExtent.h"

#include <unistd.h>
#include <utility>
#include <vector>

namespace tarvelo::engine {

namespace {

// What an encoder without memory may leave lying.
constexpr int MostSecondsWaiting = 10;

// Memory that was refused once is given the next time, if it ever is.
template <typename Attempt>
bool twice(Attempt attempt)
{
    return attempt() || attempt();
}

} // namespace

std::unique_ptr<TakeWriter> TakeWriter::create(const std::string &path, const PcmFormat &input,
                                               const RecorderSettings &settings)
{
    auto resampler = Resampler::create(input, {settings.sampleRate, settings.channels});
    auto encoder = AacEncoder::create(settings);
    if (!resampler || !encoder)
        return nullptr;
    auto output = OutputFile::create(path);
    if (!output)
        return nullptr;
    auto file = FragmentedFile::create(std::move(output), encoder->codec());
    if (!file) {
        ::unlink(path.c_str());
        return nullptr;
    }
    return std::unique_ptr<TakeWriter>(
        new TakeWriter(path, std::move(resampler), std::move(encoder), std::move(file)));
}

TakeWriter::TakeWriter(std::string path, std::unique_ptr<Resampler> resampler,
                       std::unique_ptr<AacEncoder> encoder, std::unique_ptr<FragmentedFile> file)
    : m_path(std::move(path))
    , m_resampler(std::move(resampler))
    , m_encoder(std::move(encoder))
    , m_file(std::move(file))
    , m_packetOutput([this](const AVPacket &packet) { m_file->add(packet); })
{
}

TakeWriter::~TakeWriter()
{
    finish();
}

bool TakeWriter::isFull() const
{
    const int most = MostSecondsWaiting * m_encoder->codec().sample_rate;
    return m_file->isFull() || m_resampler->available() > most;
}

bool TakeWriter::write(std::span<const float> interleaved)
{
    if (m_isFinished)
        return false;
    if (isFull()) {
        m_file->retry();
        encodeFrames();
    }
    if (isFull())
        return false;
    m_isEmpty = m_isEmpty && interleaved.empty();
    const bool isTaken = twice([&] { return m_resampler->put(interleaved); });
    encodeFrames();
    return isTaken;
}

bool TakeWriter::encodeFrames()
{
    while (m_samplesInFrame > 0 || m_resampler->available() >= m_encoder->frameLength())
        if (!encode(m_encoder->frameLength()))
            return false;
    return true;
}

bool TakeWriter::encode(int samples)
{
    if (m_samplesInFrame == 0) {
        AVFrame *frame = m_encoder->frame();
        if (!frame || !m_resampler->take(*frame, samples))
            return false;
        m_samplesInFrame = samples;
    }
    if (!m_encoder->encode(m_samplesInFrame, m_packetOutput))
        return false;
    m_samplesInFrame = 0;
    return true;
}

bool TakeWriter::encodeRest()
{
    // A file without any sound is one that not every player opens.
    if (m_isEmpty)
        m_resampler->put(std::vector<float>(2048, 0.0F));
    const bool isAllOut = twice([this] { return m_resampler->finish(); });
    if (!twice([this] { return encodeFrames(); }))
        return false;
    const int rest = m_resampler->available();
    if (rest > 0 && !twice([this, rest] { return encode(rest); }))
        return false;
    return twice([this] { return m_encoder->finish(m_packetOutput); }) && isAllOut;
}

bool TakeWriter::finish()
{
    if (m_isFinished)
        return m_isComplete;
    m_isFinished = true;
    const bool isEncoded = encodeRest();
    const bool isWritten = m_file->finish();
    const bool isIndexed = replaceWithIndexedCopy(m_path, m_file->extentInFile());
    m_isComplete = isEncoded && isWritten && (isIndexed || m_file->isSynced());
    return m_isComplete;
}

} // namespace tarvelo::engine
