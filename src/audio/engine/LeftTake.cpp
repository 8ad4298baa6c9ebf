#include "audio/engine/LeftTake.h"

#include "audio/engine/ByteSource.h"
#include "audio/engine/IndexedCopy.h"
#include "audio/engine/MovieOutline.h"
#include "audio/engine/SoundFileInput.h"
#include "audio/engine/TakeExtent.h"

#include <QFile>

#include <optional>

namespace tarvelo::engine {

double secondsOfLeftTake(const QString &path)
{
    const auto input =
        SoundFileInput::open(ByteSource::ofFile(path), SoundFileInput::Kind::Strange);
    return input ? input->seconds() : 0;
}

bool finishLeftTake(const QString &path)
{
    const auto take = ByteSource::ofFile(path);
    if (!take || !beginsLikeMovie(take->piece(0, 2 * sizeof(quint64))))
        return false;
    const auto outline = outlineOf(*take);
    if (!outline || take->hasFailed())
        return false;
    return !outline->holdsFragments ||
           replaceWithIndexedCopy(QFile::encodeName(path).toStdString(), std::nullopt);
}

} // namespace tarvelo::engine
