#include "audio/engine/Settings.h"
#include "support/DecodedAudio.h"
#include "support/PrivateSoundServer.h"
#include "support/TestCase.h"
#include "support/TestSound.h"

#include <QFileInfo>

using namespace tarvelo::engine;
using namespace tarvelo::tests;

constexpr int Patience = 60000; // milliseconds: a machine with much to do is slow, not broken

// Sound from a real server into a real file.
class SoundServerRecorderTest final : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aTakeIsWhatWasPlayed_data()
    {
        QTest::addColumn<int>("rate");
        QTest::addColumn<int>("channels");
        QTest::newRow("stereo 44100") << 44100 << 2;
        QTest::newRow("mono 44100") << 44100 << 1;
        QTest::newRow("mono 16000") << 16000 << 1;
        QTest::newRow("stereo 48000") << 48000 << 2;
    }
    void aTakeIsWhatWasPlayed()
    {
        QFETCH(int, rate);
        QFETCH(int, channels);
        begin({rate, channels, true});
        const auto played = speakTune(12);

        const auto recorder = recording();
        recordUntil(*recorder, 4);
        recorder->stop();

        const auto take = DecodedAudio::read(path());
        QVERIFY(take);
        QCOMPARE(take->rate, 44100);
        QCOMPARE(take->channels, 2);
        for (int channel = 0; channel < 2; ++channel) {
            const auto likeness = compare(played, take->channel(channel), 44100);
            QVERIFY2(likeness.correlation >= 0.98,
                     qPrintable(QString::number(likeness.correlation)));
            QVERIFY(likeness.worstCorrelation >= 0.98);
            QVERIFY(likeness.drift < 0.02);
        }
    }

    void theFileIsAsLongAsTheTime()
    {
        begin({});

        const auto recorder = recording();
        recordUntil(*recorder, 1.7);
        recorder->stop();

        const auto facts = MovieFacts::read(path());
        QVERIFY(facts);
        QVERIFY(qAbs(facts->seconds - recorder->currentTime()) < 0.05);
        QVERIFY(!facts->isFragmented);
        QCOMPARE(facts->codec, QStringLiteral("aac"));
    }

private:
    void prepare() override { m_folder = std::make_unique<QTemporaryDir>(); }
    void finish() override { m_server.reset(); }

    QString path() const { return m_folder->filePath(QStringLiteral("take.m4a")); }

    void begin(const PrivateSoundServer::Options &options)
    {
        m_server = std::make_unique<PrivateSoundServer>();
        QVERIFY(m_server->start(options));
    }

    std::vector<float> speakTune(double seconds)
    {
        const QString wav = m_folder->filePath(QStringLiteral("tune.wav"));
        const auto sound = tune(44100, seconds);
        writeWav(wav, sound, 44100);
        m_server->speak(wav);
        return sound;
    }

    std::unique_ptr<AudioRecorder> recording()
    {
        auto recorder = m_engine->makeRecorder(path(), lectureSettings());
        const bool prepared = recorder && recorder->prepareToRecord();
        return prepared && recorder->record() ? std::move(recorder) : nullptr;
    }

    void recordUntil(AudioRecorder &recorder, double seconds)
    {
        QTRY_VERIFY_WITH_TIMEOUT(recorder.currentTime() >= seconds, Patience);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<PrivateSoundServer> m_server;
    std::unique_ptr<AudioEngine> m_engine = makeSoundServerEngine();
};

QTEST_GUILESS_MAIN(SoundServerRecorderTest)
#include "SoundServerRecorderTest.moc"
