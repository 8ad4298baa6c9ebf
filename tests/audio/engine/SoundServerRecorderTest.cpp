#include "audio/engine/RecordingCase.h"
#include "support/StderrCatcher.h"

#include <QRandomGenerator>

using namespace tarvelo::engine;
using namespace tarvelo::tests;

namespace {

class Listener final : public AudioRecorderDelegate
{
public:
    void audioRecorderDidFinishRecordingSuccessfully(AudioRecorder *recorder,
                                                     bool successfully) override
    {
        recorder->stop();
        calls.append({recorder, successfully});
    }

    QList<std::pair<AudioRecorder *, bool>> calls;
};

} // namespace

// Sound from a real server into a real file.
class SoundServerRecorderTest final : public RecordingCase
{
    Q_OBJECT

private Q_SLOTS:
    void aTakeIsWhatWasPlayed_data()
    {
        QTest::addColumn<int>("rate");
        QTest::addColumn<int>("channels");
        QTest::newRow("stereo, 44100 hertz") << 44100 << 2;
        QTest::newRow("mono, 44100 hertz") << 44100 << 1;
        QTest::newRow("mono, 16000 hertz") << 16000 << 1;
        QTest::newRow("stereo, 48000 hertz") << 48000 << 2;
        QTest::newRow("six channels, 48000 hertz") << 48000 << 6;
    }
    void aTakeIsWhatWasPlayed()
    {
        QFETCH(int, rate);
        QFETCH(int, channels);
        QVERIFY(startServer({rate, channels, true}));
        const auto played = tune(44100, 15);
        QVERIFY(speak(played));

        const auto recorder = recording();
        QVERIFY(recorder && reaches(*recorder, 4));
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

    void aBlockedMainThreadLosesNothing()
    {
        QVERIFY(startServer());
        const auto played = tune(44100, 3);
        const QString wav = wavOf(played);
        const auto recorder = recording();

        QVERIFY(server().speakBlocking(wav));
        QVERIFY(reaches(*recorder, recorder->currentTime() + 0.5));
        recorder->stop();

        const auto heard = DecodedAudio::read(path())->channel(0);
        const auto likeness = compare(played, heard, 44100);
        QVERIFY(recorder->currentTime() >= 3);
        QVERIFY(likeness.start < 0.01);
        QVERIFY(likeness.correlation >= 0.98);
    }

    void pausesLeaveNeitherGapNorClickAndKeepTheLength()
    {
        QVERIFY(startServer());
        QVERIFY(speak(tone(44100, 60, 2000)));
        const auto seed = QRandomGenerator::global()->generate();
        QRandomGenerator random(seed);
        const auto witness = recording(path(QStringLiteral("witness.m4a")));
        const auto recorder = recording();
        QVERIFY(recorder && witness && reaches(*recorder, 0.5));

        for (int pause = 0; pause < 8; ++pause) {
            recorder->pause();
            const double time = recorder->currentTime();
            QVERIFY(reaches(*witness, witness->currentTime() + random.bounded(0.3)));
            QCOMPARE(recorder->currentTime(), time);
            QVERIFY(recorder->record());
            QVERIFY(reaches(*recorder, time + 0.1 + random.bounded(0.4)));
        }
        recorder->stop();

        qInfo("seed %u", seed);
        const auto take = DecodedAudio::read(path());
        QVERIFY(std::abs(take->seconds() - recorder->currentTime()) < 0.05);
        QVERIFY(std::abs(MovieFacts::read(path())->seconds - recorder->currentTime()) < 0.05);
        const auto sound = take->channel(0);
        const auto begun = std::ranges::find_if(sound, [](float it) { return it > 0.4F; });
        const auto inside = std::span(begun, sound.end());
        QVERIFY(inside.size() > 2 * 44100);
        QVERIFY(longestDisturbance(inside.subspan(4410, inside.size() - 8820), 44100, 2000) <
                0.005);
    }

    void recordingAndPausingTwiceIsDoingItOnce()
    {
        QVERIFY(startServer());
        const auto recorder = recording();

        QVERIFY(recorder->record());
        QVERIFY(reaches(*recorder, 0.3));
        recorder->pause();
        recorder->pause();
        QVERIFY(recorder->record());
        QVERIFY(reaches(*recorder, 0.6));
        recorder->stop();

        QVERIFY(std::abs(DecodedAudio::read(path())->seconds() - recorder->currentTime()) < 0.05);
    }

    void nothingIsTakenBeforeRecordIsAsked()
    {
        QVERIFY(startServer());
        const auto witness = recording(path(QStringLiteral("witness.m4a")));
        const auto idle = recorder();

        QVERIFY(idle->prepareToRecord());
        QVERIFY(QFileInfo::exists(path()));
        QVERIFY(reaches(*witness, witness->currentTime() + 0.5));

        QCOMPARE(idle->currentTime(), 0.0);
        idle->stop();
        QVERIFY(DecodedAudio::read(path())->seconds() < 0.05);
    }

    void aPreparedTakeIsNotPreparedAgain()
    {
        QVERIFY(startServer());
        const auto recorder = recording();
        QVERIFY(reaches(*recorder, 1));

        QVERIFY(recorder->prepareToRecord());
        QVERIFY(recorder->currentTime() >= 1);
        recorder->stop();

        QVERIFY(DecodedAudio::read(path())->seconds() > 0.95);
    }

    void stoppingCompletesTheFileAtOnce()
    {
        QVERIFY(startServer());
        const auto recorder = recording();
        QVERIFY(reaches(*recorder, 1.7));

        recorder->stop();

        const auto facts = MovieFacts::read(path());
        QVERIFY(facts && !facts->isFragmented);
        QCOMPARE(facts->codec, QStringLiteral("aac"));
        QVERIFY(std::abs(facts->seconds - recorder->currentTime()) < 0.05);
    }

    void afterTheStopNothingChangesAnyMore()
    {
        QVERIFY(startServer());
        const auto recorder = recording();
        QVERIFY(reaches(*recorder, 0.5));
        recorder->stop();
        const double time = recorder->currentTime();
        QVERIFY(QFile::remove(path()));

        recorder->stop();
        recorder->pause();
        QVERIFY(!recorder->record());

        QCOMPARE(recorder->currentTime(), time);
        QVERIFY(!QFileInfo::exists(path()));
    }

    void aStoppedRecorderCanTakeAgain()
    {
        QVERIFY(startServer());
        const auto recorder = recording();
        QVERIFY(reaches(*recorder, 2));
        recorder->stop();

        QVERIFY(recorder->prepareToRecord());
        QCOMPARE(recorder->currentTime(), 0.0);
        QVERIFY(recorder->record());
        QVERIFY(reaches(*recorder, 0.5));
        recorder->stop();

        QVERIFY(std::abs(DecodedAudio::read(path())->seconds() - recorder->currentTime()) < 0.05);
    }

    void theEndOfTheRecorderIsTheEndOfTheTake()
    {
        QVERIFY(startServer());
        auto recorder = recording();
        QVERIFY(reaches(*recorder, 1));

        recorder.reset();

        QVERIFY(!MovieFacts::read(path())->isFragmented);
    }

    void theDelegateHearsOfTheEndFromTheEventLoop()
    {
        QVERIFY(startServer());
        Listener listener;
        const auto recorder = recording();
        recorder->setDelegate(&listener);

        recorder->stop();
        recorder->stop();
        QVERIFY(listener.calls.isEmpty());
        QTRY_VERIFY_WITH_TIMEOUT(!listener.calls.isEmpty(), Patience);
        QCoreApplication::processEvents();

        QCOMPARE(listener.calls.size(), 1);
        QCOMPARE(listener.calls.first(), std::pair(recorder.get(), true));
    }

    void whoIsGoneHearsNothing()
    {
        QVERIFY(startServer());
        Listener listener;
        auto gone = recording();
        gone->setDelegate(&listener);
        const auto left = recording(path(QStringLiteral("left.m4a")));
        left->setDelegate(&listener);

        gone->stop();
        gone.reset();
        left->stop();
        left->setDelegate(nullptr);
        QCoreApplication::processEvents();

        QVERIFY(listener.calls.isEmpty());
    }

    void metersMayBeAskedForAtAnyTime()
    {
        QVERIFY(startServer());
        const auto recorder = recording();

        recorder->updateMeters();
        recorder->setMeteringEnabled(true);
        recorder->updateMeters();

        QVERIFY(reaches(*recorder, 0.2));
    }

    void nothingIsSaidOnStderr()
    {
        QVERIFY(startServer());
        const StderrCatcher catcher;

        const auto recorder = recording();
        QVERIFY(reaches(*recorder, 0.5));
        recorder->stop();

        QCOMPARE(catcher.caught(), QByteArray());
    }
};

QTEST_GUILESS_MAIN(SoundServerRecorderTest)
#include "SoundServerRecorderTest.moc"
