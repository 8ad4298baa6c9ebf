#include "audio/engine/MovieOutput.h"

#include <cerrno>
#include <cstdio>
#include <utility>

namespace tarvelo::engine {

namespace {

constexpr int BufferSize = 64 * 1024;

// delay_moov and not empty_moov: only the former can say that the encoder's first 23 ms are no part
// of the sound. Without the trailer's index memory does not grow with the take.
constexpr const char *FragmentedFlags = "frag_custom+delay_moov+default_base_moof+skip_trailer";
constexpr const char *FurtherFlags =
    "frag_custom+delay_moov+default_base_moof+skip_trailer+frag_discont";

} // namespace

std::unique_ptr<MovieOutput> MovieOutput::create(Form form, const AVCodecParameters &track,
                                                 AVRational timeBase, ByteOutput output,
                                                 int firstFragment)
{
    keepFfmpegQuiet();
    std::unique_ptr<MovieOutput> movie(new MovieOutput(form, std::move(output)));
    return movie->open(track, timeBase, firstFragment) ? std::move(movie) : nullptr;
}

MovieOutput::MovieOutput(Form form, ByteOutput output)
    : m_form(form)
    , m_output(std::move(output))
{
}

MovieOutput::~MovieOutput()
{
    avformat_free_context(m_muxer);
    if (m_io)
        av_freep(&m_io->buffer);
    avio_context_free(&m_io);
}

bool MovieOutput::open(const AVCodecParameters &track, AVRational timeBase, int firstFragment)
{
    if (!openBytes() || !m_packet ||
        avformat_alloc_output_context2(&m_muxer, nullptr, "mp4", nullptr) < 0)
        return false;
    m_muxer->pb = m_io;
    m_muxer->flags |= AVFMT_FLAG_CUSTOM_IO;
    // A write for each packet costs more than all else that keeping a lecture takes.
    m_muxer->flush_packets = 0;
    AVStream *stream = avformat_new_stream(m_muxer, nullptr);
    if (!stream || avcodec_parameters_copy(stream->codecpar, &track) < 0)
        return false;
    stream->codecpar->codec_tag = 0;
    stream->time_base = timeBase;
    m_timeBase = timeBase;
    AVDictionary *options = nullptr;
    // The length of the edit list counts in these: in the usual thousandths a take would be up to
    // 22 samples too long.
    av_dict_set_int(&options, "movie_timescale", timeBase.den, 0);
    if (m_form != Form::Indexed) {
        const bool isFurther = m_form == Form::FurtherFragments;
        av_dict_set(&options, "movflags", isFurther ? FurtherFlags : FragmentedFlags, 0);
        av_dict_set_int(&options, "fragment_index", firstFragment, 0);
    }
    const int result = avformat_write_header(m_muxer, &options);
    av_dict_free(&options);
    return result >= 0;
}

bool MovieOutput::openBytes()
{
    auto buffer = static_cast<std::uint8_t *>(av_malloc(BufferSize));
    if (!buffer)
        return false;
    m_io = avio_alloc_context(buffer, BufferSize, 1, this, nullptr, &MovieOutput::writeBytes,
                              m_form == Form::Indexed ? &MovieOutput::seek : nullptr);
    if (!m_io)
        av_free(buffer);
    return m_io != nullptr;
}

bool MovieOutput::add(const AVPacket &packet)
{
    if (av_packet_ref(m_packet.get(), &packet) < 0)
        return false;
    m_packet->stream_index = 0;
    m_packet->pos = -1;
    av_packet_rescale_ts(m_packet.get(), m_timeBase, m_muxer->streams[0]->time_base);
    const int result = av_write_frame(m_muxer, m_packet.get());
    av_packet_unref(m_packet.get());
    return result >= 0;
}

bool MovieOutput::cutFragment()
{
    // The first time the muxer only puts out the header and keeps the fragment.
    m_hasHeader = m_hasHeader || putOut();
    return m_hasHeader && putOut();
}

bool MovieOutput::putOut()
{
    return av_write_frame(m_muxer, nullptr) >= 0 && flush();
}

bool MovieOutput::finish()
{
    return av_write_trailer(m_muxer) >= 0 && flush();
}

bool MovieOutput::flush()
{
    avio_flush(m_io);
    return m_io->error >= 0;
}

int MovieOutput::writeBytes(void *self, std::uint8_t *bytes, int count)
{
    auto movie = static_cast<MovieOutput *>(self);
    const bool isDropped = movie->m_form == Form::FurtherFragments && !movie->m_hasHeader;
    if (!isDropped && !movie->m_output(movie->m_position, {bytes, static_cast<std::size_t>(count)}))
        return AVERROR(EIO);
    movie->m_position += count;
    return count;
}

std::int64_t MovieOutput::seek(void *self, std::int64_t offset, int whence)
{
    auto movie = static_cast<MovieOutput *>(self);
    if (whence != SEEK_SET)
        return AVERROR(EINVAL);
    return movie->m_position = offset;
}

} // namespace tarvelo::engine
