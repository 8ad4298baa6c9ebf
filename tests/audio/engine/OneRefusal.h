#pragma once

#include <atomic>
#include <cerrno>
#include <cstddef>
#include <cstring>
#include <dlfcn.h>

extern "C" {
void *__libc_memalign(std::size_t alignment, std::size_t size);
void *__libc_realloc(void *memory, std::size_t size);
}

namespace tarvelo::tests {

// While one lives the n-th piece of memory that FFmpeg asks for is refused, from 1, and all others
// are given. One at a time; for one file of a test, since it stands before the C library.
class OneRefusal final
{
public:
    explicit OneRefusal(int number) { s_left = number; }
    OneRefusal(const OneRefusal &) = delete;
    OneRefusal &operator=(const OneRefusal &) = delete;
    ~OneRefusal() { s_left = 0; }

    // False when FFmpeg did not ask as often.
    static bool hasStruck() { return s_left <= 0; }

    static bool strikes(const void *caller)
    {
        return s_left > 0 && isFfmpeg(caller) && --s_left == 0;
    }

private:
    static bool isFfmpeg(const void *caller)
    {
        Dl_info place = {};
        if (::dladdr(caller, &place) == 0 || !place.dli_fname)
            return false;
        const char *slash = std::strrchr(place.dli_fname, '/');
        const char *name = slash ? slash + 1 : place.dli_fname;
        return std::strncmp(name, "libav", 5) == 0 || std::strncmp(name, "libsw", 5) == 0;
    }

    inline static std::atomic<int> s_left = 0;
};

} // namespace tarvelo::tests

extern "C" {

inline __attribute__((used)) int posix_memalign(void **memory, std::size_t alignment,
                                                std::size_t size) noexcept
{
    if (tarvelo::tests::OneRefusal::strikes(__builtin_return_address(0)))
        return ENOMEM;
    *memory = __libc_memalign(alignment, size);
    return *memory ? 0 : ENOMEM;
}

inline __attribute__((used)) void *realloc(void *memory, std::size_t size) noexcept
{
    if (tarvelo::tests::OneRefusal::strikes(__builtin_return_address(0)))
        return nullptr;
    return __libc_realloc(memory, size);
}

} // extern "C"
