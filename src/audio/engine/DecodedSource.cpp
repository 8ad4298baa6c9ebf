#include "audio/engine/DecodedSource.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace tarvelo::engine {

namespace {

// The sound server takes no others.
constexpr int LowestRate = 4000;
constexpr int HighestRate = 192000;

// A file whose beginning gives no sound is not searched for some to its end.
constexpr int PacketsTried = 64;

// A decoder that begins in the middle needs some packets before what it says is right.
constexpr std::int64_t RunUp = 4096;

} // namespace

std::unique_ptr<DecodedSource> DecodedSource::open(const QByteArray &bytes)
{
    auto input = SoundFileInput::open(bytes);
    if (!input)
        return nullptr;
    std::unique_ptr<DecodedSource> source(new DecodedSource(std::move(input)));
    return source->openDecoder() && source->decodeFirst() ? std::move(source) : nullptr;
}

DecodedSource::DecodedSource(std::unique_ptr<SoundFileInput> input)
    : m_input(std::move(input))
{
}

bool DecodedSource::openDecoder()
{
    const AVStream &track = m_input->track();
    const AVCodec *decoder = avcodec_find_decoder(track.codecpar->codec_id);
    m_codec.reset(decoder ? avcodec_alloc_context3(decoder) : nullptr);
    if (!m_codec || !m_frame || !m_packet ||
        avcodec_parameters_to_context(m_codec.get(), track.codecpar) < 0)
        return false;
    m_codec->pkt_timebase = track.time_base;
    m_codec->thread_count = 1;
    AVDictionary *options = nullptr;
    av_dict_set(&options, "codec_whitelist", SoundFileInput::Codecs, 0);
    const int result = avcodec_open2(m_codec.get(), decoder, &options);
    av_dict_free(&options);
    return result >= 0;
}

bool DecodedSource::decodeFirst()
{
    for (int tries = 0; tries < PacketsTried && pendingFrames() == 0; ++tries)
        if (!decodeMore())
            break;
    if (pendingFrames() == 0)
        return false;
    m_seconds = m_input->seconds();
    m_end = std::llround(m_seconds * m_format.rate);
    seek(0);
    return m_end > 0;
}

std::size_t DecodedSource::pendingFrames() const
{
    return m_format.channels == 0 ? 0 : (m_pending.size() - m_pendingStart) / channels();
}

std::size_t DecodedSource::read(std::span<float> samples)
{
    const auto untilEnd = static_cast<std::size_t>(std::max<std::int64_t>(m_end - m_position, 0));
    const std::size_t wanted = std::min(samples.size() / channels(), untilEnd);
    std::size_t given = 0;
    while (given < wanted && (pendingFrames() > 0 || decodeMore())) {
        const std::size_t count = std::min(wanted - given, pendingFrames());
        std::copy_n(m_pending.data() + m_pendingStart, count * channels(),
                    samples.data() + given * channels());
        m_pendingStart += count * channels();
        given += count;
    }
    m_position += static_cast<std::int64_t>(given);
    return given;
}

void DecodedSource::seek(std::int64_t frame)
{
    frame = std::clamp<std::int64_t>(frame, 0, m_end);
    const AVRational frames{1, m_format.rate};
    const AVRational stamps = m_input->track().time_base;
    const std::int64_t origin = m_input->origin();
    const std::int64_t place = av_sat_add64(origin, av_rescale_q(frame, frames, stamps));
    // Also the beginning has a packet before it, which nobody hears and the first sound needs.
    const std::int64_t early = av_sat_sub64(place, av_rescale_q(RunUp, frames, stamps));
    if (!m_input->seek(early))
        m_input->seek(std::max(early, origin));
    avcodec_flush_buffers(m_codec.get());
    m_pending.clear();
    m_pendingStart = 0;
    m_position = frame;
    m_isPlaced = false;
    m_isFlushed = false;
}

// False at the end. Packets that cannot be decoded are passed over.
bool DecodedSource::decodeMore()
{
    m_pending.clear();
    m_pendingStart = 0;
    if (receive())
        return true;
    if (m_isFlushed)
        return false;
    m_isFlushed = !m_input->read(*m_packet);
    avcodec_send_packet(m_codec.get(), m_isFlushed ? nullptr : m_packet.get());
    av_packet_unref(m_packet.get());
    return true;
}

bool DecodedSource::receive()
{
    if (avcodec_receive_frame(m_codec.get(), m_frame.get()) < 0)
        return false;
    if (convert(*m_frame))
        dropUntilWanted(*m_frame);
    av_frame_unref(m_frame.get());
    return true;
}

// A broken file may change its mind about rate and channels on the way.
bool DecodedSource::convert(const AVFrame &frame)
{
    if (frame.nb_samples <= 0 || frame.ch_layout.nb_channels <= 0 ||
        frame.sample_rate < LowestRate || frame.sample_rate > HighestRate)
        return false;
    if (m_format.rate == 0)
        m_format = {frame.sample_rate, std::min(frame.ch_layout.nb_channels, 2)};
    if (m_sampleFormat != frame.format || m_sampleRate != frame.sample_rate ||
        m_sampleChannels != frame.ch_layout.nb_channels) {
        AVChannelLayout from;
        AVChannelLayout to;
        av_channel_layout_default(&from, frame.ch_layout.nb_channels);
        av_channel_layout_default(&to, m_format.channels);
        SwrContext *context = nullptr;
        swr_alloc_set_opts2(&context, &to, AV_SAMPLE_FMT_FLT, m_format.rate, &from,
                            static_cast<AVSampleFormat>(frame.format), frame.sample_rate, 0,
                            nullptr);
        m_converter.reset(context);
        if (!m_converter || swr_init(m_converter.get()) < 0) {
            m_converter.reset();
            m_sampleFormat = -1;
            return false;
        }
        m_sampleFormat = frame.format;
        m_sampleRate = frame.sample_rate;
        m_sampleChannels = frame.ch_layout.nb_channels;
    }
    const int room = std::max(0, swr_get_out_samples(m_converter.get(), frame.nb_samples));
    m_pending.resize(static_cast<std::size_t>(room) * channels());
    auto out = reinterpret_cast<std::uint8_t *>(m_pending.data());
    auto in = const_cast<const std::uint8_t **>(frame.extended_data);
    const int made = swr_convert(m_converter.get(), &out, room, in, frame.nb_samples);
    m_pending.resize(static_cast<std::size_t>(std::max(0, made)) * channels());
    for (float &sample : m_pending)
        sample = std::isfinite(sample) ? std::clamp(sample, -4.0F, 4.0F) : 0.0F;
    return made > 0;
}

void DecodedSource::dropUntilWanted(const AVFrame &frame)
{
    if (m_isPlaced)
        return;
    if (frame.pts == AV_NOPTS_VALUE) {
        m_isPlaced = true;
        return;
    }
    const AVRational frames{1, m_format.rate};
    const std::int64_t start = av_rescale_q(av_sat_sub64(frame.pts, m_input->origin()),
                                            m_input->track().time_base, frames);
    const auto early =
        static_cast<std::size_t>(std::max<std::int64_t>(av_sat_sub64(m_position, start), 0));
    m_isPlaced = early < pendingFrames();
    m_pendingStart = std::min(early, pendingFrames()) * channels();
}

} // namespace tarvelo::engine
