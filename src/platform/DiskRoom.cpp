#include "platform/DiskRoom.h"

#include <QFile>

#include <sys/statvfs.h>

namespace tarvelo::platform {

std::optional<qint64> roomOnDisk(const QString &path)
{
    struct statvfs disk = {};
    // Some disks of the network and of phones tell no sizes at all.
    if (::statvfs(QFile::encodeName(path).constData(), &disk) != 0 || disk.f_blocks == 0)
        return std::nullopt;
    return static_cast<qint64>(disk.f_bavail) * static_cast<qint64>(disk.f_frsize);
}

} // namespace tarvelo::platform
