// The part of OneFault that refuses memory. Where one of our libraries does not look at what it got
// and ends the program for it, that is said: "ended by a library", on stderr.

#include "torture/CallStacks.h"
#include "torture/Faults.h"
#include "torture/Layer.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdint>
#include <cstring>
#include <link.h>
#include <string_view>
#include <sys/syscall.h>
#include <ucontext.h>
#include <unistd.h>

extern "C" {
void *__libc_malloc(size_t size);
void *__libc_calloc(size_t count, size_t size);
void *__libc_realloc(void *memory, size_t size);
void *__libc_memalign(size_t alignment, size_t size);
}

namespace tarvelo::torture {

namespace {

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
    if (!isCounted("memory") || !isOurs(caller))
        return false;
    const long number = count("memory");
    if (fault().kind[0] == '\0')
        noteCallStack(number);
    if (!isStruck("memory", number))
        return false;
    errno = ENOMEM;
    return true;
}

void sayWhoseCodeItWas(int, siginfo_t *, void *context)
{
    const auto &registers = static_cast<const ucontext_t *>(context)->uc_mcontext;
    // Who called what is not there stands where the call would have come back to.
#ifdef __x86_64__
    const auto called = static_cast<std::uintptr_t>(registers.gregs[REG_RIP]);
    const auto place =
        called != 0 ? called : *reinterpret_cast<const std::uintptr_t *>(registers.gregs[REG_RSP]);
#else
    const auto place =
        static_cast<std::uintptr_t>(registers.pc != 0 ? registers.pc : registers.regs[30]);
#endif
    constexpr std::string_view Words = "ended by a library\n";
    if (isOurs(reinterpret_cast<const void *>(place)))
        ::syscall(SYS_write, STDERR_FILENO, Words.data(), Words.size());
}

bool listensForTheEnd()
{
    struct sigaction action = {};
    action.sa_sigaction = sayWhoseCodeItWas;
    action.sa_flags = static_cast<int>(SA_SIGINFO | SA_RESETHAND); // and then it ends as it would
    return std::strcmp(fault().kind, "memory") == 0 && ::sigaction(SIGSEGV, &action, nullptr) == 0;
}

// Nobody counts before that.
const bool g_listens = listensForTheEnd();
const int g_ranges = ::dl_iterate_phdr(noteRanges, nullptr);

} // namespace

extern "C" {

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
