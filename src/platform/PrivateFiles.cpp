#include "platform/PrivateFiles.h"

#include "platform/Descriptor.h"
#include "platform/DurableFiles.h"

#include <QFile>
#include <QFileInfo>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tarvelo::platform {

namespace {

constexpr mode_t OthersRights = S_IRWXG | S_IRWXO;

// By descriptor, so that what was looked at is what is changed. Not waited for the other end of a
// pipe.
void keepPrivate(const QString &path, mode_t kind, int flags)
{
    const Descriptor file(path, flags | O_RDONLY | O_NONBLOCK);
    struct stat status = {};
    if (file.isOpen() && ::fstat(file.number(), &status) == 0 &&
        (status.st_mode & S_IFMT) == kind && status.st_uid == ::geteuid() &&
        (status.st_mode & OthersRights) != 0)
        static_cast<void>(::fchmod(file.number(), status.st_mode & ~(OthersRights | S_IFMT)));
}

} // namespace

void createFolderIfMissing(const QString &folder)
{
    if (folder.isEmpty() || QFileInfo::exists(folder))
        return;
    createFolderIfMissing(QFileInfo(folder).path());
    // Else a power cut soon after a first start takes the folder, with all that was synced in it.
    if (::mkdir(QFile::encodeName(folder).constData(), S_IRWXU) == 0)
        syncFolderOf(folder);
}

void createFileIfMissing(const QString &path)
{
    const Descriptor made(path, O_WRONLY | O_CREAT | O_EXCL);
}

void keepFolderPrivate(const QString &folder)
{
    keepPrivate(folder, S_IFDIR, O_DIRECTORY);
}

void keepFilePrivate(const QString &path)
{
    keepPrivate(path, S_IFREG, 0);
}

} // namespace tarvelo::platform
