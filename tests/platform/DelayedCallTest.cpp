#include "platform/DelayedCall.h"
#include "support/FakeClock.h"
#include "support/TestCase.h"

using namespace std::chrono_literals;
using tarvelo::platform::DelayedCall;
using tarvelo::tests::FakeClock;

class DelayedCallTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void everyScheduleRunsOnce()
    {
        FakeClock clock;
        int runs = 0;
        DelayedCall call(clock, [&] { ++runs; });

        call.schedule(500ms);
        call.schedule(700ms);
        clock.advance(600ms);
        QCOMPARE(runs, 1);
        clock.advance(10s);

        QCOMPARE(runs, 2);
        QCOMPARE(call.pendingCount(), 0);
    }

    void cancellingTakesBackAllThatAreToCome()
    {
        FakeClock clock;
        int runs = 0;
        DelayedCall call(clock, [&] { ++runs; });
        call.schedule(30s);
        call.schedule(31s);

        call.cancel();
        clock.advance(60s);

        QCOMPARE(runs, 0);
    }

    void destructionCancels()
    {
        FakeClock clock;
        int runs = 0;
        {
            DelayedCall call(clock, [&] { ++runs; });
            call.schedule(1s);
        }

        clock.advance(2s);

        QCOMPARE(runs, 0);
        QCOMPARE(clock.pendingCount(), 0);
    }

    void theSystemClockCallsBackFromTheEventLoop()
    {
        tarvelo::platform::SystemClock clock;
        int runs = 0;
        int ticks = 0;
        DelayedCall call(clock, [&] { ++runs; });

        call.schedule(1ms);
        const auto repeating = clock.callEvery(1ms, [&] { ++ticks; });

        QCOMPARE(runs, 0);
        QTRY_COMPARE(runs, 1);
        QTRY_VERIFY(ticks >= 3);
    }
};

QTEST_GUILESS_MAIN(DelayedCallTest)
#include "DelayedCallTest.moc"
