#include "audio/engine/MovieOutline.h"

#include "audio/engine/ByteSource.h"

#include <QtEndian>

#include <algorithm>
#include <array>

namespace tarvelo::engine {

namespace {

constexpr qsizetype HeaderSize = 8;

// Larger than what the index of a lecture of a week takes.
constexpr qint64 MostLookedAt = qint64(64) << 20;

struct Box
{
    QByteArray type;
    // With the header; more than there is where the file is cut off, less than a header when it
    // makes no sense.
    qint64 size;
};

Box boxAt(ByteSource &movie, qint64 at)
{
    const QByteArray header = movie.piece(at, 2 * HeaderSize);
    if (header.size() < HeaderSize)
        return {{}, 0};
    Box box{header.sliced(4, 4), qFromBigEndian<quint32>(header.constData())};
    if (box.size == 0) // to the end of the file
        box.size = movie.size() - at;
    else if (box.size == 1 && header.size() == 2 * HeaderSize)
        box.size = qFromBigEndian<qint64>(header.constData() + HeaderSize);
    return box;
}

// A number below 1 is none.
qint32 trackNumber(QByteArrayView track)
{
    const qsizetype type = track.indexOf("tkhd");
    if (type < 0 || track.size() < type + 28)
        return 0;
    const bool hasLongTimes = track[type + 4] == 1;
    return qFromBigEndian<qint32>(track.data() + type + (hasLongTimes ? 24 : 16));
}

// Looks for words, not for boxes, since it does not know where a reader finds one.
bool hasTrackWithoutNumber(QByteArrayView index)
{
    for (qsizetype at = index.indexOf("trak"); at >= 0;) {
        const qsizetype next = index.indexOf("trak", at + 4);
        if (trackNumber(index.sliced(at, (next < 0 ? index.size() : next) - at)) < 1)
            return true;
        at = next;
    }
    return false;
}

} // namespace

bool beginsLikeMovie(QByteArrayView head)
{
    constexpr std::array<QByteArrayView, 6> Types{"ftyp", "moov", "mdat", "wide", "free", "skip"};
    return head.size() >= HeaderSize && std::ranges::find(Types, head.sliced(4, 4)) != Types.end();
}

std::optional<MovieOutline> outlineOf(ByteSource &movie)
{
    MovieOutline outline;
    bool mayHoldFragments = false;
    bool isNumberMissing = false;
    qint64 at = 0;
    while (movie.size() - at >= HeaderSize) {
        const Box box = boxAt(movie, at);
        if (box.size < HeaderSize)
            break;
        const bool isFragment = box.type == "moof";
        const bool isCutOff = box.size > movie.size() - at;
        const auto end = isCutOff ? movie.size() : at + box.size;
        if (box.type != "mdat") {
            const QByteArray content =
                movie.piece(at + HeaderSize, std::min(end - at - HeaderSize, MostLookedAt));
            mayHoldFragments = mayHoldFragments || isFragment || content.indexOf("moof") >= 0;
            isNumberMissing = isNumberMissing || hasTrackWithoutNumber(content);
        }
        outline.holdsFragments = outline.holdsFragments || isFragment;
        if (isFragment && isCutOff)
            break;
        at = end;
    }
    if (mayHoldFragments && isNumberMissing)
        return std::nullopt;
    outline.size = static_cast<qsizetype>(at);
    return outline;
}

} // namespace tarvelo::engine
