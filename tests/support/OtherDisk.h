#pragma once

#include <QByteArrayView>

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace tarvelo::tests {

// While this is true, every two folders lie on disks of their own: no file is renamed from one into
// the other. For one source file of a test.
inline bool foldersAreDisks = false;

inline QByteArrayView folderOf(const char *path)
{
    const QByteArrayView whole(path);
    return whole.first(std::max<qsizetype>(whole.lastIndexOf('/'), 0));
}

} // namespace tarvelo::tests

// Stands in for the C library's in this program.
extern "C" int renameOnDisks(const char *from, const char *to) noexcept __asm__("rename");
extern "C" int renameOnDisks(const char *from, const char *to) noexcept
{
    using tarvelo::tests::folderOf;
    if (tarvelo::tests::foldersAreDisks && folderOf(from) != folderOf(to)) {
        errno = EXDEV;
        return -1;
    }
    return static_cast<int>(::syscall(SYS_renameat2, AT_FDCWD, from, AT_FDCWD, to, 0));
}
extern "C" int renameOnDisks2(int fromFolder, const char *from, int toFolder, const char *to,
                              unsigned flags) noexcept __asm__("renameat2");
extern "C" int renameOnDisks2(int fromFolder, const char *from, int toFolder, const char *to,
                              unsigned flags) noexcept
{
    using tarvelo::tests::folderOf;
    if (tarvelo::tests::foldersAreDisks && folderOf(from) != folderOf(to)) {
        errno = EXDEV;
        return -1;
    }
    return static_cast<int>(::syscall(SYS_renameat2, fromFolder, from, toFolder, to, flags));
}
