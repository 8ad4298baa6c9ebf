#pragma once

#include <QString>

class QDateTime;

namespace tarvelo::platform {
class Dates;
}

namespace tarvelo::audio {

// The day, as the query for a day has it, on which a saved recording was made: by the time at which
// its file was last changed, or by its name where that cannot be.
QString dayOfRecording(const QString &path, const QDateTime &modified,
                       const platform::Dates &dates);

} // namespace tarvelo::audio
