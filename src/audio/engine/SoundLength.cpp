#include "audio/engine/SoundLength.h"

#include "audio/engine/DecodedSource.h"
#include "audio/engine/SoundBytes.h"

namespace tarvelo::engine {

double secondsOfSound(const QString &path)
{
    const auto source = DecodedSource::open(soundBytesOf(path));
    return source ? source->seconds() : 0;
}

} // namespace tarvelo::engine
