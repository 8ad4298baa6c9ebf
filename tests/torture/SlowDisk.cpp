// Put before a program with LD_PRELOAD: a disk that needs as many milliseconds as TORTURE_SLOWNESS
// says until it has taken what is forced to it. How slow it is is what is shown, so that nobody
// waits for a state here.

#include "torture/Layer.h"

#include <poll.h>

namespace tarvelo::torture {

namespace {

int syncSlowly(const char *function, int file)
{
    ::poll(nullptr, 0, std::atoi(setting("TORTURE_SLOWNESS")));
    return real<int(int)>(function)(file);
}

} // namespace

extern "C" {

int fsync(int file)
{
    return syncSlowly("fsync", file);
}

int fdatasync(int file)
{
    return syncSlowly("fdatasync", file);
}

} // extern "C"

} // namespace tarvelo::torture
