#pragma once

#include <csignal>
#include <sys/resource.h>

namespace tarvelo::tests {

// While one lives no file of this process can grow beyond the given size: a disk that is full.
class SmallFiles final
{
public:
    explicit SmallFiles(unsigned long bytes)
        : m_handler(std::signal(SIGXFSZ, SIG_IGN))
    {
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit small{bytes, m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &small);
    }
    SmallFiles(const SmallFiles &) = delete;
    SmallFiles &operator=(const SmallFiles &) = delete;
    ~SmallFiles()
    {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handler);
    }

private:
    void (*m_handler)(int);
    rlimit m_before{};
};

} // namespace tarvelo::tests
