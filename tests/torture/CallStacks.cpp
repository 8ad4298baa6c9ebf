#include "torture/CallStacks.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <execinfo.h>
#include <mutex>

namespace tarvelo::torture {

namespace {

// Who is further out tells more of the work than of the place.
constexpr int MostFrames = 16;

struct Place
{
    std::uint64_t stack = 0; // 0 where there is none
    long number = 0;
};

std::mutex g_mutex;
std::array<Place, 1 << 15> g_places; // a hash table
std::size_t g_placesCount = 0;

std::uint64_t stackHere()
{
    std::array<void *, MostFrames> frames{};
    const int count = ::backtrace(frames.data(), MostFrames);
    std::uint64_t hash = 14695981039346656037U; // FNV-1a, by words
    for (int at = 0; at < count; ++at) {
        hash ^= reinterpret_cast<std::uintptr_t>(frames.at(static_cast<std::size_t>(at)));
        hash *= 1099511628211U;
        hash ^= hash >> 32;
    }
    return hash | 1;
}

} // namespace

void noteCallStack(long number)
{
    const std::uint64_t stack = stackHere();
    const std::lock_guard lock(g_mutex);
    if (g_placesCount == g_places.size() - 1)
        return;
    std::size_t at = stack / 2 % g_places.size();
    while (g_places.at(at).stack != 0 && g_places.at(at).stack != stack)
        at = (at + 1) % g_places.size();
    if (g_places.at(at).stack == stack)
        return;
    g_places.at(at) = {stack, number};
    ++g_placesCount;
}

void writePlaces(int file)
{
    const std::lock_guard lock(g_mutex);
    ::dprintf(file, "places");
    for (const Place &place : g_places)
        if (place.stack != 0)
            ::dprintf(file, " %ld", place.number);
    ::dprintf(file, "\n");
}

} // namespace tarvelo::torture
