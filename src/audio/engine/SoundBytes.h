#pragma once

#include <QByteArray>
#include <QString>

namespace tarvelo::engine {

// All of a file of sound, read into memory once. Null for a file that is missing, cannot be read,
// is empty, or is no ordinary file; for a large one that does not begin like sound; and for one
// that is too large to be held. Of a file that changes meanwhile, or lies on a disk with a bad
// place, it is what could be read up to there, never more than was there at first.
QByteArray soundBytesOf(const QString &path);

} // namespace tarvelo::engine
