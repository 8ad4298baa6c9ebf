#pragma once

#include <QByteArrayView>

#include <optional>

namespace tarvelo::engine {

class ByteSource;

// What the boxes of a file of MPEG-4 tell before it is given to a reader.
struct MovieOutline
{
    // So far it makes sense. A file that was cut off in the description of a fragment ends before
    // that, since a reader would refuse all of it.
    qsizetype size = 0;
    // It grew while it was recorded; the index knows nothing of what is in the fragments.
    bool holdsFragments = false;
};

// Whether a file may be one of MPEG-4, by its first bytes.
bool beginsLikeMovie(QByteArrayView head);

// Nothing for a file with fragments and a track that has no number: FFmpeg would count to a
// thousand million for each row of them.
std::optional<MovieOutline> outlineOf(ByteSource &movie);

} // namespace tarvelo::engine
