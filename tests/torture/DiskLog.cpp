// Put before a program with LD_PRELOAD: writes down everything that it does to the files below
// TORTURE_FOLDER, in its order and with the time, into the file that TORTURE_LOG names. From that
// scripts/torturing/disk.py knows what a disk may hold after a power cut at any moment.
//
// A record is a line "operation seconds offset length length-of-path length-of-other-path", then
// the path, the other path, and `length` bytes where the operation is "write".

#include "torture/Aliases.h"
#include "torture/Layer.h"

#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <ctime>
#include <fcntl.h>
#include <mutex>
#include <sys/syscall.h>
#include <sys/uio.h>
#include <vector>

namespace tarvelo::torture {

namespace {

// Whoever holds it does one thing to the disk and writes it down, so that the order is true.
std::mutex g_order;

int logFile()
{
    static const int descriptor = static_cast<int>(::syscall(
        SYS_open, setting("TORTURE_LOG"), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0600));
    return descriptor;
}

double now()
{
    timespec time = {};
    ::clock_gettime(CLOCK_MONOTONIC, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) / 1e9;
}

iovec part(const void *data, std::size_t size)
{
    return {const_cast<void *>(data), size};
}

void note(const char *operation, const std::string &path, const std::string &other = {},
          std::int64_t offset = 0, std::size_t length = 0, const void *data = nullptr)
{
    char head[200];
    const int size =
        std::snprintf(head, sizeof head, "%s %.6f %lld %zu %zu %zu\n", operation, now(),
                      static_cast<long long>(offset), length, path.size(), other.size());
    const iovec parts[] = {part(head, static_cast<std::size_t>(size)),
                           part(path.data(), path.size()), part(other.data(), other.size()),
                           part(data, data ? length : 0)};
    static_cast<void>(::syscall(SYS_writev, logFile(), parts, 4));
}

template <typename Do>
auto noted(bool isOurs, Do act, auto tell)
{
    if (!isOurs)
        return act();
    const std::lock_guard lock(g_order);
    const auto result = act();
    const int error = errno;
    if (result >= 0)
        tell(result);
    errno = error;
    return result;
}

int syncWith(const char *function, int file)
{
    const auto next = real<int(int)>(function);
    const std::string path = pathOf(file);
    return noted(
        isOurs(path.c_str()), [&] { return next(file); }, [&](int) { note("sync", path); });
}

// What has come to stand between two places of a file in another way than by writing.
void noteContent(int file, const std::string &path, off64_t from, ssize_t size)
{
    std::vector<char> content(static_cast<std::size_t>(size));
    const std::string name = "/proc/self/fd/" + std::to_string(file);
    const int reading = static_cast<int>(::syscall(SYS_open, name.c_str(), O_RDONLY | O_CLOEXEC));
    static_cast<void>(::pread64(reading, content.data(), content.size(), from));
    ::syscall(SYS_close, reading);
    note("write", path, {}, from, content.size(), content.data());
}

} // namespace

int openAt(int folder, const char *path, int flags, mode_t mode)
{
    static auto *const next = real<int(int, const char *, int, ...)>("openat");
    const std::string name = whole(folder, path);
    if (!isOurs(name.c_str()) || (flags & (O_CREAT | O_TRUNC)) == 0)
        return next(folder, path, flags, mode);
    const std::lock_guard lock(g_order);
    const bool wasThere = ::access(name.c_str(), F_OK) == 0;
    const int descriptor = next(folder, path, flags, mode);
    const int error = errno;
    if (descriptor >= 0 && !wasThere)
        note("create", name);
    else if (descriptor >= 0 && (flags & O_TRUNC) != 0)
        note("truncate", name);
    errno = error;
    return descriptor;
}

ssize_t writeAt(int file, const void *data, std::size_t size, off64_t offset)
{
    static auto *const next = real<ssize_t(int, const void *, size_t, off64_t)>("pwrite64");
    const std::string path = pathOf(file);
    return noted(
        isOurs(path.c_str()), [&] { return next(file, data, size, offset); },
        [&](ssize_t done) {
            note("write", path, {}, offset, static_cast<std::size_t>(done), data);
        });
}

ssize_t copyTo(int to, int from, off64_t *offset, size_t size)
{
    static auto *const next = real<ssize_t(int, int, off64_t *, size_t)>("sendfile64");
    const std::string path = pathOf(to);
    return noted(
        isOurs(path.c_str()), [&] { return next(to, from, offset, size); },
        [&](ssize_t done) { noteContent(to, path, ::lseek64(to, 0, SEEK_CUR) - done, done); });
}

int truncateTo(int file, off64_t size)
{
    static auto *const next = real<int(int, off64_t)>("ftruncate64");
    const std::string path = pathOf(file);
    return noted(
        isOurs(path.c_str()), [&] { return next(file, size); },
        [&](int) { note("truncate", path, {}, size); });
}

int allocateAt(int file, off64_t offset, off64_t size)
{
    static auto *const next = real<int(int, off_t, off_t)>("posix_fallocate");
    const std::string path = pathOf(file);
    return noted(
        isOurs(path.c_str()), [&] { return next(file, offset, size); },
        [&](int error) {
            if (error == 0)
                note("allocate", path, {}, offset + size);
        });
}

extern "C" {

ssize_t write(int file, const void *data, size_t size)
{
    static auto *const next = real<ssize_t(int, const void *, size_t)>("write");
    const std::string path = pathOf(file);
    return noted(
        isOurs(path.c_str()), [&] { return next(file, data, size); },
        [&](ssize_t done) {
            note("write", path, {}, ::lseek64(file, 0, SEEK_CUR) - done,
                 static_cast<std::size_t>(done), data);
        });
}

int fsync(int file)
{
    return syncWith("fsync", file);
}

int fdatasync(int file)
{
    return syncWith("fdatasync", file);
}

int fallocate64(int, int, off64_t, off64_t)
{
    errno = EOPNOTSUPP;
    return -1;
}

int rename(const char *from, const char *to) noexcept
{
    static auto *const next = real<int(const char *, const char *)>("rename");
    return noted(
        isOurs(from) || isOurs(to), [&] { return next(from, to); },
        [&](int) { note("rename", from, to); });
}

int renameat2(int folder, const char *from, int toFolder, const char *to, unsigned flags) noexcept
{
    static auto *const next =
        real<int(int, const char *, int, const char *, unsigned)>("renameat2");
    const std::string source = whole(folder, from);
    const std::string target = whole(toFolder, to);
    return noted(
        isOurs(source.c_str()) || isOurs(target.c_str()),
        [&] { return next(folder, from, toFolder, to, flags); },
        [&](int) { note((flags & RENAME_EXCHANGE) != 0 ? "swap" : "rename", source, target); });
}

int link(const char *from, const char *to) noexcept
{
    static auto *const next = real<int(const char *, const char *)>("link");
    return noted(
        isOurs(to), [&] { return next(from, to); }, [&](int) { note("link", from, to); });
}

int unlink(const char *path) noexcept
{
    static auto *const next = real<int(const char *)>("unlink");
    return noted(
        isOurs(path), [&] { return next(path); }, [&](int) { note("unlink", path); });
}

int rmdir(const char *path) noexcept
{
    static auto *const next = real<int(const char *)>("rmdir");
    return noted(
        isOurs(path), [&] { return next(path); }, [&](int) { note("unlink", path); });
}

int mkdir(const char *path, mode_t mode) noexcept
{
    static auto *const next = real<int(const char *, mode_t)>("mkdir");
    return noted(
        isOurs(path), [&] { return next(path, mode); }, [&](int) { note("mkdir", path); });
}

} // extern "C"

} // namespace tarvelo::torture
