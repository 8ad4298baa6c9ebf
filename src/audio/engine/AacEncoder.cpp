#include "audio/engine/AacEncoder.h"

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <utility>

namespace tarvelo::engine {

namespace {

// A packet holds the end of the frame before it, and how it is coded follows from a few more.
constexpr std::size_t FramesRemembered = 8;

} // namespace

std::unique_ptr<AacEncoder> AacEncoder::create(const RecorderSettings &settings)
{
    keepFfmpegQuiet();
    CodecPointer codec = open(settings);
    if (!codec)
        return nullptr;
    std::unique_ptr<AacEncoder> made(new AacEncoder(settings, std::move(codec)));
    return made->m_frame && made->m_packet ? std::move(made) : nullptr;
}

CodecPointer AacEncoder::open(const RecorderSettings &settings)
{
    const AVCodec *encoder = avcodec_find_encoder(AV_CODEC_ID_AAC);
    // Told of the encoder only when it is opened: FFmpeg ends a program that has no memory for an
    // encoder's own defaults, of which this one has none that are not set here.
    CodecPointer codec(encoder ? avcodec_alloc_context3(nullptr) : nullptr);
    if (!codec)
        return nullptr;
    codec->sample_fmt = AV_SAMPLE_FMT_FLTP;
    codec->sample_rate = settings.sampleRate;
    codec->time_base = {1, settings.sampleRate};
    codec->bit_rate = settings.bitRate;
    av_channel_layout_default(&codec->ch_layout, settings.channels);
    codec->flags |= AV_CODEC_FLAG_GLOBAL_HEADER; // MPEG-4 keeps it apart from the sound
    return avcodec_open2(codec.get(), encoder, nullptr) < 0 ? nullptr : std::move(codec);
}

AacEncoder::AacEncoder(const RecorderSettings &settings, CodecPointer codec)
    : m_settings(settings)
    , m_codec(std::move(codec))
{
}

AVFrame *AacEncoder::frame()
{
    if (m_frame->nb_samples == frameLength() && av_frame_is_writable(m_frame.get()) > 0)
        return m_frame.get();
    return prepare(*m_frame) ? m_frame.get() : nullptr;
}

bool AacEncoder::prepare(AVFrame &frame) const
{
    av_frame_unref(&frame);
    frame.format = m_codec->sample_fmt;
    frame.sample_rate = m_codec->sample_rate;
    frame.nb_samples = frameLength();
    av_channel_layout_copy(&frame.ch_layout, &m_codec->ch_layout);
    return av_frame_get_buffer(&frame, 0) >= 0;
}

bool AacEncoder::encode(int samples, const PacketOutput &output)
{
    if (m_isBroken && !replace(output))
        return false;
    m_frame->nb_samples = samples;
    m_frame->pts = m_framesTaken * frameLength();
    if (!send(m_frame.get(), output))
        return false;
    ++m_framesTaken;
    remember(*m_frame);
    return true;
}

bool AacEncoder::finish(const PacketOutput &output)
{
    return (!m_isBroken || replace(output)) && send(nullptr, output);
}

bool AacEncoder::send(AVFrame *frame, const PacketOutput &output)
{
    int result = avcodec_send_frame(m_codec.get(), frame);
    while (result >= 0) {
        result = avcodec_receive_packet(m_codec.get(), m_packet.get());
        if (result >= 0)
            handOn(output);
    }
    m_isBroken = result != AVERROR(EAGAIN) && result != AVERROR_EOF;
    return !m_isBroken;
}

void AacEncoder::handOn(const PacketOutput &output)
{
    m_packet->pts = m_packet->dts = m_nextPacket * frameLength() - m_codec->initial_padding;
    if (m_nextPacket++ == m_packetsHandedOn) {
        ++m_packetsHandedOn;
        output(*m_packet);
    }
    av_packet_unref(m_packet.get());
}

bool AacEncoder::replace(const PacketOutput &output)
{
    m_isBroken = !beginAnew(output);
    return !m_isBroken;
}

bool AacEncoder::beginAnew(const PacketOutput &output)
{
    CodecPointer codec = open(m_settings);
    const FramePointer frame(codec ? av_frame_alloc() : nullptr);
    if (!frame)
        return false;
    m_codec = std::move(codec);
    m_nextPacket = m_framesTaken - static_cast<std::int64_t>(m_lastFrames.size());
    for (const std::vector<float> &samples : m_lastFrames) {
        if (!prepare(*frame))
            return false;
        frame->nb_samples = static_cast<int>(samples.size()) / m_settings.channels;
        for (int channel = 0; channel < m_settings.channels; ++channel)
            std::copy_n(samples.data() + std::ptrdiff_t{channel} * frame->nb_samples,
                        frame->nb_samples, reinterpret_cast<float *>(frame->data[channel]));
        if (!send(frame.get(), output))
            return false;
    }
    return true;
}

void AacEncoder::remember(const AVFrame &frame)
{
    if (m_lastFrames.size() == FramesRemembered)
        m_lastFrames.pop_front();
    auto &samples = m_lastFrames.emplace_back();
    for (int channel = 0; channel < m_settings.channels; ++channel) {
        auto from = reinterpret_cast<const float *>(frame.data[channel]);
        samples.insert(samples.end(), from, from + frame.nb_samples);
    }
}

} // namespace tarvelo::engine
