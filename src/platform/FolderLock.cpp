#include "platform/FolderLock.h"

#include <QFile>
#include <QString>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

namespace tarvelo::platform {

namespace {

// Whoever had the folder may have taken it away, with the file, while we waited for the lock.
bool isStillThere(const QString &path, int lock)
{
    struct stat locked = {};
    struct stat named = {};
    return ::fstat(lock, &locked) == 0 &&
           ::stat(QFile::encodeName(path).constData(), &named) == 0 &&
           locked.st_ino == named.st_ino && locked.st_dev == named.st_dev;
}

} // namespace

bool FolderLock::own(const QString &folder)
{
    if (m_lock)
        return true;
    const QString path = folder + QStringLiteral("/.owner");
    m_lock.emplace(path, O_RDWR | O_CREAT);
    if (!m_lock->isOpen() || ::flock(m_lock->number(), LOCK_EX | LOCK_NB) != 0 ||
        !isStillThere(path, m_lock->number()))
        m_lock.reset();
    return owns();
}

} // namespace tarvelo::platform
