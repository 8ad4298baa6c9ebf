#include "audio/engine/AacEncoder.h"

namespace tarvelo::engine {

std::unique_ptr<AacEncoder> AacEncoder::create(const RecorderSettings &settings)
{
    keepFfmpegQuiet();
    const AVCodec *encoder = avcodec_find_encoder(AV_CODEC_ID_AAC);
    CodecPointer codec(encoder ? avcodec_alloc_context3(encoder) : nullptr);
    if (!codec)
        return nullptr;
    codec->sample_fmt = AV_SAMPLE_FMT_FLTP;
    codec->sample_rate = settings.sampleRate;
    codec->time_base = {1, settings.sampleRate};
    codec->bit_rate = settings.bitRate;
    av_channel_layout_default(&codec->ch_layout, settings.channels);
    codec->flags |= AV_CODEC_FLAG_GLOBAL_HEADER; // MPEG-4 keeps it apart from the sound
    if (avcodec_open2(codec.get(), encoder, nullptr) < 0)
        return nullptr;
    std::unique_ptr<AacEncoder> made(new AacEncoder(std::move(codec)));
    return made->m_frame && made->m_packet ? std::move(made) : nullptr;
}

AacEncoder::AacEncoder(CodecPointer codec)
    : m_codec(std::move(codec))
{
}

AVFrame *AacEncoder::frame()
{
    if (m_frame->nb_samples == frameLength() && av_frame_is_writable(m_frame.get()) > 0)
        return m_frame.get();
    av_frame_unref(m_frame.get());
    m_frame->format = m_codec->sample_fmt;
    m_frame->sample_rate = m_codec->sample_rate;
    m_frame->nb_samples = frameLength();
    av_channel_layout_copy(&m_frame->ch_layout, &m_codec->ch_layout);
    return av_frame_get_buffer(m_frame.get(), 0) < 0 ? nullptr : m_frame.get();
}

bool AacEncoder::encode(int samples, const PacketOutput &output)
{
    m_frame->nb_samples = samples;
    m_frame->pts = m_samples;
    m_samples += samples;
    return send(m_frame.get(), output);
}

bool AacEncoder::finish(const PacketOutput &output)
{
    return send(nullptr, output);
}

bool AacEncoder::send(AVFrame *frame, const PacketOutput &output)
{
    if (avcodec_send_frame(m_codec.get(), frame) < 0)
        return false;
    while (avcodec_receive_packet(m_codec.get(), m_packet.get()) >= 0) {
        const bool taken = output(*m_packet);
        av_packet_unref(m_packet.get());
        if (!taken)
            return false;
    }
    return true;
}

} // namespace tarvelo::engine
