#pragma once

#include <QString>

namespace tarvelo::platform {

// The file gets the other name, in the place of what had that, also on another disk; the names are
// forced to the disk. What had that name stays until the whole file is there, and the file keeps
// its own until then. False when it is where it was.
bool moveDurably(const QString &from, const QString &to);

} // namespace tarvelo::platform
