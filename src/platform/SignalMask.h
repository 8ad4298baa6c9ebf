#pragma once

#include <csignal>

namespace tarvelo::platform {

// Signals are for the main thread: a thread begins with the mask of the one that starts it.
class AllSignalsBlocked final
{
public:
    AllSignalsBlocked()
    {
        sigset_t all;
        sigfillset(&all);
        pthread_sigmask(SIG_SETMASK, &all, &m_before);
    }
    AllSignalsBlocked(const AllSignalsBlocked &) = delete;
    AllSignalsBlocked &operator=(const AllSignalsBlocked &) = delete;
    ~AllSignalsBlocked() { pthread_sigmask(SIG_SETMASK, &m_before, nullptr); }

private:
    sigset_t m_before{};
};

} // namespace tarvelo::platform
