#include "app/Activation.h"

#include "support/FakeClock.h"
#include "support/TestCase.h"

#include <QSignalSpy>

using tarvelo::app::Activation;
using tarvelo::tests::FakeClock;
using namespace std::chrono_literals;

class ActivationTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void comingFromAnotherApplicationIsTold()
    {
        FakeClock clock;
        Activation activation(clock);
        QSignalSpy active(&activation, &Activation::becameActive);

        activation.stateChanged(Qt::ApplicationActive);
        QCOMPARE(active.size(), 1);

        activation.stateChanged(Qt::ApplicationInactive);
        clock.advance(10s);
        activation.stateChanged(Qt::ApplicationActive);
        QCOMPARE(active.size(), 2);
    }

    void goingFromOneOfOurWindowsToTheOtherIsNotTold()
    {
        FakeClock clock;
        Activation activation(clock);
        activation.stateChanged(Qt::ApplicationActive);
        QSignalSpy active(&activation, &Activation::becameActive);

        activation.stateChanged(Qt::ApplicationInactive);
        clock.advance(50ms);
        activation.stateChanged(Qt::ApplicationActive);
        clock.advance(10s);
        activation.stateChanged(Qt::ApplicationActive);

        QCOMPARE(active.size(), 0);
    }
};

QTEST_GUILESS_MAIN(ActivationTest)
#include "ActivationTest.moc"
