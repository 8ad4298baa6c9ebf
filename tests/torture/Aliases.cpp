#include "torture/Aliases.h"

#include <cstdarg>
#include <fcntl.h>
#include <sys/sendfile.h>
#include <unistd.h>

// Where no file is to be made there is no mode, and whatever stands in its place goes unused.
#define OPENING(name, parameters, folder)                                                          \
    int name parameters                                                                            \
    {                                                                                              \
        va_list rest;                                                                              \
        va_start(rest, flags);                                                                     \
        const mode_t mode = va_arg(rest, mode_t);                                                  \
        va_end(rest);                                                                              \
        return openAt(folder, path, flags, mode);                                                  \
    }

namespace tarvelo::torture {

extern "C" {

OPENING(open, (const char *path, int flags, ...), AT_FDCWD)
OPENING(open64, (const char *path, int flags, ...), AT_FDCWD)
OPENING(openat, (int folder, const char *path, int flags, ...), folder)
OPENING(openat64, (int folder, const char *path, int flags, ...), folder)

ssize_t pwrite(int file, const void *data, size_t size, off_t offset)
{
    return writeAt(file, data, size, offset);
}

ssize_t pwrite64(int file, const void *data, size_t size, off64_t offset)
{
    return writeAt(file, data, size, offset);
}

ssize_t sendfile(int to, int from, off_t *offset, size_t size) noexcept
{
    return copyTo(to, from, offset, size);
}

ssize_t sendfile64(int to, int from, off64_t *offset, size_t size) noexcept
{
    return copyTo(to, from, offset, size);
}

int ftruncate(int file, off_t size) noexcept
{
    return truncateTo(file, size);
}

int ftruncate64(int file, off64_t size) noexcept
{
    return truncateTo(file, size);
}

int posix_fallocate(int file, off_t offset, off_t size)
{
    return allocateAt(file, offset, size);
}

int posix_fallocate64(int file, off64_t offset, off64_t size)
{
    return allocateAt(file, offset, size);
}

} // extern "C"

} // namespace tarvelo::torture
