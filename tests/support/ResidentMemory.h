#pragma once

#include <cstdio>
#include <unistd.h>

namespace tarvelo::tests {

// What this process holds of the machine's memory now, -1 when that is not known.
inline double residentMebibytes()
{
    long pages = 0;
    long resident = 0;
    std::FILE *statistics = std::fopen("/proc/self/statm", "r");
    if (!statistics || std::fscanf(statistics, "%ld %ld", &pages, &resident) != 2)
        return -1;
    std::fclose(statistics);
    return static_cast<double>(resident * sysconf(_SC_PAGESIZE)) / (1 << 20);
}

} // namespace tarvelo::tests
