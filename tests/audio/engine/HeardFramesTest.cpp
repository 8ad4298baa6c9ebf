#include "audio/engine/HeardFrames.h"
#include "support/TestCase.h"

using tarvelo::engine::HeardFrames;
using tarvelo::tests::TestCase;

constexpr std::uint64_t Second = 1000000;

class HeardFramesTest final : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_heard.restart(1000); }

    void beforeTheServerSaysAnythingTheFirstFrameIsHeard()
    {
        m_heard.wrote(500);

        QCOMPARE(m_heard.at(5 * Second), 0.0);
    }

    void betweenTwoReportsItGoesOnWithTheClock()
    {
        m_heard.wrote(5000);

        m_heard.movedAt(100, 2 * Second, true);

        QCOMPARE(m_heard.at(2 * Second), 100.0);
        QCOMPARE(m_heard.at(3 * Second), 1100.0);
    }

    void aReportOfLessNeverLeadsBack()
    {
        m_heard.wrote(5000);
        m_heard.movedAt(1000, Second, true);
        QCOMPARE(m_heard.at(2 * Second), 2000.0);

        m_heard.movedAt(1500, 2 * Second, true);

        QCOMPARE(m_heard.at(2 * Second), 2000.0);
        QCOMPARE(m_heard.at(3 * Second), 2500.0);
    }

    void whatWasNotWrittenIsNotHeard()
    {
        m_heard.wrote(300);

        m_heard.movedAt(0, Second, true);

        QCOMPARE(m_heard.at(9 * Second), 300.0);
    }

    void aStreamThatStandsIsExactlyWhereItIsSaidToBe()
    {
        m_heard.wrote(5000);
        m_heard.movedAt(0, Second, true);
        QCOMPARE(m_heard.at(3 * Second), 2000.0);

        m_heard.standsAt(1900);

        QCOMPARE(m_heard.at(4 * Second), 1900.0);
    }

    void whatHasNotBegunDoesNotMove()
    {
        m_heard.wrote(5000);

        m_heard.movedAt(-25, Second, false);

        QCOMPARE(m_heard.at(9 * Second), 0.0);
    }

    void aReportFromTheFutureIsNotCountedBackwards()
    {
        m_heard.wrote(5000);

        m_heard.movedAt(700, 3 * Second, true);

        QCOMPARE(m_heard.at(2 * Second), 700.0);
    }

    void atTheEndEverythingWasHeard()
    {
        m_heard.wrote(700);
        m_heard.movedAt(100, Second, true);

        m_heard.allWasHeard();

        QCOMPARE(m_heard.at(Second), 700.0);
        QCOMPARE(m_heard.written(), 700);
    }

private:
    HeardFrames m_heard;
};

QTEST_GUILESS_MAIN(HeardFramesTest)
#include "HeardFramesTest.moc"
