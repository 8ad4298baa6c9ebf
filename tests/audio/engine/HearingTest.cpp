#include "audio/engine/Hearing.h"

#include "audio/engine/PcmFormat.h"
#include "support/TestCase.h"

#include <limits>
#include <vector>

using namespace tarvelo::engine;

constexpr PcmFormat Mono{1000, 1};

class HearingTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void beforeTheFirstSoundNothingArrived()
    {
        const Hearing hearing(Mono);

        QCOMPARE(hearing.soFar().arrived, 0.0);
        QCOMPARE(hearing.soFar().lastHeard, 0.0);
    }

    void zerosArriveAndAreNotHeard()
    {
        Hearing hearing(Mono);

        hearing.put(std::vector<float>(12000));

        QCOMPARE(hearing.soFar().arrived, 12.0);
        QCOMPARE(hearing.soFar().lastHeard, 0.0);
    }

    void theLastMomentThatIsLoudEnoughCountsToTheSample()
    {
        Hearing hearing(Mono);
        std::vector<float> sound(1000);
        sound[99] = -0.5F;
        sound[249] = 0.002F;
        sound[700] = 0.0019F;
        sound[701] = -0.0019F;

        hearing.put(std::vector<float>(500));
        hearing.put(sound);

        QCOMPARE(hearing.soFar().arrived, 1.5);
        QCOMPARE(hearing.soFar().lastHeard, 0.75);
    }

    void quietThatFollowsLeavesTheMomentAsItWas()
    {
        Hearing hearing(Mono);

        hearing.put(std::vector<float>(1000, 0.1F));
        hearing.put(std::vector<float>(3000, 0.0F));
        hearing.put({});

        QCOMPARE(hearing.soFar().arrived, 4.0);
        QCOMPARE(hearing.soFar().lastHeard, 1.0);
    }

    void bothSidesAreOneSecondAndOneOfThemIsEnough()
    {
        Hearing hearing({1000, 2});
        std::vector<float> sound(4000);
        sound[2001] = 0.3F; // on the right

        hearing.put(sound);

        QCOMPARE(hearing.soFar().arrived, 2.0);
        QCOMPARE(hearing.soFar().lastHeard, 1.001);
    }

    void whatIsNoNumberIsNotHeardAndWhatIsBeyondFullScaleIs()
    {
        Hearing hearing(Mono);

        hearing.put(std::vector<float>(1000, std::numeric_limits<float>::quiet_NaN()));
        QCOMPARE(hearing.soFar().lastHeard, 0.0);
        hearing.put(std::vector<float>(1000, -std::numeric_limits<float>::infinity()));

        QCOMPARE(hearing.soFar().lastHeard, 2.0);
    }
};

QTEST_GUILESS_MAIN(HearingTest)
#include "HearingTest.moc"
