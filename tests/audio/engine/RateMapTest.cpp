#include "audio/engine/RateMap.h"
#include "support/TestCase.h"

using tarvelo::engine::RateMap;
using tarvelo::tests::TestCase;

class RateMapTest final : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void framesGoThroughTheSoundAtTheRate()
    {
        RateMap map(1000, 60);

        map.beginAt(10, 0.5);

        QCOMPARE(map.secondsAt(0), 10.0);
        QCOMPARE(map.secondsAt(4000), 12.0);
        QCOMPARE(map.lastRate(), 0.5);
    }

    void noFrameIsOutsideTheSound()
    {
        RateMap map(1000, 60);

        map.beginAt(59, 1);

        QCOMPARE(map.secondsAt(-70000), 0.0);
        QCOMPARE(map.secondsAt(5000), 60.0);
    }

    void anotherRateGoesOnAtTheSameSecond()
    {
        RateMap map(1000, 60);
        map.beginAt(0, 1);

        map.replaceFrom(map.goingOnFrom(2000, 0.25));

        QCOMPARE(map.secondsAt(1999), 1.999);
        QCOMPARE(map.secondsAt(2000), 2.0);
        QCOMPARE(map.secondsAt(6000), 3.0);
        QCOMPARE(map.lastRate(), 0.25);
    }

    void anotherRateBeginsAtAWholeFrameOfTheSound()
    {
        RateMap map(1000, 60);
        map.beginAt(0, 1.0 / 3);

        const RateMap::Segment next = map.goingOnFrom(1000, 1);

        QCOMPARE(next.frame, 1000);
        QCOMPARE(next.seconds, 0.333);
        QVERIFY(!next.isJump);
    }

    void whoHasJumpedIsThereBeforeTheSoundIs()
    {
        RateMap map(1000, 60);
        map.beginAt(0, 1);

        map.replaceFrom({3000, 40, 1, true});

        QCOMPARE(map.secondsAt(1000), 40.0);
        QCOMPARE(map.secondsAt(4000), 41.0);
    }

    void anotherRateKeepsAJumpThatNobodyHasHeard()
    {
        RateMap map(1000, 60);
        map.beginAt(0, 1);
        map.replaceFrom({3000, 40, 1, true});

        map.replaceFrom(map.goingOnFrom(2000, 0.5));

        QCOMPARE(map.secondsAt(1000), 40.0);
        QCOMPARE(map.secondsAt(4000), 41.0);
    }

    void anotherRateBehindAJumpGoesOnFromWhereItLed()
    {
        RateMap map(1000, 60);
        map.beginAt(0, 1);
        map.replaceFrom({3000, 40, 1, true});

        const RateMap::Segment next = map.goingOnFrom(4000, 0.5);

        QCOMPARE(next.seconds, 41.0);
        QVERIFY(!next.isJump);
    }

    void aLaterChangeTakesThePlaceOfAllBehindIt()
    {
        RateMap map(1000, 60);
        map.beginAt(0, 1);
        map.replaceFrom({3000, 40, 1, true});

        map.replaceFrom({1000, 20, 0.5, true});

        QCOMPARE(map.secondsAt(500), 20.0);
        QCOMPARE(map.secondsAt(5000), 22.0);
    }

    void whatIsForgottenLeavesTheRestAsItIs()
    {
        RateMap map(1000, 60);
        map.beginAt(0, 1);
        map.replaceFrom(map.goingOnFrom(1000, 0.5));
        map.replaceFrom(map.goingOnFrom(2000, 0.25));

        map.forgetBefore(1500);

        QCOMPARE(map.first().frame, 1000);
        QCOMPARE(map.secondsAt(1500), 1.25);
        map.forgetBefore(1000000);
        QCOMPARE(map.first().frame, 2000);
        QCOMPARE(map.secondsAt(3000), 1.75);
    }
};

QTEST_GUILESS_MAIN(RateMapTest)
#include "RateMapTest.moc"
