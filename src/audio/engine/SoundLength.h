#pragma once

#include <QString>

namespace tarvelo::engine {

// Seconds of sound that can be heard of the file; 0 when there are none. Reads all of the file. For
// any thread.
double secondsOfSound(const QString &path);

} // namespace tarvelo::engine
