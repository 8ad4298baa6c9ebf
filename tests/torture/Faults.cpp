#include "torture/Faults.h"

#include "torture/CallStacks.h"
#include "torture/Layer.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <cstdio>
#include <fcntl.h>
#include <sys/syscall.h>

namespace tarvelo::torture {

namespace {

constexpr std::array Kinds{"write",    "sync",   "rename", "open",  "read",
                           "truncate", "unlink", "list",   "entry", "memory"};

std::atomic<bool> g_counts = false;
std::array<std::atomic<long>, Kinds.size()> g_calls;

Fault wantedFault()
{
    Fault fault;
    char error[16] = "";
    std::sscanf(setting("TORTURE_FAULT"), "%15s %15s %ld", fault.kind, error, &fault.number);
    fault.isShort = std::strcmp(error, "short") == 0;
    fault.error = fault.isShort ? 0 : std::atoi(error);
    return fault;
}

int countFile()
{
    return static_cast<int>(
        ::syscall(SYS_open, setting("TORTURE_COUNT"), O_WRONLY | O_CREAT | O_TRUNC, 0600));
}

void tellStruck()
{
    const int file = countFile();
    static_cast<void>(::syscall(SYS_write, file, "struck 1\n", 9));
    ::syscall(SYS_close, file);
}

void writeCounts()
{
    g_counts = false;
    if (fault().kind[0] != '\0')
        return;
    const int file = countFile();
    for (std::size_t kind = 0; kind < Kinds.size(); ++kind)
        ::dprintf(file, "%s %ld\n", Kinds.at(kind), g_calls.at(kind).load());
    writePlaces(file);
    ::syscall(SYS_close, file);
}

class Count final
{
public:
    Count() { g_counts = *setting("TORTURE_BEGIN") != '\0'; }
    ~Count() { writeCounts(); }
};

const Count g_count;

} // namespace

const Fault &fault()
{
    static const Fault wanted = wantedFault();
    return wanted;
}

bool isCounting()
{
    return g_counts;
}

bool isCounted(const char *kind)
{
    return g_counts && (fault().kind[0] == '\0' || std::strcmp(kind, fault().kind) == 0);
}

long count(const char *kind)
{
    if (!isCounted(kind))
        return 0;
    const auto *const at = std::ranges::find_if(
        Kinds, [kind](const char *known) { return std::strcmp(kind, known) == 0; });
    return ++g_calls.at(static_cast<std::size_t>(at - Kinds.begin()));
}

bool isStruck(const char *kind, long number)
{
    if (number == 0 || number != fault().number || std::strcmp(kind, fault().kind) != 0)
        return false;
    tellStruck();
    return true;
}

bool strikes(const char *kind)
{
    return isStruck(kind, count(kind));
}

extern "C" {

void torture_begin()
{
    g_counts = true;
}

// Of a program that ends without ceremony.
void torture_end()
{
    writeCounts();
}

} // extern "C"

} // namespace tarvelo::torture
