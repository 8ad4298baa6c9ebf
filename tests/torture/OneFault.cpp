// Put before a program with LD_PRELOAD: lets one call fail, once. TORTURE_FAULT says which: a kind
// (write, sync, rename, open, truncate, unlink, memory), an errno or "short" for a write that
// writes half, and the number of the call, from 1, or 0 for none. Files count when they lie below
// TORTURE_FOLDER; memory counts when one of the libraries asks for it whose names TORTURE_LIBRARIES
// holds. Counting begins at the start when TORTURE_BEGIN is set, else when the program calls
// torture_begin(). Without TORTURE_FAULT nothing fails, and at the end the file that TORTURE_COUNT
// names has a line for each kind: its name, and how many calls there were.

#include "torture/Layer.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <cstdarg>
#include <cstdint>
#include <cstdio>
#include <fcntl.h>
#include <link.h>
#include <string_view>
#include <sys/syscall.h>

extern "C" {
void *__libc_malloc(size_t size);
void *__libc_calloc(size_t count, size_t size);
void *__libc_realloc(void *memory, size_t size);
void *__libc_memalign(size_t alignment, size_t size);
}

namespace tarvelo::torture {

namespace {

struct Fault
{
    char kind[16] = "";
    int error = 0;
    bool isShort = false;
    long number = 0;

    static Fault wanted()
    {
        Fault fault;
        char error[16] = "";
        std::sscanf(setting("TORTURE_FAULT"), "%15s %15s %ld", fault.kind, error, &fault.number);
        fault.isShort = std::strcmp(error, "short") == 0;
        fault.error = fault.isShort ? 0 : std::atoi(error);
        return fault;
    }
};

constexpr std::array Kinds{"write", "sync", "rename", "open", "truncate", "unlink", "memory"};

std::atomic<bool> g_counts = false;
std::array<std::atomic<long>, Kinds.size()> g_calls;

const Fault &fault()
{
    static const Fault wanted = Fault::wanted();
    return wanted;
}

bool isCounted(const char *kind)
{
    return g_counts && (fault().kind[0] == '\0' || std::strcmp(kind, fault().kind) == 0);
}

// Whether it is this call that fails.
bool strikes(const char *kind)
{
    if (!isCounted(kind))
        return false;
    const auto *const at = std::ranges::find_if(
        Kinds, [kind](const char *known) { return std::strcmp(kind, known) == 0; });
    return ++g_calls.at(static_cast<std::size_t>(at - Kinds.begin())) == fault().number;
}

template <typename Result>
Result failure()
{
    errno = fault().error;
    return static_cast<Result>(-1);
}

bool isOurFile(int descriptor)
{
    if (!g_counts)
        return false;
    const int before = errno;
    const bool is = isOurs(pathOf(descriptor).c_str());
    errno = before;
    return is;
}

int openAt(int folder, const char *path, int flags, mode_t mode)
{
    static auto *const next = real<int(int, const char *, int, ...)>("openat");
    if (g_counts && isOurs(whole(folder, path).c_str()) && strikes("open"))
        return failure<int>();
    return next(folder, path, flags, mode);
}

// Only what would have been written to a file is held back.
template <typename Write>
ssize_t writes(int file, size_t size, Write write)
{
    if (!isOurFile(file) || !strikes("write"))
        return write(size);
    return fault().isShort && size > 1 ? write(size / 2) : failure<ssize_t>();
}

int truncateTo(int file, off64_t size)
{
    static auto *const next = real<int(int, off64_t)>("ftruncate64");
    return isOurFile(file) && strikes("truncate") ? failure<int>() : next(file, size);
}

// Where the code of our libraries lies. All of them are there before anything runs.
struct Range
{
    std::uintptr_t begin = 0;
    std::uintptr_t end = 0;
};
std::array<Range, 32> g_ours;
std::size_t g_oursCount = 0;

bool isOfOurLibraries(std::string_view path)
{
    std::string_view name = path.substr(path.rfind('/') + 1);
    name = name.substr(0, name.find(".so"));
    const std::string_view libraries = setting("TORTURE_LIBRARIES");
    return !name.empty() && libraries.find(name) != std::string_view::npos;
}

int noteRanges(dl_phdr_info *library, std::size_t, void *)
{
    for (int at = 0; isOfOurLibraries(library->dlpi_name) && at < library->dlpi_phnum; ++at) {
        const auto &part = library->dlpi_phdr[at];
        const std::uintptr_t begin = library->dlpi_addr + part.p_vaddr;
        if (part.p_type == PT_LOAD && (part.p_flags & PF_X) != 0 && g_oursCount < g_ours.size())
            g_ours.at(g_oursCount++) = {begin, begin + part.p_memsz};
    }
    return 0;
}

// Is asked very often, and must not ask for memory itself.
bool isOurs(const void *caller)
{
    const auto place = reinterpret_cast<std::uintptr_t>(caller);
    return std::any_of(g_ours.begin(), g_ours.begin() + g_oursCount, [place](const Range &range) {
        return place >= range.begin && place < range.end;
    });
}

bool isOutOfMemory(const void *caller)
{
    if (!isCounted("memory") || !isOurs(caller) || !strikes("memory"))
        return false;
    errno = ENOMEM;
    return true;
}

class Count final
{
public:
    Count()
    {
        ::dl_iterate_phdr(noteRanges, nullptr);
        g_counts = *setting("TORTURE_BEGIN") != '\0';
    }
    ~Count()
    {
        g_counts = false;
        if (fault().kind[0] != '\0')
            return;
        const int file = static_cast<int>(
            ::syscall(SYS_open, setting("TORTURE_COUNT"), O_WRONLY | O_CREAT | O_TRUNC, 0600));
        for (std::size_t kind = 0; kind < Kinds.size(); ++kind)
            ::dprintf(file, "%s %ld\n", Kinds.at(kind), g_calls.at(kind).load());
        ::syscall(SYS_close, file);
    }
};

const Count g_count;

} // namespace

extern "C" {

void torture_begin()
{
    g_counts = true;
}

int open(const char *path, int flags, ...)
{
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = va_arg(rest, mode_t);
    va_end(rest);
    return openAt(AT_FDCWD, path, flags, mode);
}

int open64(const char *path, int flags, ...)
{
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = va_arg(rest, mode_t);
    va_end(rest);
    return openAt(AT_FDCWD, path, flags, mode);
}

int openat(int folder, const char *path, int flags, ...)
{
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = va_arg(rest, mode_t);
    va_end(rest);
    return openAt(folder, path, flags, mode);
}

int openat64(int folder, const char *path, int flags, ...)
{
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = va_arg(rest, mode_t);
    va_end(rest);
    return openAt(folder, path, flags, mode);
}

ssize_t write(int file, const void *data, size_t size)
{
    static auto *const next = real<ssize_t(int, const void *, size_t)>("write");
    return writes(file, size, [&](size_t length) { return next(file, data, length); });
}

ssize_t pwrite64(int file, const void *data, size_t size, off64_t offset)
{
    static auto *const next = real<ssize_t(int, const void *, size_t, off64_t)>("pwrite64");
    return writes(file, size, [&](size_t length) { return next(file, data, length, offset); });
}

ssize_t pwrite(int file, const void *data, size_t size, off_t offset)
{
    return pwrite64(file, data, size, offset);
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
    static auto *const next = real<int(int, off_t, off_t)>("posix_fallocate");
    return isOurFile(file) && strikes("truncate") ? fault().error : next(file, offset, size);
}

int posix_fallocate64(int file, off64_t offset, off64_t size)
{
    return posix_fallocate(file, offset, size);
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

int mkdir(const char *path, mode_t mode) noexcept
{
    static auto *const next = real<int(const char *, mode_t)>("mkdir");
    return isOurs(path) && strikes("open") ? failure<int>() : next(path, mode);
}

void *malloc(size_t size) noexcept
{
    return isOutOfMemory(__builtin_return_address(0)) ? nullptr : __libc_malloc(size);
}

void *calloc(size_t count, size_t size) noexcept
{
    return isOutOfMemory(__builtin_return_address(0)) ? nullptr : __libc_calloc(count, size);
}

void *realloc(void *memory, size_t size) noexcept
{
    return isOutOfMemory(__builtin_return_address(0)) ? nullptr : __libc_realloc(memory, size);
}

int posix_memalign(void **memory, size_t alignment, size_t size) noexcept
{
    if (isOutOfMemory(__builtin_return_address(0)))
        return ENOMEM;
    *memory = __libc_memalign(alignment, size);
    return *memory ? 0 : ENOMEM;
}

} // extern "C"

} // namespace tarvelo::torture
