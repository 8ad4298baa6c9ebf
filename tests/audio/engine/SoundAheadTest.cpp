#include "audio/engine/SoundAhead.h"
#include "audio/engine/DecodedSource.h"
#include "audio/engine/Recordings.h"
#include "support/TestCase.h"
#include "support/TestSound.h"

#include <QSemaphore>

#include <atomic>
#include <cmath>

using namespace tarvelo::engine;
using namespace tarvelo::tests;

constexpr int Patience = 60000;
// Seconds after a change, in which sounds lie over each other: another change may fall into the
// fade.
constexpr double Fade = 0.03;

namespace {

// Takes portions of sound, and writes down which second each frame of them is said to be.
class Hearer final : public SoundTaker
{
public:
    explicit Hearer(std::unique_ptr<DecodedSource> source)
        : ahead(std::move(source))
    {
        ahead.setTaker(this);
    }

    // False at the end. Waits only when there is too little.
    bool hear(std::size_t frames)
    {
        std::vector<float> block(frames);
        for (std::size_t at = 0; at < frames;) {
            const std::size_t count = ahead.take(std::span(block).subspan(at));
            for (std::size_t end = at + count; at < end; ++at) {
                seconds.push_back(ahead.secondsAt(static_cast<double>(sound.size())));
                sound.push_back(block[at]);
            }
            if (at < frames && ahead.isAtEnd())
                return false;
            if (at < frames && !m_more.tryAcquire(1, Patience))
                return false;
        }
        return true;
    }
    void hearAll()
    {
        while (hear(4410))
            ;
    }
    void moreIsThere() override { m_more.release(); }

    std::vector<float> sound;
    std::vector<double> seconds;

private:
    QSemaphore m_more;

public:
    SoundAhead ahead; // gone first: it tells of more until then
};

// Changes its mind about the rate around every portion that it takes.
class Waverer final : public SoundTaker
{
public:
    explicit Waverer(std::unique_ptr<DecodedSource> source)
        : ahead(std::move(source))
    {
        ahead.setTaker(this);
    }

    void moreIsThere() override
    {
        if (ahead.isAtEnd()) {
            end.release();
            return;
        }
        ahead.changeRate(0.5);
        takeAll();
        ahead.changeRate(1);
    }
    // Asks for more than there is, and is told of what comes then.
    void takeAll()
    {
        std::vector<float> portion(5 * 44100);
        taken += ahead.take(portion);
    }

    std::atomic<std::size_t> taken = 0;
    QSemaphore end;
    SoundAhead ahead; // gone first: it tells of more until then
};

} // namespace

class SoundAheadTest final : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void everyRateLeadsToTheEndInItsTime()
    {
        for (const double rate : {1.0, 0.5, 1 / 3.0, 0.25, 0.2}) {
            Hearer hearer(sourceOf(tune(44100, 2.5)));
            SoundAhead &ahead = hearer.ahead;

            ahead.start(0, rate);
            hearer.hearAll();

            const double length = static_cast<double>(hearer.sound.size()) / 44100;
            QVERIFY2(std::abs(length - 2.5 / rate) < 0.001, qPrintable(QString::number(length)));
        }
    }

    void whatIsHeardStandsAtTheSecondThatIsSaid()
    {
        const auto sound = tune(44100, 12);
        Hearer hearer(sourceOf(sound));
        SoundAhead &ahead = hearer.ahead;
        ahead.start(0, 1);

        for (const double rate : {0.5, 1.0, 0.2, 1.0, 0.25, 0.5, 1.0}) {
            hearer.hear(30000);
            ahead.changeRate(rate);
        }
        hearer.hearAll();

        QVERIFY(isExactWhereItIsNotStretched(hearer, sound, 3));
        QVERIFY(leadsToTheEnd(hearer, 12));
    }

    // As a machine does that has too much to do: every change comes too late for its place.
    void whoTakesFasterThanAnythingCanBeMadeLosesNothing()
    {
        const auto sound = tune(44100, 20);
        Hearer hearer(sourceOf(sound));
        SoundAhead &ahead = hearer.ahead;
        ahead.start(0, 1);

        for (int change = 0; change < 60 && hearer.hear(5000); ++change)
            ahead.changeRate(change % 2 == 0 ? 0.5 : 1);
        ahead.changeRate(1);
        hearer.hearAll();

        QVERIFY(leadsToTheEnd(hearer, 20));
        QVERIFY(isExactWhereItIsNotStretched(hearer, sound, 1));
    }

    void aChangeLeavesNeitherGapNorClick()
    {
        Hearer hearer(sourceOf(tone(44100, 6, 440)));
        SoundAhead &ahead = hearer.ahead;
        ahead.start(0, 1);

        for (const double rate : {0.2, 0.25, 1 / 3.0, 0.5, 1.0, 0.2, 1.0}) {
            hearer.hear(20000);
            ahead.changeRate(rate);
        }
        hearer.hearAll();

        const double disturbance = longestDisturbance(hearer.sound, 44100, 440);
        QVERIFY2(disturbance < 0.02, qPrintable(QString::number(disturbance)));
        float step = 0;
        for (std::size_t at = 1; at < hearer.sound.size(); ++at)
            step = std::max(step, std::abs(hearer.sound[at] - hearer.sound[at - 1]));
        QVERIFY2(step < 0.06F, qPrintable(QString::number(step))); // the tone itself has 0.032
    }

    void aJumpIsThereAtOnceAndHeardSoon()
    {
        const auto sound = tune(44100, 8);
        Hearer hearer(sourceOf(sound));
        SoundAhead &ahead = hearer.ahead;
        ahead.start(0, 1);
        hearer.hear(44100);

        ahead.jump(5);
        QCOMPARE(ahead.secondsAt(44100), 5.0);
        // Until it is obeyed: a busy machine may take longer than it takes to hear what is ready.
        QTRY_VERIFY_WITH_TIMEOUT(ahead.secondsAt(2 * 44100) > 5, Patience);
        hearer.hearAll();

        const auto jump = std::ranges::find_if(hearer.seconds, [](double it) { return it > 5; });
        const auto at = jump - hearer.seconds.begin();
        QVERIFY2(at < 44100 * 6 / 5, qPrintable(QString::number(at)));
        const auto after = std::span(hearer.sound).subspan(static_cast<std::size_t>(at) + 500);
        QVERIFY(std::abs(std::ssize(after) + 500 - 3 * 44100) <= 2);
        QVERIFY(correlation(after, std::span(sound).last(after.size())) > 0.9999);
    }

    void aRateThatFollowsAJumpLeavesItWhereItGoes()
    {
        Hearer hearer(sourceOf(tune(44100, 8)));
        SoundAhead &ahead = hearer.ahead;
        ahead.start(0, 1);
        hearer.hear(44100);

        for (const double rate : {0.5, 1.0, 0.25}) {
            ahead.jump(6);
            ahead.changeRate(rate);
            QCOMPARE(ahead.secondsAt(44100), 6.0);
        }
        hearer.hearAll();

        QVERIFY(leadsToTheEnd(hearer, 8));
        const auto heard = static_cast<double>(
            std::ranges::count_if(hearer.seconds, [](double it) { return it > 6; }));
        QVERIFY2(std::abs(heard / 44100 - 2 / 0.25) < 0.001, qPrintable(QString::number(heard)));
    }

    void anOrderBeforeTheFirstSoundCounts()
    {
        Hearer hearer(sourceOf(tune(44100, 3)));
        SoundAhead &ahead = hearer.ahead;

        ahead.start(0, 1);
        ahead.changeRate(0.5);
        ahead.jump(2);
        hearer.hearAll();

        QVERIFY(leadsToTheEnd(hearer, 3));
        const auto heard = std::ranges::count_if(hearer.seconds, [](double it) { return it > 2; });
        QVERIFY2(std::abs(heard - 88200) < 10, qPrintable(QString::number(heard)));
    }

    void aChangeAtTheVeryEndEndsToo()
    {
        Hearer hearer(sourceOf(tune(44100, 1)));
        SoundAhead &ahead = hearer.ahead;
        ahead.start(0, 1);
        hearer.hearAll();
        QVERIFY(ahead.isAtEnd());

        ahead.changeRate(0.5);
        hearer.hearAll();

        QVERIFY(ahead.isAtEnd());
        QCOMPARE(ahead.secondsAt(static_cast<double>(hearer.sound.size())), 1.0);
    }

    void aChangeThatIsTakenBackAtTheLastFrameHidesNoEnd()
    {
        // Longer than what is kept ready: however late it is asked for, more is still to come.
        Waverer waverer(sourceOf(tune(44100, SoundAhead::SecondsAhead + 1)));
        waverer.ahead.start(0, 1);

        waverer.takeAll();

        QVERIFY(waverer.end.tryAcquire(1, Patience));
        QCOMPARE(waverer.taken.load(), 4 * 44100U);
    }

    void aJumpFromTheEndGoesOnFromThere()
    {
        Hearer hearer(sourceOf(tune(44100, 1)));
        SoundAhead &ahead = hearer.ahead;
        ahead.start(0, 1);
        hearer.hearAll();

        ahead.jump(0.5);
        QVERIFY(!ahead.isAtEnd());
        hearer.hearAll();

        QVERIFY(ahead.isAtEnd());
        QCOMPARE(hearer.sound.size(), 66150U);
    }

    void whatWasTakenAndNotHeardComesAgain()
    {
        const auto sound = tune(44100, 4);
        Hearer hearer(sourceOf(sound));
        SoundAhead &ahead = hearer.ahead;
        ahead.start(0, 1);
        hearer.hear(88200);

        hearer.sound.clear();
        ahead.restartAt(44100);
        QCOMPARE(ahead.secondsAt(0), 1.0);
        hearer.hearAll();

        QCOMPARE(hearer.sound.size(), 3 * 44100U);
        QVERIFY(correlation(hearer.sound, std::span(sound).last(hearer.sound.size())) > 0.9999);
    }

    void aServerThatIsLostForgetsNoOrder()
    {
        Hearer hearer(sourceOf(tune(44100, 4)));
        SoundAhead &ahead = hearer.ahead;
        ahead.start(0, 1);
        hearer.hear(44100);

        ahead.jump(3);
        ahead.changeRate(0.5);
        ahead.restartAt(44100);
        hearer.sound.clear();
        hearer.hearAll();

        QCOMPARE(hearer.sound.size(), 2 * 44100U);
    }

    void itEndsAlsoInTheMiddleOfItsWork()
    {
        for (int round = 0; round < 20; ++round) {
            Hearer hearer(sourceOf(tune(44100, 2)));
            SoundAhead &ahead = hearer.ahead;
            QVERIFY(ahead.start(0, 0.2));
            ahead.changeRate(0.25);
            if (round % 2 == 0)
                hearer.hear(100);
        }
    }

private:
    static std::unique_ptr<DecodedSource> sourceOf(std::span<const float> sound)
    {
        return DecodedSource::open(exactRecordingOf(sound));
    }

    // Every sample that is neither stretched nor near a change is the one of its second; and there
    // are so many seconds of them.
    static bool isExactWhereItIsNotStretched(const Hearer &hearer, std::span<const float> sound,
                                             double seconds)
    {
        const auto isStretched = [&](std::size_t at) {
            const double step = hearer.seconds[at] - hearer.seconds[at - 1];
            return std::abs(step * 44100 - 1) >= 1e-3;
        };
        std::size_t exact = 0;
        std::size_t since = 0; // the last moment at another rate
        // The first frame of another rate is still at the second at which it would have been.
        for (std::size_t at = 1; at + 1 < hearer.sound.size(); ++at) {
            since = isStretched(at) ? 0 : since + 1;
            if (static_cast<double>(since) < Fade * 44100 || isStretched(at + 1))
                continue;
            const auto place = static_cast<std::size_t>(std::lround(hearer.seconds[at] * 44100));
            if (place >= sound.size() || std::abs(hearer.sound[at] - sound[place] / 2) > 0.001F)
                return false;
            ++exact;
        }
        return static_cast<double>(exact) > seconds * 44100;
    }

    // The seconds go on without a step back, and the last frame is the last of the sound.
    static bool leadsToTheEnd(const Hearer &hearer, double seconds)
    {
        return std::ranges::is_sorted(hearer.seconds) &&
               std::ranges::count(hearer.seconds, seconds) <= 2 &&
               std::abs(hearer.seconds.back() - seconds) < 2.0 / 44100;
    }
};

QTEST_GUILESS_MAIN(SoundAheadTest)
#include "SoundAheadTest.moc"
