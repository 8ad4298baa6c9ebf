#include "audio/engine/AudioEngine.h"
#include "audio/engine/AudioPlayer.h"
#include "audio/engine/Recordings.h"
#include "audio/engine/SpeakerRecording.h"
#include "support/TestCase.h"
#include "support/TestSound.h"

#include <array>
#include <utility>

using namespace tarvelo::engine;
using namespace tarvelo::tests;

constexpr int Patience = 60000; // milliseconds: a machine with much to do is slow, not broken
// Seconds: to where a sound begins to be loud.
constexpr double Exact = 0.002;

namespace {

struct Listener final : AudioPlayerDelegate
{
    void audioPlayerDidFinishPlayingSuccessfully(AudioPlayer *player, bool successfully) override
    {
        finished.push_back(player);
        wasSuccessful = successfully;
        wasOnMainThread = QThread::currentThread() == QCoreApplication::instance()->thread();
    }

    std::vector<AudioPlayer *> finished;
    bool wasSuccessful = false;
    bool wasOnMainThread = false;
};

} // namespace

// Sound from a file in memory through a real server to its speaker.
class SoundServerPlayerTest final : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void whatIsHeardIsWhatWasRecorded()
    {
        begin();
        const auto sound = tune(44100, 4);
        const auto player = playerOf(sound);
        QCOMPARE(player->url(), QUrl()); // it has the bytes, not their file

        QVERIFY(player->prepareToPlay());
        QVERIFY(player->play());

        const auto heard = m_speaker->untilSilence();
        const auto likeness = compare(sound, heard, 44100, 1);
        QVERIFY2(likeness.correlation > 0.98, qPrintable(QString::number(likeness.correlation)));
        QVERIFY(likeness.drift < 0.005);
    }

    void theSoundIsAsLongAsTheRateMakesIt_data()
    {
        QTest::addColumn<float>("rate");
        QTest::newRow("1") << 1.0F;
        QTest::newRow("half") << 0.5F;
        QTest::newRow("third") << 1.0F / 3.0F;
        QTest::newRow("quarter") << 0.25F;
        QTest::newRow("fifth") << 1.0F / 5.0F;
    }
    void theSoundIsAsLongAsTheRateMakesIt()
    {
        QFETCH(float, rate);
        begin();
        const auto player = playerOf(tone(44100, 1.5, 440));

        player->setRate(rate);
        player->play();

        QCOMPARE(player->rate(), rate);
        const double length = seconds(m_speaker->untilSilence());
        const double expected = player->duration() / static_cast<double>(rate);
        QVERIFY2(std::abs(length - expected) < 0.03, qPrintable(QString::number(length)));
    }

    void whileTheRateChangesNothingIsLostOrHeardTwice()
    {
        begin();
        const auto player = playerOf(beats(20));
        player->play();

        double place = 0.6;
        for (const float rate : {0.5F, 1.0F / 3.0F, 0.25F, 0.2F, 1.0F}) {
            QTRY_VERIFY_WITH_TIMEOUT(player->currentTime() > place, Patience);
            player->setRate(rate);
            place += 0.6;
        }

        const auto distances = distancesOfBeats(m_speaker->untilSilence());
        QCOMPARE(distances.size(), 19U);
        // Five of them have a change inside.
        QVERIFY(std::ranges::count_if(distances, &fitsARate) >= 14);
        for (const double distance : distances)
            QVERIFY2(distance > BeatSeconds - 0.02 && distance < BeatSeconds / 0.2 + 0.02,
                     qPrintable(QString::number(distance)));
    }

    void aChangedRateLeavesNeitherGapNorClick()
    {
        begin();
        const auto player = playerOf(tone(44100, 4, 440));
        player->play();

        double place = 0.3;
        for (const float rate : {0.2F, 1.0F, 0.25F, 0.5F, 1.0F / 3.0F, 1.0F, 0.2F, 1.0F}) {
            QTRY_VERIFY_WITH_TIMEOUT(player->currentTime() > place, Patience);
            player->setRate(rate);
            place += 0.3;
        }

        const auto heard = m_speaker->untilSilence();
        QVERIFY(seconds(heard) > 4);
        const double disturbance = longestDisturbance(heard, 44100, 440);
        QVERIFY2(disturbance < 0.02, qPrintable(QString::number(disturbance)));
        float step = 0;
        for (std::size_t at = 1; at < heard.size(); ++at)
            step = std::max(step, std::abs(heard[at] - heard[at - 1]));
        QVERIFY2(step < 0.12F, qPrintable(QString::number(step))); // the tone itself has 0.063
    }

    void aRateThatChangesNearTheEndHasOneEnd()
    {
        begin();
        Listener listener;
        const auto sound = tune(44100, 1.5);
        const auto player = playerOf(sound);
        player->setDelegate(&listener);
        player->play();

        for (const double place : {1.1, 1.3, 1.45}) {
            QTRY_VERIFY_WITH_TIMEOUT(player->currentTime() > place || !player->isPlaying(),
                                     Patience);
            player->setRate(place > 1.2 ? 0.5F : 0.2F);
        }

        const auto heard = m_speaker->untilSilence();
        QVERIFY2(seconds(heard) > 1.49, qPrintable(QString::number(seconds(heard))));
        QTRY_COMPARE_WITH_TIMEOUT(listener.finished.size(), 1U, Patience);
        QTRY_VERIFY_WITH_TIMEOUT(m_speaker->isSilentFor(2), Patience);
        QCOMPARE(listener.finished.size(), 1U);
    }

    void whoStopsHearsOfNoEnd()
    {
        begin();
        Listener listener;
        const auto player = playerOf(tune(44100, 0.5));
        player->setDelegate(&listener);
        player->play();
        QTRY_VERIFY_WITH_TIMEOUT(m_speaker->hearsSound(), Patience);

        player->stop();

        QTRY_VERIFY_WITH_TIMEOUT(m_speaker->isSilentFor(1.5), Patience);
        QVERIFY(listener.finished.empty());
    }

    void aPauseThatComesBeforeTheNewsOfTheEndIsAPause()
    {
        begin();
        Listener listener;
        const auto player = playerOf(tune(44100, 0.3));
        player->setDelegate(&listener);
        player->play();
        // The event loop stands still, so that the news of the end waits in it.
        while (m_speaker->soundBeforeSilence().empty())
            QVERIFY(m_speaker->waitForMore());

        player->pause();
        QCoreApplication::processEvents();

        QVERIFY(listener.finished.empty());
        QVERIFY(std::abs(player->currentTime() - player->duration()) < Exact);
        player->play();
        QTRY_COMPARE_WITH_TIMEOUT(listener.finished.size(), 1U, Patience);
    }

    void anotherPlaceWhilePlayingIsExact()
    {
        begin();
        const auto sound = tune(44100, 6);
        const auto player = playerOf(sound);
        player->play();
        QTRY_VERIFY_WITH_TIMEOUT(player->currentTime() > 0.5, Patience);

        player->setCurrentTime(4);

        QCOMPARE(player->currentTime(), 4.0);
        const auto heard = m_speaker->untilSilence();
        QVERIFY2(seconds(heard) < 4, qPrintable(QString::number(seconds(heard))));
        const auto after = std::span(heard).last(80000);
        const auto likeness = compare(sound, after, 44100, 6);
        QVERIFY2(likeness.correlation > 0.98, qPrintable(QString::number(likeness.correlation)));
        const double end = likeness.start + static_cast<double>(after.size()) / 44100;
        QVERIFY2(std::abs(end - 6) < 0.005, qPrintable(QString::number(end)));
    }

    void anotherPlaceOfAStoppedPlayerIsExact()
    {
        begin();
        const auto player = playerOf(tune(44100, 3));
        player->play();
        QTRY_VERIFY_WITH_TIMEOUT(player->currentTime() > 0.3, Patience);
        player->stop();
        QVERIFY(!m_speaker->untilSilence().empty());
        m_speaker->forget();

        player->setCurrentTime(2.25);
        QCOMPARE(player->currentTime(), 2.25);
        player->play();

        const double length = seconds(m_speaker->untilSilence());
        QVERIFY2(std::abs(length - 0.75) < 0.005, qPrintable(QString::number(length)));
    }

    void theDelegateHearsOfTheNaturalEndOnTheMainThread()
    {
        begin();
        Listener listener;
        const auto player = playerOf(tune(44100, 0.5));
        player->setDelegate(&listener);

        player->play();
        QVERIFY(player->isPlaying());
        QTRY_COMPARE_WITH_TIMEOUT(listener.finished.size(), 1U, Patience);

        QCOMPARE(listener.finished.front(), player.get());
        QVERIFY(listener.wasSuccessful);
        QVERIFY(listener.wasOnMainThread);
        QVERIFY(!player->isPlaying());
        QCOMPARE(player->currentTime(), 0.0);
    }

    void afterTheEndItPlaysAgainFromTheStart()
    {
        begin();
        Listener listener;
        const auto player = playerOf(tune(44100, 0.5));
        player->setDelegate(&listener);
        player->play();
        QTRY_COMPARE_WITH_TIMEOUT(listener.finished.size(), 1U, Patience);

        QVERIFY(player->play());

        QTRY_COMPARE_WITH_TIMEOUT(listener.finished.size(), 2U, Patience);
        player->setCurrentTime(player->duration());
        QVERIFY(player->play());
        QVERIFY(player->currentTime() < 0.4);
    }

    void rateAndPlaceMayChangeAsOftenAsOneLikes()
    {
        begin();
        Listener listener;
        const auto player = playerOf(tune(44100, 2));
        player->setDelegate(&listener);
        player->play();

        for (int round = 0; round < 20; ++round) {
            player->setRate(round % 2 == 0 ? 0.25F : 1.0F);
            player->setCurrentTime(0.1 * round);
            QVERIFY(std::abs(player->currentTime() - 0.1 * round) < 0.2);
        }

        QTRY_COMPARE_WITH_TIMEOUT(listener.finished.size(), 1U, Patience);
    }

    void aPausedPlayerStandsStillAndGoesOnWhereItWas()
    {
        begin();
        const auto sound = tune(44100, 4);
        const auto player = playerOf(sound);
        player->play();
        QTRY_VERIFY_WITH_TIMEOUT(player->currentTime() > 1, Patience);

        player->pause();

        QVERIFY(!player->isPlaying());
        const auto before = m_speaker->untilSilence();
        const double place = player->currentTime();
        QVERIFY2(std::abs(seconds(before) - place) < Exact, qPrintable(QString::number(place)));

        m_speaker->forget();
        player->play();
        const auto after = m_speaker->untilSilence();
        const auto likeness = compare(sound, after, 44100, 4);
        QVERIFY2(likeness.correlation > 0.98, qPrintable(QString::number(likeness.correlation)));
        QVERIFY2(std::abs(likeness.start - place) < Exact,
                 qPrintable(QStringLiteral("%1 %2").arg(likeness.start).arg(place)));
        QVERIFY2(std::abs(seconds(before) + seconds(after) - 4) < Exact,
                 qPrintable(QString::number(seconds(after))));
    }

    void aPausedPlayerTakesAnotherPlaceAndAnotherRate()
    {
        begin();
        const auto player = playerOf(tone(44100, 2, 440));
        player->play();
        QTRY_VERIFY_WITH_TIMEOUT(player->currentTime() > 0.3, Patience);
        player->pause();
        QVERIFY(!m_speaker->untilSilence().empty());
        m_speaker->forget();

        player->setCurrentTime(1.5);
        player->setRate(0.5F);
        QCOMPARE(player->currentTime(), 1.5);
        player->play();

        const double length = seconds(m_speaker->untilSilence());
        QVERIFY2(std::abs(length - 1) < 0.05, qPrintable(QString::number(length)));
    }

    void aStoppedPlayerKeepsItsPlace()
    {
        begin();
        const auto player = playerOf(tune(44100, 3));
        player->play();
        QTRY_VERIFY_WITH_TIMEOUT(player->currentTime() > 1, Patience);

        player->stop();

        QVERIFY(!player->isPlaying());
        const double place = player->currentTime();
        QVERIFY(place > 1 && place < 3);
        QVERIFY(player->play());
        QVERIFY(player->currentTime() >= place);
    }

    void aPlayerThatIsGoneTellsNobody()
    {
        begin();
        Listener listener;
        auto player = playerOf(tune(44100, 0.3));
        player->setDelegate(&listener);
        player->play();
        // The event loop stands still, so that the news of the end waits in it.
        while (m_speaker->soundBeforeSilence().empty())
            QVERIFY(m_speaker->waitForMore());
        QVERIFY(listener.finished.empty());

        player.reset();
        QCoreApplication::processEvents();

        QVERIFY(listener.finished.empty());
    }

    void aDelegateThatHasLeftHearsNothing()
    {
        begin();
        Listener listener;
        const auto player = playerOf(tune(44100, 0.3));
        player->setDelegate(&listener);
        player->play();

        player->setDelegate(nullptr);

        QTRY_VERIFY_WITH_TIMEOUT(!player->isPlaying(), Patience);
        QVERIFY(listener.finished.empty());
    }

    void withoutAServerEverythingAnswers()
    {
        m_server = std::make_unique<PrivateSoundServer>();
        const auto player = playerOf(tune(44100, 3));

        QVERIFY(player->prepareToPlay());
        QVERIFY(player->play());
        QVERIFY(player->isPlaying());
        QCOMPARE(player->currentTime(), 0.0);
        player->setRate(0.5F);
        player->setCurrentTime(2);
        QCOMPARE(player->currentTime(), 2.0);
        player->pause();
        QVERIFY(!player->isPlaying());
        QCOMPARE(player->currentTime(), 2.0);
        player->stop();
        QCOMPARE(player->rate(), 0.5F);
    }

    void aServerThatComesLaterIsHeard()
    {
        m_server = std::make_unique<PrivateSoundServer>();
        const auto player = playerOf(tune(44100, 1));
        player->play();
        player->pause();

        QVERIFY(m_server->start());
        m_speaker = std::make_unique<SpeakerRecording>();
        QVERIFY(m_speaker->start());
        QVERIFY(player->play());

        QVERIFY(std::abs(seconds(m_speaker->untilSilence()) - 1) < 0.05);
    }

    void aServerThatGoesAwayWhileItPlaysIsHeardAgainWhenItIsBack()
    {
        begin();
        const auto player = playerOf(tune(44100, 3));
        player->play();
        QTRY_VERIFY_WITH_TIMEOUT(player->currentTime() > 1, Patience);

        m_server->kill();
        // It stands still: asked twice in a row, it says the same.
        double place = -1;
        QTRY_VERIFY_WITH_TIMEOUT(
            std::exchange(place, player->currentTime()) == player->currentTime(), Patience);
        QVERIFY(place > 0.7 && place < 3);
        QVERIFY(player->isPlaying());

        m_speaker.reset();
        QVERIFY(m_server->start());
        m_speaker = std::make_unique<SpeakerRecording>();
        QVERIFY(m_speaker->start());
        player->play();
        QTRY_VERIFY_WITH_TIMEOUT(m_speaker->hearsSound(), Patience);
        QVERIFY(player->currentTime() >= place);
    }

private:
    static double seconds(const std::vector<float> &sound)
    {
        return static_cast<double>(sound.size()) / 44100;
    }

    static constexpr double BeatSeconds = 0.25;

    // Short sounds at equal distances.
    static std::vector<float> beats(int count)
    {
        std::vector<float> sound(static_cast<std::size_t>(44100 * BeatSeconds * (count + 1)));
        const auto beat = tone(44100, 0.03, 1000);
        for (int number = 1; number <= count; ++number)
            std::ranges::copy(beat, sound.begin() + std::lround(44100 * BeatSeconds * number));
        return sound;
    }

    // In seconds, from beginning to beginning.
    static std::vector<double> distancesOfBeats(std::span<const float> sound)
    {
        std::vector<double> distances;
        std::size_t begin = 0;
        std::size_t loud = 0;
        for (std::size_t at = 0; at < sound.size(); ++at) {
            if (std::abs(sound[at]) < 0.1F)
                continue;
            if (at - loud > 44100 * 6 / 100) {
                distances.push_back(static_cast<double>(at - begin) / 44100);
                begin = at;
            }
            loud = at;
        }
        return distances;
    }

    static bool fitsARate(double distance)
    {
        const auto fits = [distance](double rate) {
            return std::abs(distance - BeatSeconds / rate) < 0.02;
        };
        return std::ranges::any_of(std::array{1.0, 0.5, 1 / 3.0, 0.25, 0.2}, fits);
    }

    void finish() override
    {
        m_speaker.reset();
        m_server.reset();
    }

    void begin()
    {
        m_server = std::make_unique<PrivateSoundServer>();
        QVERIFY(m_server->start());
        m_speaker = std::make_unique<SpeakerRecording>();
        QVERIFY(m_speaker->start());
    }

    std::unique_ptr<AudioPlayer> playerOf(std::span<const float> sound)
    {
        return m_engine->makePlayer(recordingOf(sound));
    }

    std::unique_ptr<PrivateSoundServer> m_server;
    std::unique_ptr<SpeakerRecording> m_speaker;
    std::unique_ptr<AudioEngine> m_engine = makeSoundServerEngine();
};

QTEST_GUILESS_MAIN(SoundServerPlayerTest)
#include "SoundServerPlayerTest.moc"
