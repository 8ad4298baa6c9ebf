#include "support/FakeClock.h"

namespace tarvelo::tests {

class FakeClock::Handle final : public platform::Clock::Pending
{
public:
    Handle(std::shared_ptr<FakeClock *> clock, quint64 number)
        : m_clock(std::move(clock))
        , m_number(number)
    {
    }
    ~Handle() override
    {
        if (*m_clock)
            (*m_clock)->m_calls.erase(m_number);
    }

private:
    std::shared_ptr<FakeClock *> m_clock;
    quint64 m_number;
};

FakeClock::FakeClock(const QDateTime &start)
    : m_now(start.toUTC())
{
}

FakeClock::~FakeClock()
{
    *m_self = nullptr;
}

std::unique_ptr<platform::Clock::Pending> FakeClock::add(qint64 delay, qint64 interval,
                                                         std::function<void()> call)
{
    const quint64 number = ++m_lastNumber;
    m_calls.emplace(number, Call{m_elapsed + delay, interval, std::move(call)});
    return std::make_unique<Handle>(m_self, number);
}

std::unique_ptr<platform::Clock::Pending> FakeClock::callAfter(std::chrono::milliseconds delay,
                                                               std::function<void()> call)
{
    return add(delay.count(), 0, std::move(call));
}

std::unique_ptr<platform::Clock::Pending> FakeClock::callEvery(std::chrono::milliseconds interval,
                                                               std::function<void()> call)
{
    return add(interval.count(), interval.count(), std::move(call));
}

void FakeClock::set(const QDateTime &moment)
{
    m_now = moment.toUTC();
}

void FakeClock::advance(std::chrono::milliseconds by)
{
    const qint64 end = m_elapsed + by.count();
    for (;;) {
        auto next = m_calls.end();
        for (auto it = m_calls.begin(); it != m_calls.end(); ++it) {
            if (it->second.due <= end &&
                (next == m_calls.end() || it->second.due < next->second.due))
                next = it;
        }
        if (next == m_calls.end())
            break;
        m_now = m_now.addMSecs(next->second.due - m_elapsed);
        m_elapsed = next->second.due;
        const auto run = next->second.run;
        if (next->second.interval > 0)
            next->second.due += next->second.interval;
        else
            m_calls.erase(next);
        run();
    }
    m_now = m_now.addMSecs(end - m_elapsed);
    m_elapsed = end;
}

} // namespace tarvelo::tests
