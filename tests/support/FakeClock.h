#pragma once

#include "platform/Clock.h"

#include <map>

namespace tarvelo::tests {

// A clock that stands still until it is told to go on. advance() runs what falls due on the way, in
// its order, with now() showing the moment that each was due at.
class FakeClock final : public platform::Clock
{
public:
    explicit FakeClock(const QDateTime &start = QDateTime::fromString(
                           QStringLiteral("2024-03-05T09:00:00Z"), Qt::ISODate));
    ~FakeClock() override;

    QDateTime now() const override { return m_now; }
    std::unique_ptr<Pending> callAfter(std::chrono::milliseconds delay,
                                       std::function<void()> call) override;
    std::unique_ptr<Pending> callEvery(std::chrono::milliseconds interval,
                                       std::function<void()> call) override;

    int pendingCount() const { return static_cast<int>(m_calls.size()); }

    // Sets the time without running anything: a clock that was put on or back.
    void set(const QDateTime &moment);
    void advance(std::chrono::milliseconds by);

private:
    struct Call
    {
        qint64 due;      // milliseconds on the running clock, which set() does not touch
        qint64 interval; // 0: once
        std::function<void()> run;
    };
    class Handle;

    std::unique_ptr<Pending> add(qint64 delay, qint64 interval, std::function<void()> call);

    QDateTime m_now;
    qint64 m_elapsed = 0;
    quint64 m_lastNumber = 0;
    std::map<quint64, Call> m_calls;
    std::shared_ptr<FakeClock *> m_self = std::make_shared<FakeClock *>(this);
};

} // namespace tarvelo::tests
