#include "support/DecodedAudio.h"

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
}

#include <QFile>
#include <QtEndian>

#include <memory>

namespace tarvelo::tests {

namespace {

struct Closer
{
    void operator()(AVFormatContext *input) const { avformat_close_input(&input); }
    void operator()(AVCodecContext *codec) const { avcodec_free_context(&codec); }
    void operator()(AVPacket *packet) const { av_packet_free(&packet); }
    void operator()(AVFrame *frame) const { av_frame_free(&frame); }
};
template <typename T>
using Handle = std::unique_ptr<T, Closer>;

Handle<AVFormatContext> openInput(const QString &path)
{
    av_log_set_level(AV_LOG_QUIET);
    AVFormatContext *input = nullptr;
    const QByteArray url = "file:" + QFile::encodeName(path);
    if (avformat_open_input(&input, url.constData(), nullptr, nullptr) < 0)
        return nullptr;
    Handle<AVFormatContext> handle(input);
    const bool hasSound = avformat_find_stream_info(input, nullptr) >= 0 && input->nb_streams == 1;
    return hasSound ? std::move(handle) : nullptr;
}

Handle<AVCodecContext> openDecoder(const AVStream &track)
{
    const AVCodec *decoder = avcodec_find_decoder(track.codecpar->codec_id);
    Handle<AVCodecContext> codec(decoder ? avcodec_alloc_context3(decoder) : nullptr);
    if (!codec || avcodec_parameters_to_context(codec.get(), track.codecpar) < 0)
        return nullptr;
    codec->pkt_timebase = track.time_base; // one tick a sample, in all files of ours
    return avcodec_open2(codec.get(), decoder, nullptr) < 0 ? nullptr : std::move(codec);
}

float sampleOf(const AVFrame &frame, int channel, int at)
{
    switch (frame.format) {
    case AV_SAMPLE_FMT_FLTP:
        return reinterpret_cast<const float *>(frame.extended_data[channel])[at];
    case AV_SAMPLE_FMT_S16:
        return static_cast<float>(reinterpret_cast<const qint16 *>(
                   frame.data[0])[at * frame.ch_layout.nb_channels + channel]) /
               32768.0F;
    default:
        return 0.0F;
    }
}

void decodeInto(DecodedAudio &audio, AVCodecContext &codec, const AVPacket *packet)
{
    const Handle<AVFrame> frame(av_frame_alloc());
    avcodec_send_packet(&codec, packet);
    while (avcodec_receive_frame(&codec, frame.get()) >= 0) {
        audio.rate = frame->sample_rate;
        audio.channels = frame->ch_layout.nb_channels;
        // What lies before the beginning is the encoder's run-up and not for playing. The decoder
        // drops it by itself from an indexed file only.
        const int first = frame->pts == AV_NOPTS_VALUE ? 0 : static_cast<int>(-frame->pts);
        for (int at = std::max(0, first); at < frame->nb_samples; ++at)
            for (int channel = 0; channel < audio.channels; ++channel)
                audio.samples.push_back(sampleOf(*frame, channel, at));
    }
}

// Walks the boxes that the file is a row of, since the name may stand by chance in the sound.
bool holdsFragments(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    for (QByteArray box = file.read(8); box.size() == 8; box = file.read(8)) {
        if (box.endsWith("moof"))
            return true;
        const auto size = qFromBigEndian<quint32>(box.constData());
        if (size < 8 || !file.seek(file.pos() + size - 8))
            return false;
    }
    return false;
}

} // namespace

std::optional<DecodedAudio> DecodedAudio::read(const QString &path)
{
    const auto input = openInput(path);
    const auto codec = input ? openDecoder(*input->streams[0]) : nullptr;
    const Handle<AVPacket> packet(av_packet_alloc());
    if (!codec)
        return std::nullopt;
    DecodedAudio audio;
    audio.rate = codec->sample_rate;
    audio.channels = codec->ch_layout.nb_channels;
    for (; av_read_frame(input.get(), packet.get()) >= 0; av_packet_unref(packet.get()))
        decodeInto(audio, *codec, packet.get());
    decodeInto(audio, *codec, nullptr);
    return audio;
}

std::vector<float> DecodedAudio::channel(int number) const
{
    std::vector<float> one;
    one.reserve(frames());
    for (auto at = static_cast<std::size_t>(number); at < samples.size();
         at += static_cast<std::size_t>(channels))
        one.push_back(samples[at]);
    return one;
}

std::optional<MovieFacts> MovieFacts::read(const QString &path)
{
    const auto input = openInput(path);
    if (!input)
        return std::nullopt;
    const AVCodecParameters &track = *input->streams[0]->codecpar;
    return MovieFacts{static_cast<double>(input->duration) / AV_TIME_BASE,
                      QString::fromLatin1(avcodec_get_name(track.codec_id)), track.sample_rate,
                      track.ch_layout.nb_channels, holdsFragments(path)};
}

} // namespace tarvelo::tests
