#pragma once

#include <QByteArray>
#include <QtEndian>

#include <vector>

namespace tarvelo::tests {

// What a file of MPEG-4 is a row of.
struct Box
{
    QByteArray type;
    qsizetype at = 0;
    qsizetype size = 0;

    qsizetype end() const { return at + size; }
};

inline std::vector<Box> boxesOf(const QByteArray &file)
{
    std::vector<Box> boxes;
    for (qsizetype at = 0; at + 8 <= file.size(); at = boxes.back().end())
        boxes.push_back({file.mid(at + 4, 4), at, qFromBigEndian<quint32>(file.constData() + at)});
    return boxes;
}

// A box of no size when there is none of the type.
inline Box boxOf(const QByteArray &file, const QByteArray &type)
{
    for (const Box &box : boxesOf(file))
        if (box.type == type)
            return box;
    return {};
}

// The same recording the way music shops order it: the index before the sound. Of a file of one
// chunk, as short takes are, or of several.
inline QByteArray withIndexFirst(const QByteArray &file)
{
    const Box index = boxOf(file, "moov");
    const Box sound = boxOf(file, "mdat");
    QByteArray moov = file.mid(index.at, index.size);
    char *table = moov.data() + moov.indexOf("stco") + 8; // behind type, version and flags
    const auto count = qFromBigEndian<quint32>(table);
    for (quint32 chunk = 1; chunk <= count; ++chunk) {
        char *place = table + 4 * chunk;
        const auto moved = static_cast<quint32>(index.size);
        qToBigEndian(qFromBigEndian<quint32>(place) + moved, place);
    }
    return file.first(sound.at) + moov + file.mid(sound.at, sound.size);
}

} // namespace tarvelo::tests
