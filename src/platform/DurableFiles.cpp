#include "platform/DurableFiles.h"

#include <QFile>
#include <QFileInfo>
#include <QStorageInfo>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tarvelo::platform {

namespace {

// -1 when there is none.
class Descriptor final
{
public:
    Descriptor(const QString &path, int flags)
        : m_number(::open(QFile::encodeName(path).constData(), flags | O_CLOEXEC | O_NOFOLLOW,
                          S_IRUSR | S_IWUSR))
    {
    }
    Descriptor(const Descriptor &) = delete;
    Descriptor &operator=(const Descriptor &) = delete;
    ~Descriptor()
    {
        if (m_number >= 0)
            ::close(m_number);
    }

    int number() const { return m_number; }

private:
    int m_number;
};

bool sync(const QString &path, int flags)
{
    const Descriptor file(path, O_RDONLY | flags);
    return file.number() >= 0 && ::fsync(file.number()) == 0;
}

} // namespace

bool renameDurably(const QString &from, const QString &to)
{
    if (!sync(from, 0) ||
        ::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) != 0)
        return false;
    sync(QFileInfo(to).path(), O_DIRECTORY);
    return true;
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
    if (file.number() < 0 || ::fstat(file.number(), &status) != 0 || !S_ISREG(status.st_mode))
        return false;
    if (::posix_fallocate(file.number(), 0, bytes) == 0)
        return true;
    ::unlink(QFile::encodeName(path).constData());
    return false;
}

} // namespace tarvelo::platform
