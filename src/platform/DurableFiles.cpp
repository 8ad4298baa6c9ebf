#include "platform/DurableFiles.h"

#include "platform/Descriptor.h"

#include <QFile>
#include <QFileInfo>
#include <QStorageInfo>

#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tarvelo::platform {

namespace {

bool sync(const QString &path, int flags)
{
    const Descriptor file(path, O_RDONLY | flags);
    return file.isOpen() && ::fsync(file.number()) == 0;
}

} // namespace

bool renameDurably(const QString &from, const QString &to)
{
    if (!sync(from, 0) ||
        ::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) != 0)
        return false;
    syncFolderOf(to);
    // Of a name in each of two folders one may come back without the other one's going.
    if (QFileInfo(from).path() != QFileInfo(to).path())
        syncFolderOf(from);
    return true;
}

bool syncFolderOf(const QString &path)
{
    return sync(QFileInfo(path).path(), O_DIRECTORY);
}

bool removeDurably(const QString &path)
{
    return ::unlink(QFile::encodeName(path).constData()) == 0 && syncFolderOf(path);
}

bool holdRoom(const QString &path, qint64 bytes)
{
    const qint64 missing = bytes - QFileInfo(path).size();
    if (missing <= 0)
        return true;
    if (QStorageInfo(QFileInfo(path).path()).bytesAvailable() / 3 < missing)
        return false;
    const Descriptor file(path, O_RDWR | O_CREAT);
    struct stat status = {};
    if (!file.isOpen() || ::fstat(file.number(), &status) != 0 || !S_ISREG(status.st_mode))
        return false;
    if (::posix_fallocate(file.number(), 0, bytes) == 0)
        return true;
    ::unlink(QFile::encodeName(path).constData());
    return false;
}

} // namespace tarvelo::platform
