#pragma once

#include <cerrno>
#include <cstddef>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace tarvelo::tests {

// While one lives, ordinary files cannot be read at one place, as on a disk that wears out: so
// often, then they can. One at a time; for one file of a test, since it stands before the C
// library.
class BadPlace final
{
public:
    static constexpr int Always = 1 << 30;

    BadPlace(off_t place, int error, int times = Always)
    {
        s_place = place;
        s_error = error;
        s_times = times;
    }
    BadPlace(const BadPlace &) = delete;
    BadPlace &operator=(const BadPlace &) = delete;
    ~BadPlace() { s_times = 0; }

    static ssize_t read(int file, void *bytes, std::size_t count, off_t at)
    {
        struct stat status = {};
        const bool isHit = s_times > 0 && at + static_cast<off_t>(count) > s_place &&
                           at <= s_place && ::fstat(file, &status) == 0 && S_ISREG(status.st_mode);
        if (isHit && at < s_place) // up to there, as a disk does
            count = static_cast<std::size_t>(s_place - at);
        if (isHit && at == s_place) {
            --s_times;
            errno = s_error;
            return -1;
        }
        return ::syscall(SYS_pread64, file, bytes, count, at);
    }

private:
    inline static off_t s_place = 0;
    inline static int s_error = 0;
    inline static int s_times = 0;
};

} // namespace tarvelo::tests

extern "C" {

inline __attribute__((used)) ssize_t pread(int file, void *bytes, std::size_t count, off_t at)
{
    return tarvelo::tests::BadPlace::read(file, bytes, count, at);
}

inline __attribute__((used)) ssize_t pread64(int file, void *bytes, std::size_t count, off_t at)
{
    return tarvelo::tests::BadPlace::read(file, bytes, count, at);
}

} // extern "C"
