#pragma once

#include "platform/Clock.h"

#include <QtGlobal>

#include <chrono>
#include <functional>
#include <memory>
#include <vector>

namespace tarvelo::platform {

// One operation that can be scheduled any number of times; each schedule runs it once. Cancelling
// takes back all that are still to come, as does destruction.
class DelayedCall final
{
public:
    DelayedCall(Clock &clock, std::function<void()> operation);
    DelayedCall(const DelayedCall &) = delete;
    DelayedCall &operator=(const DelayedCall &) = delete;

    int pendingCount() const { return static_cast<int>(m_pending.size()); }

    void schedule(std::chrono::milliseconds delay);
    void cancel() { m_pending.clear(); }

private:
    struct Scheduled
    {
        quint64 number;
        std::unique_ptr<Clock::Pending> handle;
    };

    void run(quint64 number);

    Clock &m_clock;
    std::function<void()> m_operation;
    quint64 m_lastNumber = 0;
    std::vector<Scheduled> m_pending;
};

} // namespace tarvelo::platform
