#pragma once

#include <climits>
#include <cstddef>
#include <pthread.h>

extern "C" {
#include <libavutil/mem.h>
}

namespace tarvelo::tests {

// While one lives FFmpeg is given no piece of memory larger than so many bytes.
class LittleMemory final
{
public:
    explicit LittleMemory(std::size_t largestPiece) { av_max_alloc(largestPiece); }
    LittleMemory(const LittleMemory &) = delete;
    LittleMemory &operator=(const LittleMemory &) = delete;
    ~LittleMemory() { av_max_alloc(INT_MAX); }
};

// While one lives no thread can begin: its stack would be larger than a process can be.
class NoMoreThreads final
{
public:
    NoMoreThreads()
    {
        pthread_attr_t huge;
        pthread_getattr_default_np(&huge);
        pthread_attr_getstacksize(&huge, &m_before);
        set(std::size_t{1} << 47U);
        pthread_attr_destroy(&huge);
    }
    NoMoreThreads(const NoMoreThreads &) = delete;
    NoMoreThreads &operator=(const NoMoreThreads &) = delete;
    ~NoMoreThreads() { set(m_before); }

private:
    static void set(std::size_t stackSize)
    {
        pthread_attr_t attributes;
        pthread_getattr_default_np(&attributes);
        pthread_attr_setstacksize(&attributes, stackSize);
        pthread_setattr_default_np(&attributes);
        pthread_attr_destroy(&attributes);
    }

    std::size_t m_before = 0;
};

} // namespace tarvelo::tests
