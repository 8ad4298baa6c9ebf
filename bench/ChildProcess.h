#pragma once

#include <string>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace tarvelo::bench {

// Runs a program to its end and returns the processor seconds that it took, -1 when it failed.
inline double processorSecondsOf(const std::vector<std::string> &command)
{
    const pid_t child = fork();
    if (child == 0) {
        std::vector<char *> arguments;
        for (const std::string &argument : command)
            arguments.push_back(const_cast<char *>(argument.c_str()));
        arguments.push_back(nullptr);
        execvp(arguments.front(), arguments.data());
        _exit(127);
    }
    int status = 0;
    rusage usage{};
    if (wait4(child, &status, 0, &usage) != child || status != 0)
        return -1;
    const auto seconds = [](const timeval &time) {
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
    };
    return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

} // namespace tarvelo::bench
