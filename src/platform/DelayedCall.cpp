#include "platform/DelayedCall.h"

#include <utility>

namespace tarvelo::platform {

DelayedCall::DelayedCall(Clock &clock, std::function<void()> operation)
    : m_clock(clock)
    , m_operation(std::move(operation))
{
}

void DelayedCall::schedule(std::chrono::milliseconds delay)
{
    const quint64 number = ++m_lastNumber;
    m_pending.push_back({number, m_clock.callAfter(delay, [this, number] { run(number); })});
}

void DelayedCall::run(quint64 number)
{
    std::erase_if(m_pending, [number](const Scheduled &one) { return one.number == number; });
    m_operation();
}

} // namespace tarvelo::platform
