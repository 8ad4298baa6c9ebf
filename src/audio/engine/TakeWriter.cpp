#include "audio/engine/TakeWriter.h"

#include "audio/engine/IndexedCopy.h"

#include <unistd.h>

namespace tarvelo::engine {

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
    , m_packetOutput([this](const AVPacket &packet) { return m_file->add(packet); })
{
}

TakeWriter::~TakeWriter()
{
    finish();
}

bool TakeWriter::write(std::span<const float> interleaved)
{
    if (m_isFinished || m_isBroken)
        return false;
    if (m_file->isFull())
        m_file->retry();
    if (m_file->isFull())
        return false;
    m_isEmpty = m_isEmpty && interleaved.empty();
    m_isBroken = !m_resampler->put(interleaved) || !encodeFrames();
    return !m_isBroken;
}

bool TakeWriter::encodeFrames()
{
    while (m_resampler->available() >= m_encoder->frameLength())
        if (!encode(m_encoder->frameLength()))
            return false;
    return true;
}

bool TakeWriter::encode(int samples)
{
    AVFrame *frame = m_encoder->frame();
    if (!frame || !m_resampler->take(*frame, samples))
        return false;
    return m_encoder->encode(samples, m_packetOutput);
}

bool TakeWriter::encodeRest()
{
    // A file without any sound is one that not every player opens.
    if (m_isEmpty)
        m_resampler->put(std::vector<float>(2048, 0.0F));
    if (!m_resampler->finish() || !encodeFrames())
        return false;
    const int rest = m_resampler->available();
    if (rest > 0 && !encode(rest))
        return false;
    return m_encoder->finish(m_packetOutput);
}

bool TakeWriter::finish()
{
    if (m_isFinished)
        return m_isComplete;
    m_isFinished = true;
    const bool encoded = !m_isBroken && encodeRest();
    m_isComplete = m_file->finish() && encoded;
    replaceWithIndexedCopy(m_path, m_file->extentInFile());
    return m_isComplete;
}

} // namespace tarvelo::engine
