#pragma once

#include <QString>

namespace tarvelo::platform {

// The file gets the other name, in the place of what had that, also on another disk; the names are
// forced to the disk. What had that name stays until the whole file is there, and the file keeps
// its own until then. False when it is still where it was; where that is another disk, a copy may
// have the other name by then, of which the disk did not say that it has it.
bool moveDurably(const QString &from, const QString &to);

// Byte for byte; false also when that cannot be known now.
bool isCopyOf(const QString &path, const QString &other);

} // namespace tarvelo::platform
