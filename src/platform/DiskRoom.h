#pragma once

#include <QString>

#include <optional>

namespace tarvelo::platform {

// The bytes that this user may still fill on the disk of `path`, which is there; what is kept back
// for the system's administrator does not count. None when nobody can say.
std::optional<qint64> roomOnDisk(const QString &path);

} // namespace tarvelo::platform
