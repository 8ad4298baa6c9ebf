#include "audio/engine/IndexedCopy.h"

#include "audio/engine/MovieOutput.h"
#include "audio/engine/OutputFile.h"
#include "platform/Descriptor.h"
#include "platform/DurableFiles.h"

#include <QFile>

#include <algorithm>
#include <cerrno>
#include <sys/stat.h>
#include <unistd.h>

namespace tarvelo::engine {

namespace {

constexpr std::int64_t SamplesInPacket = 1024; // in all of AAC's low complexity profile

constexpr int BufferSize = 256 * 1024;

// A take that is read packet by packet. FFmpeg's own way to a file asks the system for the size of
// it with each packet, which for a long lecture is half of all that keeping it costs.
class TakeReader final
{
public:
    explicit TakeReader(const std::string &path)
        : m_file(QFile::decodeName(path.c_str()), O_RDONLY)
    {
    }
    TakeReader(const TakeReader &) = delete;
    TakeReader &operator=(const TakeReader &) = delete;
    ~TakeReader();

    // False when there is no take.
    bool open();
    AVFormatContext &input() { return *m_input; }

private:
    bool openBytes();
    static int readBytes(void *self, std::uint8_t *bytes, int count);
    static std::int64_t seek(void *self, std::int64_t offset, int whence);

    platform::Descriptor m_file;
    std::int64_t m_size = 0;
    std::int64_t m_position = 0;
    AVIOContext *m_io = nullptr;
    AVFormatContext *m_input = nullptr;
};

TakeReader::~TakeReader()
{
    avformat_close_input(&m_input);
    if (m_io)
        av_freep(&m_io->buffer);
    avio_context_free(&m_io);
}

bool TakeReader::open()
{
    struct stat status = {};
    if (!m_file.isOpen() || ::fstat(m_file.number(), &status) != 0)
        return false;
    m_size = status.st_size;
    m_input = openBytes() ? avformat_alloc_context() : nullptr;
    if (!m_input)
        return false;
    m_input->pb = m_io;
    return avformat_open_input(&m_input, "", av_find_input_format("mov"), nullptr) >= 0;
}

bool TakeReader::openBytes()
{
    auto buffer = static_cast<std::uint8_t *>(av_malloc(BufferSize));
    if (!buffer)
        return false;
    m_io = avio_alloc_context(buffer, BufferSize, 0, this, &TakeReader::readBytes, nullptr,
                              &TakeReader::seek);
    if (!m_io)
        av_free(buffer);
    return m_io != nullptr;
}

int TakeReader::readBytes(void *self, std::uint8_t *bytes, int count)
{
    auto take = static_cast<TakeReader *>(self);
    ssize_t given = -1;
    do
        given = ::pread(take->m_file.number(), bytes, static_cast<std::size_t>(count),
                        take->m_position);
    while (given < 0 && errno == EINTR);
    if (given < 0)
        return AVERROR(EIO);
    take->m_position += given;
    return given == 0 ? AVERROR_EOF : static_cast<int>(given);
}

std::int64_t TakeReader::seek(void *self, std::int64_t offset, int whence)
{
    auto take = static_cast<TakeReader *>(self);
    if (whence == AVSEEK_SIZE)
        return take->m_size;
    if (whence != SEEK_SET || offset < 0)
        return AVERROR(EINVAL);
    return take->m_position = offset;
}

// Hidden, and always the same for one take: what a crash left is written over, not gathered.
std::string siblingOf(const std::string &path)
{
    const auto slash = path.rfind('/');
    const auto nameAt = slash == std::string::npos ? 0 : slash + 1;
    return path.substr(0, nameAt) + "." + path.substr(nameAt) + ".indexed";
}

bool copySound(AVFormatContext &input, OutputFile &file, const TakeExtent &extent)
{
    if (input.nb_streams != 1)
        return false;
    const AVStream &track = *input.streams[0];
    const auto movie = MovieOutput::create(
        MovieOutput::Form::Indexed, *track.codecpar, track.time_base,
        [&file](std::int64_t offset, auto bytes) { return file.writeAt(offset, bytes); });
    PacketPointer packet(av_packet_alloc());
    if (!movie || !packet)
        return false;
    std::int64_t packets = 0;
    for (; av_read_frame(&input, packet.get()) >= 0; ++packets) {
        // The reader is wrong about lengths where one fragment ends and the next begins.
        packet->duration =
            std::clamp<std::int64_t>(extent.samples - packet->pts, 0, SamplesInPacket);
        const bool added = movie->add(*packet);
        av_packet_unref(packet.get());
        if (!added)
            return false;
    }
    return packets == extent.packets && movie->finish();
}

bool writeCopy(const std::string &from, const std::string &to, const TakeExtent &extent)
{
    TakeReader take(from);
    const auto file = take.open() ? OutputFile::create(to) : nullptr;
    return file && copySound(take.input(), *file, extent) && file->sync();
}

// A writer that was refused memory does not always say so: then the index lacks something.
bool isWhole(const std::string &copy, const TakeExtent &extent)
{
    TakeReader reader(copy);
    if (!reader.open() || reader.input().nb_streams != 1)
        return false;
    AVStream *track = reader.input().streams[0];
    return avformat_index_get_entries_count(track) == extent.packets &&
           av_rescale_q(track->duration, track->time_base, {1, track->codecpar->sample_rate}) >=
               extent.samples;
}

} // namespace

bool replaceWithIndexedCopy(const std::string &path, const TakeExtent &extent)
{
    keepFfmpegQuiet();
    const std::string sibling = siblingOf(path);
    if (writeCopy(path, sibling, extent) && isWhole(sibling, extent) &&
        platform::renameDurably(QFile::decodeName(sibling.c_str()),
                                QFile::decodeName(path.c_str())))
        return true;
    ::unlink(sibling.c_str());
    return false;
}

} // namespace tarvelo::engine
