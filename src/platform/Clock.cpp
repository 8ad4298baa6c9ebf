#include "platform/Clock.h"

#include <QObject>
#include <QTimer>

#include <utility>

namespace tarvelo::platform {

namespace {

class TimerCall final : public Clock::Pending
{
public:
    TimerCall(std::chrono::milliseconds interval, bool repeats, std::function<void()> call)
    {
        // Coarse timers may be five per cent off, which a clock that shows seconds cannot hide.
        m_timer.setTimerType(Qt::PreciseTimer);
        m_timer.setInterval(interval);
        m_timer.setSingleShot(!repeats);
        // The call is copied before it runs, since it may destroy this handle.
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [run = std::move(call)] {
            const auto copy = run;
            copy();
        });
        m_timer.start();
    }

private:
    QTimer m_timer;
};

} // namespace

QDateTime SystemClock::now() const
{
    return QDateTime::currentDateTimeUtc();
}

std::unique_ptr<Clock::Pending> SystemClock::callAfter(std::chrono::milliseconds delay,
                                                       std::function<void()> call)
{
    return std::make_unique<TimerCall>(delay, false, std::move(call));
}

std::unique_ptr<Clock::Pending> SystemClock::callEvery(std::chrono::milliseconds interval,
                                                       std::function<void()> call)
{
    return std::make_unique<TimerCall>(interval, true, std::move(call));
}

} // namespace tarvelo::platform
