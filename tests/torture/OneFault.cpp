// Put before a program with LD_PRELOAD: lets one call fail, once. TORTURE_FAULT says which: a kind
// (write, sync, rename, open, read, truncate, unlink, list for opening a folder, entry for the next
// name in it, memory), an errno or "short" for a write that writes half, and the number of the
// call, from 1, or 0 for none. Files count when they lie below TORTURE_FOLDER; memory counts when
// one of the libraries asks for it whose names TORTURE_LIBRARIES holds. Counting begins at the
// start when TORTURE_BEGIN is set, else when the program calls torture_begin(). Once it has failed
// the file that TORTURE_COUNT names says so. Without TORTURE_FAULT nothing fails, and at the end
// that file has a line for each kind: its name, and how many calls there were; and one that tells
// of which calls for memory none before came from the same place.

#include "torture/Aliases.h"
#include "torture/Faults.h"
#include "torture/Layer.h"

#include <cerrno>
#include <dirent.h>
#include <fcntl.h>

namespace tarvelo::torture {

namespace {

template <typename Result>
Result failure()
{
    errno = fault().error;
    return static_cast<Result>(-1);
}

bool isOurFile(int descriptor)
{
    if (!isCounting())
        return false;
    const int before = errno;
    const bool is = isOurs(pathOf(descriptor).c_str());
    errno = before;
    return is;
}

// Only what would have been written to a file is held back.
template <typename Write>
ssize_t writes(int file, size_t size, Write write)
{
    if (!isOurFile(file) || !strikes("write"))
        return write(size);
    return fault().isShort ? write((size + 1) / 2) : failure<ssize_t>();
}

template <typename Read>
ssize_t reads(int file, Read read)
{
    return isOurFile(file) && strikes("read") ? failure<ssize_t>() : read();
}

template <typename Entry>
Entry *nextOf(DIR *folder, const char *function)
{
    if (isOurFile(::dirfd(folder)) && strikes("entry")) {
        errno = fault().error;
        return nullptr;
    }
    return real<Entry *(DIR *)>(function)(folder);
}

} // namespace

int openAt(int folder, const char *path, int flags, mode_t mode)
{
    static auto *const next = real<int(int, const char *, int, ...)>("openat");
    if (isCounting() && isOurs(whole(folder, path).c_str()) && strikes("open"))
        return failure<int>();
    return next(folder, path, flags, mode);
}

ssize_t writeAt(int file, const void *data, size_t size, off64_t offset)
{
    static auto *const next = real<ssize_t(int, const void *, size_t, off64_t)>("pwrite64");
    return writes(file, size, [&](size_t length) { return next(file, data, length, offset); });
}

ssize_t copyTo(int to, int from, off64_t *offset, size_t size)
{
    static auto *const next = real<ssize_t(int, int, off64_t *, size_t)>("sendfile64");
    return writes(to, size, [&](size_t length) { return next(to, from, offset, length); });
}

int truncateTo(int file, off64_t size)
{
    static auto *const next = real<int(int, off64_t)>("ftruncate64");
    return isOurFile(file) && strikes("truncate") ? failure<int>() : next(file, size);
}

int allocateAt(int file, off64_t offset, off64_t size)
{
    static auto *const next = real<int(int, off_t, off_t)>("posix_fallocate");
    return isOurFile(file) && strikes("truncate") ? fault().error : next(file, offset, size);
}

extern "C" {

ssize_t write(int file, const void *data, size_t size)
{
    static auto *const next = real<ssize_t(int, const void *, size_t)>("write");
    return writes(file, size, [&](size_t length) { return next(file, data, length); });
}

ssize_t read(int file, void *data, size_t size)
{
    static auto *const next = real<ssize_t(int, void *, size_t)>("read");
    return reads(file, [&] { return next(file, data, size); });
}

ssize_t pread64(int file, void *data, size_t size, off64_t offset)
{
    static auto *const next = real<ssize_t(int, void *, size_t, off64_t)>("pread64");
    return reads(file, [&] { return next(file, data, size, offset); });
}

ssize_t pread(int file, void *data, size_t size, off_t offset)
{
    return pread64(file, data, size, offset);
}

DIR *opendir(const char *path)
{
    static auto *const next = real<DIR *(const char *)>("opendir");
    if (isCounting() && isOurs(path) && strikes("list")) {
        errno = fault().error;
        return nullptr;
    }
    return next(path);
}

dirent *readdir(DIR *folder)
{
    return nextOf<dirent>(folder, "readdir");
}

dirent64 *readdir64(DIR *folder)
{
    return nextOf<dirent64>(folder, "readdir64");
}

int fsync(int file)
{
    static auto *const next = real<int(int)>("fsync");
    return isOurFile(file) && strikes("sync") ? failure<int>() : next(file);
}

int fdatasync(int file)
{
    static auto *const next = real<int(int)>("fdatasync");
    return isOurFile(file) && strikes("sync") ? failure<int>() : next(file);
}

int rename(const char *from, const char *to) noexcept
{
    static auto *const next = real<int(const char *, const char *)>("rename");
    return isOurs(to) && strikes("rename") ? failure<int>() : next(from, to);
}

int renameat2(int folder, const char *from, int toFolder, const char *to, unsigned flags) noexcept
{
    static auto *const next =
        real<int(int, const char *, int, const char *, unsigned)>("renameat2");
    return isOurs(whole(toFolder, to).c_str()) && strikes("rename")
               ? failure<int>()
               : next(folder, from, toFolder, to, flags);
}

int unlink(const char *path) noexcept
{
    static auto *const next = real<int(const char *)>("unlink");
    return isOurs(path) && strikes("unlink") ? failure<int>() : next(path);
}

int link(const char *from, const char *to) noexcept
{
    static auto *const next = real<int(const char *, const char *)>("link");
    return isOurs(to) && strikes("rename") ? failure<int>() : next(from, to);
}

int linkat(int folder, const char *from, int toFolder, const char *to, int flags) noexcept
{
    static auto *const next = real<int(int, const char *, int, const char *, int)>("linkat");
    return isOurs(whole(toFolder, to).c_str()) && strikes("rename")
               ? failure<int>()
               : next(folder, from, toFolder, to, flags);
}

int mkdir(const char *path, mode_t mode) noexcept
{
    static auto *const next = real<int(const char *, mode_t)>("mkdir");
    return isOurs(path) && strikes("open") ? failure<int>() : next(path, mode);
}

} // extern "C"

} // namespace tarvelo::torture
