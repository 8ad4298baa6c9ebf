#pragma once

#include <QDateTime>

#include <chrono>
#include <functional>
#include <memory>

namespace tarvelo::platform {

// The one source of time: what moment it is, and calls back from the event loop later. Everything
// that depends on time is given a clock, so that a test can hold the time in its hand. Main thread
// only.
class Clock
{
public:
    // A call that is still to come; destroying the handle cancels it.
    class Pending
    {
    public:
        Pending() = default;
        Pending(const Pending &) = delete;
        Pending &operator=(const Pending &) = delete;
        virtual ~Pending() = default;
    };

    Clock() = default;
    Clock(const Clock &) = delete;
    Clock &operator=(const Clock &) = delete;
    virtual ~Clock() = default;

    // The present instant, in UTC, to the millisecond.
    virtual QDateTime now() const = 0;

    // `call` may destroy its own handle.
    [[nodiscard]] virtual std::unique_ptr<Pending> callAfter(std::chrono::milliseconds delay,
                                                             std::function<void()> call) = 0;
    [[nodiscard]] virtual std::unique_ptr<Pending> callEvery(std::chrono::milliseconds interval,
                                                             std::function<void()> call) = 0;
};

class SystemClock final : public Clock
{
public:
    QDateTime now() const override;
    std::unique_ptr<Pending> callAfter(std::chrono::milliseconds delay,
                                       std::function<void()> call) override;
    std::unique_ptr<Pending> callEvery(std::chrono::milliseconds interval,
                                       std::function<void()> call) override;
};

} // namespace tarvelo::platform
