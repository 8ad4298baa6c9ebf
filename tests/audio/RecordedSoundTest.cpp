#include "audio/DurationText.h"
#include "audio/RecordingWatch.h"
#include "audio/engine/AudioEngine.h"
#include "platform/DiskRoom.h"
#include "platform/Texts.h"
#include "support/DecodedAudio.h"
#include "support/PrivateSoundServer.h"
#include "support/RecordingStage.h"
#include "support/StderrCatcher.h"
#include "support/TestCase.h"
#include "support/TestSound.h"

#include <algorithm>
#include <optional>

using namespace std::chrono_literals;
using namespace tarvelo::tests;

using tarvelo::audio::getDuration;
using tarvelo::audio::RecordingWatch;
using tarvelo::audio::wholeSeconds;

constexpr int Patience = 60000; // milliseconds: a machine with much to do is slow, not broken

// The recording controls over a real sound server. Sound takes the time it takes; the clock of the
// display goes on as the test says.
class RecordedSoundTest final : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aTakeWithAPauseIsAsLongInItsFileAsOnItsLabel()
    {
        QVERIFY(m_server->start());
        QVERIFY(speakTune());

        m_stage->start();
        recordUntil(QStringLiteral("00:00:02"));
        m_stage->pressPauseResume();
        m_stage->pressPauseResume();
        recordUntil(QStringLiteral("00:00:04"));
        // Stopped out of a pause, so that no sound comes in between reading the length and the end.
        m_stage->pressPauseResume();
        m_stage->pressStop();
        m_stage->clock.advance(500ms);

        const double length = m_stage->control.floatRecordingDuration();
        const auto facts = MovieFacts::read(m_stage->takePath());
        QVERIFY(facts);
        QVERIFY(length >= 4);
        QVERIFY2(qAbs(facts->seconds - length) < 0.05, qPrintable(QString::number(facts->seconds)));
        QCOMPARE(facts->codec, QStringLiteral("aac"));
        QCOMPARE(facts->rate, 44100);
        QCOMPARE(facts->channels, 2);
        QCOMPARE(label(), getDuration(wholeSeconds(length)));
        QVERIFY(loudness() > 0.1F);
    }

    void theNextTakeReplacesTheOneBefore()
    {
        QVERIFY(m_server->start());
        m_stage->start();
        recordUntil(QStringLiteral("00:00:02"));
        m_stage->pressStop();
        QVERIFY(MovieFacts::read(m_stage->takePath()));

        m_stage->start();
        recordUntil(QStringLiteral("00:00:01"));
        m_stage->pressPauseResume();
        m_stage->pressStop();

        const auto second = MovieFacts::read(m_stage->takePath());
        QVERIFY(second);
        QVERIFY(qAbs(second->seconds - m_stage->control.floatRecordingDuration()) < 0.05);
    }

    void aDiscardedTakeLeavesNoFile()
    {
        QVERIFY(m_server->start());
        m_stage->start();
        recordUntil(QStringLiteral("00:00:01"));
        QVERIFY(m_stage->takeIsThere());

        m_stage->control.discardTake();

        QVERIFY(!m_stage->takeIsThere());
    }

    void aSilentMicrophoneIsToldUntilSomebodySpeaks()
    {
        QVERIFY(m_server->start());
        m_watch = std::make_unique<RecordingWatch>(
            m_stage->clock, m_stage->control, m_stage->window.outlets(),
            [this] { return m_stage->takePath(); }, tarvelo::platform::roomOnDisk);
        m_stage->window.window.hide();
        m_stage->start();
        m_stage->window.window.show();

        QTRY_VERIFY_WITH_TIMEOUT(isSilenceToldAfterNextSecond(), Patience);
        QVERIFY(m_stage->control.soundHeard().arrived >= 10);
        QVERIFY(speakTune());
        QTRY_VERIFY_WITH_TIMEOUT(!isSilenceToldAfterNextSecond(), Patience);
        m_server->silence();

        QTRY_VERIFY_WITH_TIMEOUT(isSilenceToldAfterNextSecond(), Patience);
    }

    void withoutASoundServerTheControlsGoThroughATake()
    {
        m_stage->start();
        QVERIFY(m_stage->control.recording());
        QVERIFY(!m_stage->control.hasRecorder());
        QCOMPARE(nextLength(), QString());

        m_stage->pressPauseResume();
        m_stage->pressPauseResume();
        m_stage->pressStop();
        m_stage->clock.advance(500ms);

        QVERIFY(!m_stage->control.recording());
        QVERIFY(!m_stage->takeIsThere());
        QCOMPARE(label(), QStringLiteral("00:00:00"));
        QCOMPARE(lookOf(m_stage->window.btnStopRecord), QStringLiteral("play/playH/Play"));
    }

    void aMicrophoneThatIsRefusedUsLetsTheControlsGoThroughATake()
    {
        QVERIFY(m_server->start());
        QVERIFY(m_server->lockUsOut());
        const StderrCatcher catcher;

        m_stage->start();
        QVERIFY(m_stage->control.recording());
        QVERIFY(!m_stage->control.hasRecorder());
        QVERIFY(!m_stage->sleep.isHeld);
        QCOMPARE(nextLength(), QString());
        m_stage->pressStop();
        m_stage->clock.advance(500ms);

        QVERIFY(!m_stage->takeIsThere());
        QCOMPARE(label(), QStringLiteral("00:00:00"));
        QCOMPARE(lookOf(m_stage->window.btnStopRecord), QStringLiteral("play/playH/Play"));
        QCOMPARE(catcher.caught(), QByteArray());
    }

    void aFolderThatCannotBeWrittenLeavesTheControlsWorking()
    {
        QVERIFY(m_server->start());
        QVERIFY(QDir().rmdir(QFileInfo(m_stage->takePath()).path()));

        m_stage->start();
        QVERIFY(m_stage->control.recording());
        m_stage->pressStop();
        m_stage->clock.advance(500ms);

        QVERIFY(!m_stage->control.recording());
        QVERIFY(!m_stage->takeIsThere());
    }

private:
    void prepare() override
    {
        m_server.emplace();
        m_engine = tarvelo::engine::makeSoundServerEngine();
        m_stage.emplace(*m_engine);
        m_stage->control.startDisplayTimer();
    }
    void finish() override
    {
        m_watch.reset();
        m_stage.reset();
        m_engine.reset();
        m_server.reset();
    }

    bool speakTune()
    {
        const QString wav = m_stage->takePath() + QStringLiteral(".wav");
        return writeWav(wav, tune(44100, 20), 44100) && m_server->speak(wav);
    }
    // The highest peak of the take; silence has none.
    float loudness() const
    {
        const auto take = DecodedAudio::read(m_stage->takePath());
        return take && !take->samples.empty()
                   ? *std::max_element(take->samples.cbegin(), take->samples.cend())
                   : 0;
    }
    QString label() const { return m_stage->window.lblRecordingDuration.text(); }
    QString nextLength()
    {
        m_stage->clock.advance(1s);
        return label();
    }
    void recordUntil(const QString &length)
    {
        QTRY_VERIFY_WITH_TIMEOUT(nextLength() >= length, Patience);
    }

    // The clock goes on with the sound.
    bool isSilenceToldAfterNextSecond()
    {
        if (m_stage->control.soundHeard().arrived >= m_seconds + 1) {
            ++m_seconds;
            m_stage->clock.advance(1s);
        }
        return m_stage->window.lblRecordingWarning.text() ==
               tarvelo::platform::text("RECORDING_NOTHING_HEARD");
    }

    std::optional<PrivateSoundServer> m_server;
    std::unique_ptr<tarvelo::engine::AudioEngine> m_engine;
    std::optional<RecordingStage> m_stage;
    std::unique_ptr<RecordingWatch> m_watch;
    int m_seconds = 0; // that the clock has gone on
};

QTEST_MAIN(RecordedSoundTest)
#include "RecordedSoundTest.moc"
