#include "audio/engine/LeftTake.h"

#include "audio/engine/MovieOutput.h"
#include "audio/engine/OutputFile.h"
#include "audio/engine/SoundFileInput.h"
#include "platform/DurableFiles.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <unistd.h>
#include <utility>

namespace tarvelo::engine {

namespace {

constexpr std::int64_t SamplesInPacket = 1024; // in all of AAC's low complexity profile
// What two ways of measuring may differ by.
constexpr double SecondsInPacket = 0.05;

// The bytes of a file without a copy of them, as long as this lives.
class MappedFile final
{
public:
    explicit MappedFile(const QString &path)
        : m_file(path)
    {
        if (!QFileInfo(path).isFile() || !m_file.open(QIODevice::ReadOnly))
            return;
        if (const uchar *bytes = m_file.map(0, m_file.size()))
            m_bytes = QByteArray::fromRawData(reinterpret_cast<const char *>(bytes),
                                              static_cast<qsizetype>(m_file.size()));
    }

    const QByteArray &bytes() const { return m_bytes; }

private:
    QFile m_file;
    QByteArray m_bytes;
};

// How long a packet is, is known from where the next one begins: the reader is wrong about it where
// one fragment ends and the next begins.
bool copyPackets(SoundFileInput &input, MovieOutput &movie)
{
    PacketPointer packet(av_packet_alloc());
    PacketPointer next(av_packet_alloc());
    if (!packet || !next || !input.read(*packet))
        return false;
    for (bool isLast = false; !isLast; std::swap(packet, next)) {
        isLast = !input.read(*next);
        const std::int64_t length = isLast ? packet->duration : next->pts - packet->pts;
        packet->duration = std::clamp<std::int64_t>(length, 0, SamplesInPacket);
        const bool isAdded = movie.add(*packet);
        av_packet_unref(packet.get());
        if (!isAdded)
            return false;
    }
    return movie.finish();
}

bool writeIndexed(const QString &from, const QString &to)
{
    const MappedFile take(from);
    const auto input = SoundFileInput::open(take.bytes());
    const auto file = input ? OutputFile::create(QFile::encodeName(to).toStdString()) : nullptr;
    if (!file)
        return false;
    const AVStream &track = input->track();
    const auto movie = MovieOutput::create(
        MovieOutput::Form::Indexed, *track.codecpar, track.time_base,
        [&file](std::int64_t offset, auto bytes) { return file->writeAt(offset, bytes); });
    return movie && copyPackets(*input, *movie) && file->sync();
}

} // namespace

double secondsOfLeftTake(const QString &path)
{
    const MappedFile take(path);
    const auto input = SoundFileInput::open(take.bytes());
    return input ? input->seconds() : 0;
}

bool finishLeftTake(const QString &path)
{
    {
        const MappedFile take(path);
        const auto outline = outlineOf(take.bytes());
        if (!outline || !beginsLikeMovie(take.bytes()))
            return false;
        if (!outline->holdsFragments)
            return true;
    }
    // Hidden, and always the same: what a crash left is written over, not gathered.
    const QFileInfo file(path);
    const QString sibling =
        file.path() + QStringLiteral("/.") + file.fileName() + QStringLiteral(".indexed");
    const bool isWhole = writeIndexed(path, sibling) &&
                         secondsOfLeftTake(sibling) + SecondsInPacket >= secondsOfLeftTake(path);
    if (isWhole && platform::renameDurably(sibling, path))
        return true;
    ::unlink(QFile::encodeName(sibling).constData());
    return false;
}

} // namespace tarvelo::engine
