#include "audio/engine/SoundFileInput.h"

#include "audio/engine/MovieOutline.h"
#include "audio/engine/SoundSignature.h"

#include <QByteArray>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <mutex>
#include <utility>

namespace tarvelo::engine {

namespace {

constexpr int BufferSize = 256 * 1024;

// What a lecture may have come in, and no more: every reader that is not there can be fooled by no
// file. Play lists and the like, which lead to other files, are not among them.
constexpr const char *Formats = "mov,aac,mp3,wav,flac,ogg,aiff,caf";

// A file may say that it has more packets than there are bytes in the world, and the table of them
// is made before they are looked for. This holds for all that FFmpeg does in this program: a
// lecture of two days can be recorded, for which its writer needs more than any reader.
constexpr std::size_t MostMemory = std::size_t(512) << 20;

// One of sound, and some of pictures and chapters.
constexpr const char *MostTracks = "8";

// More than a fragment of any file.
constexpr std::int64_t TailSeconds = 10;

// A file that says it lasts longer lies.
constexpr double MostSeconds = 1e7;

// A name and an empty list would both be asked of the file system or the net.
int refuseToOpen(AVFormatContext *, AVIOContext **, const char *, int, AVDictionary **)
{
    return AVERROR(EPERM);
}

// For the whole process and once, so that tests can set lower bounds.
void limitMemory()
{
    static std::once_flag once;
    std::call_once(once, [] { av_max_alloc(MostMemory); });
}

} // namespace

std::unique_ptr<SoundFileInput> SoundFileInput::open(const QByteArray &bytes)
{
    return open(ByteSource::ofBytes(bytes), Kind::Strange);
}

std::unique_ptr<SoundFileInput> SoundFileInput::open(std::shared_ptr<ByteSource> bytes, Kind kind)
{
    keepFfmpegQuiet();
    limitMemory();
    const QByteArray head = bytes ? bytes->piece(0, SignatureLength) : QByteArray();
    if (!beginsLikeSound(head))
        return nullptr;
    MovieOutline outline{static_cast<qsizetype>(bytes->size())};
    if (beginsLikeMovie(head)) {
        const auto found = outlineOf(*bytes);
        if (!found)
            return nullptr;
        outline = *found;
    }
    std::unique_ptr<SoundFileInput> input(new SoundFileInput(std::move(bytes), outline, kind));
    return input->openDemuxer() ? std::move(input) : nullptr;
}

SoundFileInput::SoundFileInput(std::shared_ptr<ByteSource> bytes, const MovieOutline &outline,
                               Kind kind)
    : m_bytes(std::move(bytes))
    , m_kind(kind)
    , m_size(outline.size)
    , m_holdsFragments(outline.holdsFragments)
{
}

SoundFileInput::~SoundFileInput()
{
    avformat_close_input(&m_demuxer);
    if (m_io)
        av_freep(&m_io->buffer);
    avio_context_free(&m_io);
}

bool SoundFileInput::openDemuxer()
{
    const AVInputFormat *format = nullptr;
    // What is taken for sound only because nothing else is more like it, is noise.
    if (!openBytes() ||
        av_probe_input_buffer2(m_io, &format, "", nullptr, 0, 0) <= AVPROBE_SCORE_RETRY)
        return false;
    m_demuxer = avformat_alloc_context();
    if (!m_demuxer)
        return false;
    m_demuxer->pb = m_io;
    m_demuxer->io_open = &refuseToOpen;
    AVDictionary *options = nullptr;
    av_dict_set(&options, "format_whitelist", Formats, 0);
    av_dict_set(&options, "codec_whitelist", Codecs, 0);
    av_dict_set(&options, "max_streams", MostTracks, 0);
    const int result = avformat_open_input(&m_demuxer, "", format, &options);
    av_dict_free(&options);
    return result >= 0 &&
           (m_kind == Kind::Take || avformat_find_stream_info(m_demuxer, nullptr) >= 0) &&
           chooseTrack();
}

bool SoundFileInput::openBytes()
{
    auto buffer = static_cast<std::uint8_t *>(av_malloc(BufferSize));
    if (!buffer)
        return false;
    m_io = avio_alloc_context(buffer, BufferSize, 0, this, &SoundFileInput::readBytes, nullptr,
                              &SoundFileInput::seekBytes);
    if (!m_io)
        av_free(buffer);
    return m_io != nullptr;
}

// A film is not taken for its sound.
bool SoundFileInput::chooseTrack()
{
    m_track = av_find_best_stream(m_demuxer, AVMEDIA_TYPE_AUDIO, -1, -1, nullptr, 0);
    for (unsigned number = 0; number < m_demuxer->nb_streams; ++number) {
        AVStream *stream = m_demuxer->streams[number];
        const bool isFilm = stream->codecpar->codec_type == AVMEDIA_TYPE_VIDEO &&
                            !(stream->disposition & AV_DISPOSITION_ATTACHED_PIC);
        if (isFilm)
            return false;
        if (static_cast<int>(number) != m_track)
            stream->discard = AVDISCARD_ALL;
    }
    return m_track >= 0;
}

std::int64_t SoundFileInput::origin() const
{
    // Below zero lies the encoder's run-up, which is no part of the sound.
    const std::int64_t start = track().start_time;
    return start == AV_NOPTS_VALUE ? 0 : std::max<std::int64_t>(start, 0);
}

double SoundFileInput::seconds()
{
    const bool headerSays = !m_holdsFragments && track().duration > 0 &&
                            m_demuxer->duration_estimation_method != AVFMT_DURATION_FROM_BITRATE;
    const std::int64_t end = headerSays ? endByHeader() : endByReading();
    const double units = static_cast<double>(end) - static_cast<double>(origin());
    return std::clamp(units * av_q2d(track().time_base), 0.0, MostSeconds);
}

std::int64_t SoundFileInput::endByReading()
{
    // All fragments are known by now. The last of them may have been cut off, but not the one
    // before it.
    std::int64_t end = m_holdsFragments ? endByReadingFrom(lastSeconds()) : origin();
    if (end == origin())
        end = endByReadingFrom(origin());
    seek(origin());
    return end;
}

std::int64_t SoundFileInput::lastSeconds() const
{
    AVStream *stream = m_demuxer->streams[m_track];
    const int count = avformat_index_get_entries_count(stream);
    const std::int64_t last =
        count > 0 ? avformat_index_get_entry(stream, count - 1)->timestamp : 0;
    return av_sat_sub64(last, av_rescale_q(TailSeconds, {1, 1}, stream->time_base));
}

std::int64_t SoundFileInput::endByReadingFrom(std::int64_t timestamp)
{
    const PacketPointer packet(av_packet_alloc());
    std::int64_t end = origin();
    seek(std::max(timestamp, origin()));
    for (; packet && read(*packet); av_packet_unref(packet.get()))
        if (packet->pts != AV_NOPTS_VALUE)
            end = std::max(end, av_sat_add64(packet->pts, packet->duration));
    return end;
}

std::int64_t SoundFileInput::endByHeader() const
{
    AVStream *stream = m_demuxer->streams[m_track];
    const std::int64_t end = av_sat_add64(origin(), stream->duration);
    const auto isWhole = [this](const AVIndexEntry &entry) {
        return entry.pos + entry.size <= m_size;
    };
    int count = avformat_index_get_entries_count(stream);
    std::int64_t cut = end;
    for (; count > 0; --count) {
        const AVIndexEntry *entry = avformat_index_get_entry(stream, count - 1);
        if (isWhole(*entry))
            break;
        cut = entry->timestamp;
    }
    return std::min(cut, end);
}

std::int64_t SoundFileInput::packetsIndexed() const
{
    return avformat_index_get_entries_count(m_demuxer->streams[m_track]);
}

bool SoundFileInput::read(AVPacket &packet)
{
    const bool isPlain = av_get_bits_per_sample(track().codecpar->codec_id) > 0;
    int result = 0;
    while (!m_isCancelled && (result = av_read_frame(m_demuxer, &packet)) >= 0) {
        // A packet that the file's end cuts through would be heard as a crack; of plain samples
        // what there is of it is as good as all.
        // Without its decoder the reader does not know how long the last one is.
        if (m_kind == Kind::Take && packet.duration == 0)
            packet.duration = SamplesInPacket;
        if (isPlain)
            packet.flags &= ~AV_PKT_FLAG_CORRUPT;
        if (packet.stream_index == m_track && !(packet.flags & AV_PKT_FLAG_CORRUPT))
            return true;
        av_packet_unref(&packet);
    }
    m_lackedMemory = m_lackedMemory || result == AVERROR(ENOMEM);
    return false;
}

bool SoundFileInput::seek(std::int64_t timestamp)
{
    return av_seek_frame(m_demuxer, m_track, timestamp, AVSEEK_FLAG_BACKWARD) >= 0;
}

int SoundFileInput::readBytes(void *self, std::uint8_t *bytes, int count)
{
    auto input = static_cast<SoundFileInput *>(self);
    const std::int64_t left = input->m_size - input->m_position;
    const std::int64_t wanted = std::min<std::int64_t>(left, count);
    if (wanted <= 0 || input->m_isCancelled)
        return AVERROR_EOF;
    const auto given = static_cast<int>(
        input->m_bytes->read(input->m_position, reinterpret_cast<char *>(bytes), wanted));
    input->m_position += given;
    return given > 0 ? given : AVERROR(EIO);
}

std::int64_t SoundFileInput::seekBytes(void *self, std::int64_t offset, int whence)
{
    auto input = static_cast<SoundFileInput *>(self);
    if (whence == AVSEEK_SIZE)
        return input->m_size;
    if (whence != SEEK_SET || offset < 0)
        return AVERROR(EINVAL);
    return input->m_position = std::min(offset, input->m_size);
}

} // namespace tarvelo::engine
