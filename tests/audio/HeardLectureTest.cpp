#include "audio/engine/AudioEngine.h"
#include "audio/engine/Recordings.h"
#include "audio/engine/SpeakerRecording.h"
#include "support/PrivateSoundServer.h"
#include "support/RecordingStage.h"
#include "support/TestCase.h"
#include "support/TestSound.h"

#include <optional>

using namespace Qt::StringLiterals;
using namespace tarvelo::tests;

constexpr int Patience = 60000; // milliseconds: a machine with much to do is slow, not broken
constexpr int Rate = 44100;

// The play window's controls over a real sound server: what is pressed is what is heard.
class HeardLectureTest final : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aLectureIsHeardAndItsEndResetsTheControls()
    {
        const auto sound = tune(Rate, 2);

        play(sound);

        const auto heard = m_speaker->untilSilence();
        QVERIFY(compare(sound, heard, Rate, 1).correlation > 0.98);
        QTRY_VERIFY_WITH_TIMEOUT(window().btnPlayLecture.isEnabled(), Patience);
        QVERIFY(!window().btnPauseLecture.isEnabled());
        QCOMPARE(window().txtElapsedTime.text(), u"0:00:00"_s);
    }

    void afterTheEndItPlaysAgainFromItsBeginning()
    {
        const auto sound = tune(Rate, 1);
        play(sound);
        QTRY_VERIFY_WITH_TIMEOUT(window().btnPlayLecture.isEnabled(), Patience);
        m_speaker->untilSilence();
        m_speaker->forget();

        m_stage->playback.onPlayPauseLecture(&window().btnPlayLecture);

        QVERIFY(compare(sound, m_speaker->untilSilence(), Rate, 1).correlation > 0.98);
    }

    void aChosenSpeedIsHeard()
    {
        play(tone(Rate, 2, 440));
        m_stage->playback.onPlayPauseLecture(&window().btnPauseLecture);

        window().segPlaySpeed.setSelectedSegment(3);
        m_stage->playback.onPlaySpeedChanged(&window().segPlaySpeed);

        // Whatever was heard before the pause was heard at full speed.
        const double length = secondsOf(m_speaker->untilSilence());
        QVERIFY2(length > 3 && length < 4.1, qPrintable(QString::number(length)));
        QTRY_VERIFY_WITH_TIMEOUT(window().btnPlayLecture.isEnabled(), Patience);
    }

    void withoutASoundServerTheControlsWorkAllTheSame()
    {
        m_speaker.reset();
        m_server->kill();

        play(tune(Rate, 1));
        m_stage->playback.onPlayPauseLecture(&window().btnPauseLecture);
        QVERIFY(window().btnPlayLecture.isEnabled());
        m_stage->playback.onPlayPauseLecture(&window().btnPlayLecture);
        QVERIFY(window().btnPauseLecture.isEnabled());
        m_stage->playback.updateTimeDisplay();
        m_stage->playback.stopSoundPlay();

        QCOMPARE(window().txtElapsedTime.text(), u"00:00:00"_s);
        QCOMPARE(window().txtRemainingTime.text(), u"-00:00:01"_s);
    }

    void whenTheServerIsBackTheNextLectureIsHeard()
    {
        m_speaker.reset();
        m_server->kill();
        play(tune(Rate, 1));
        listen();
        const auto sound = tune(Rate, 2, 7);

        m_stage->playback.discardPlayer();
        play(sound);

        QVERIFY(compare(sound, m_speaker->untilSilence(), Rate, 1).correlation > 0.98);
    }

private:
    void prepare() override
    {
        listen();
        m_engine = tarvelo::engine::makeSoundServerEngine();
        m_stage.emplace(*m_engine);
        m_stage->playback.resetRate();
        window().lblElapsedTimeTemp.hide();
    }
    void finish() override
    {
        m_stage.reset();
        m_engine.reset();
        m_speaker.reset();
        m_server.reset();
    }

    void listen()
    {
        if (!m_server)
            m_server.emplace();
        QVERIFY(m_server->start());
        m_speaker.emplace();
        QVERIFY(m_speaker->start());
    }
    RecordingWindow &window() { return m_stage->window; }
    void play(std::span<const float> sound)
    {
        m_stage->writeTake(recordingOf(sound));
        m_stage->playback.playLecture(m_stage->takePath(), u"Optics"_s);
    }
    static double secondsOf(const std::vector<float> &sound)
    {
        return static_cast<double>(sound.size()) / Rate;
    }

    std::optional<PrivateSoundServer> m_server;
    std::optional<SpeakerRecording> m_speaker;
    std::unique_ptr<tarvelo::engine::AudioEngine> m_engine;
    std::optional<RecordingStage> m_stage;
};

QTEST_MAIN(HeardLectureTest)
#include "HeardLectureTest.moc"
