#pragma once

#include <QByteArray>

#include <algorithm>
#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <mutex>
#include <vector>

#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

// Calls of the system that fail for once, for the program and the libraries of the test that
// includes this: they find what stands here before what the system has. For one file of a test.
namespace tarvelo::tests {

struct Refusal
{
    QByteArray call = {}; // as "rename"
    QByteArray path = {}; // a part of one that the call is about
    int times = 0;
    int error = EIO;
};

inline std::vector<Refusal> &refusals()
{
    static std::vector<Refusal> refused;
    return refused;
}

// A journal is written by a thread of its own.
inline std::recursive_mutex &refusalsMutex()
{
    static std::recursive_mutex mutex;
    return mutex;
}

inline void refuse(const char *call, const char *path, int times = 1, int error = EIO)
{
    const std::lock_guard lock(refusalsMutex());
    refusals().push_back({call, path, times, error});
}
// Whichever it is, of those that are about such a path.
inline int &callsUntilRefusal()
{
    static int calls = 0;
    return calls;
}
inline QByteArray &callsAbout()
{
    static QByteArray path;
    return path;
}
inline void refuseCall(int number, const char *path = "")
{
    const std::lock_guard lock(refusalsMutex());
    callsUntilRefusal() = number;
    callsAbout() = path;
}
inline void refuseNothing()
{
    const std::lock_guard lock(refusalsMutex());
    refusals().clear();
    callsUntilRefusal() = 0;
}
// Whether all that was to be refused was asked for.
inline bool wasRefused()
{
    const std::lock_guard lock(refusalsMutex());
    return std::ranges::all_of(refusals(), [](const Refusal &one) { return one.times == 0; });
}

inline bool isRefused(const char *call, const char *path)
{
    const std::lock_guard lock(refusalsMutex());
    if (callsUntilRefusal() > 0 && path && strstr(path, callsAbout().constData()) &&
        --callsUntilRefusal() == 0) {
        errno = EIO;
        return true;
    }
    for (Refusal &refused : refusals()) {
        if (refused.times <= 0 || refused.call != call || !path ||
            !strstr(path, refused.path.constData()))
            continue;
        --refused.times;
        errno = refused.error;
        return true;
    }
    return false;
}

inline bool isRefused(const char *call, int file)
{
    {
        const std::lock_guard lock(refusalsMutex());
        if (refusals().empty() && callsUntilRefusal() == 0)
            return false;
    }
    char name[32];
    char path[4096] = {};
    snprintf(name, sizeof name, "/proc/self/fd/%d", file);
    return ::readlink(name, path, sizeof path - 1) > 0 && isRefused(call, path);
}

// Refuses one call about such a path after another, a run for each, and ends with a run in which no
// call was left to be refused: for (RefusedInTurn calls("/temp"); calls.areLeft();).
class RefusedInTurn final
{
public:
    explicit RefusedInTurn(const char *path)
        : m_path(path)
    {
    }

    bool areLeft()
    {
        if (m_areLeft)
            ++m_number;
        return m_areLeft;
    }
    void refuse() const { refuseCall(m_number, m_path); }
    void allow()
    {
        m_areLeft = callsUntilRefusal() == 0;
        refuseNothing();
    }
    int count() const { return m_number; }
    // For the message of a failure.
    QByteArray which() const { return "call " + QByteArray::number(m_number) + ' '; }

private:
    const char *m_path;
    int m_number = 0;
    bool m_areLeft = true;
};

} // namespace tarvelo::tests

#define REFUSABLE(result, name, parameters, arguments, about, failed)                              \
    extern "C" result name parameters                                                              \
    {                                                                                              \
        using Function = result(*) parameters;                                                     \
        static const auto real = reinterpret_cast<Function>(::dlsym(RTLD_NEXT, #name));            \
        return tarvelo::tests::isRefused(#name, about) ? failed : real arguments;                  \
    }

REFUSABLE(int, rename, (const char *from, const char *to) noexcept, (from, to), from, -1)
REFUSABLE(int, renameat2,
          (int fromFolder, const char *from, int toFolder, const char *to, unsigned flags) noexcept,
          (fromFolder, from, toFolder, to, flags), from, -1)
REFUSABLE(int, access, (const char *path, int mode) noexcept, (path, mode), path, -1)
REFUSABLE(int, mkdir, (const char *path, mode_t mode) noexcept, (path, mode), path, -1)
REFUSABLE(char *, mkdtemp, (char *pattern) noexcept, (pattern), pattern, nullptr)
REFUSABLE(int, unlink, (const char *path) noexcept, (path), path, -1)
REFUSABLE(int, fsync, (int file), (file), file, -1)
REFUSABLE(DIR *, opendir, (const char *path), (path), path, nullptr)
REFUSABLE(ssize_t, read, (int file, void *bytes, size_t count), (file, bytes, count), file, -1)
REFUSABLE(ssize_t, pwrite, (int file, const void *bytes, size_t count, off_t at),
          (file, bytes, count, at), file, -1)
REFUSABLE(ssize_t, pwrite64, (int file, const void *bytes, size_t count, off64_t at),
          (file, bytes, count, at), file, -1)
REFUSABLE(int, fdatasync, (int file), (file), file, -1)
REFUSABLE(int, ftruncate, (int file, off_t size) noexcept, (file, size), file, -1)
REFUSABLE(int, posix_fallocate, (int file, off_t at, off_t size), (file, at, size), file, EIO)

#define REFUSABLE_OPEN(name)                                                                       \
    extern "C" int name(const char *path, int flags, ...)                                          \
    {                                                                                              \
        va_list rest;                                                                              \
        va_start(rest, flags);                                                                     \
        const auto mode = (flags & O_CREAT) != 0 ? va_arg(rest, mode_t) : mode_t();                \
        va_end(rest);                                                                              \
        using Function = int (*)(const char *, int, ...);                                          \
        static const auto real = reinterpret_cast<Function>(::dlsym(RTLD_NEXT, #name));            \
        return tarvelo::tests::isRefused("open", path) ? -1 : real(path, flags, mode);             \
    }
REFUSABLE_OPEN(open)
REFUSABLE_OPEN(open64)
