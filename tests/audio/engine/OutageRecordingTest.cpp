#include "audio/engine/RecordingCase.h"
#include "audio/engine/ServerDoor.h"
#include "support/StderrCatcher.h"

#include <QLocalServer>
#include <QLocalSocket>
#include <QSignalSpy>

using namespace Qt::StringLiterals;
using namespace tarvelo::engine;
using namespace tarvelo::tests;

namespace {

enum class Outage {
    ServerKilled,
    ServerHangs,
    MicrophonePulledOut,
    EverythingPulledOut,
    DefaultChanged
};

// Something that was played into the microphone, and where in the take it must be found, in
// seconds.
struct Passage
{
    std::vector<float> played;
    double from;
    double to;
};

} // namespace

// Whatever takes the microphone away for a while: the sound of before and after is in the take, as
// it was played, and only that of the time between is not.
class OutageRecordingTest final : public RecordingCase
{
    Q_OBJECT

private Q_SLOTS:
    void theTakeGoesOnAfterAnOutage_data() { everyOutage(); }
    void theTakeGoesOnAfterAnOutage()
    {
        QFETCH(Outage, outage);
        QVERIFY(begin() && isHeard());

        QVERIFY(begins(outage) && ends(outage));

        QVERIFY(goesOn() && isHeard());
        verifyThatAllIsThere();
    }

    void aPauseInAnOutageLastsUntilItIsEnded_data() { everyOutage(); }
    void aPauseInAnOutageLastsUntilItIsEnded()
    {
        QFETCH(Outage, outage);
        QVERIFY(begin() && isHeard());
        const auto witness = recording(path(QStringLiteral("witness.m4a")));

        QVERIFY(begins(outage));
        m_recorder->pause();
        const double paused = m_recorder->currentTime();
        QVERIFY(ends(outage) && reaches(*witness, witness->currentTime() + 1));
        QCOMPARE(m_recorder->currentTime(), paused);

        QVERIFY(m_recorder->record());
        QVERIFY(goesOn() && isHeard());
        verifyThatAllIsThere();
    }

    void aPauseThatEndsInAnOutageIsOverAfterIt_data() { everyOutage(); }
    void aPauseThatEndsInAnOutageIsOverAfterIt()
    {
        QFETCH(Outage, outage);
        QVERIFY(begin() && isHeard());
        m_recorder->pause();

        QVERIFY(begins(outage));
        QVERIFY(m_recorder->record());
        QVERIFY(ends(outage));

        QVERIFY(goesOn() && isHeard());
        verifyThatAllIsThere();
    }

    void aStopInAnOutageCompletesTheTake_data() { everyOutage(); }
    void aStopInAnOutageCompletesTheTake()
    {
        QFETCH(Outage, outage);
        QVERIFY(begin() && isHeard());

        QVERIFY(begins(outage));
        verifyThatAllIsThere();

        QVERIFY(!MovieFacts::read(path())->isFragmented);
        QVERIFY(ends(outage));
    }

    void aTakeSurvivesOneOutageAfterTheOther()
    {
        QVERIFY(begin() && isHeard());

        for (const Outage outage :
             {Outage::DefaultChanged, Outage::ServerHangs, Outage::MicrophonePulledOut,
              Outage::ServerKilled, Outage::EverythingPulledOut, Outage::ServerKilled})
            QVERIFY(begins(outage) && ends(outage) && goesOn() && isHeard());

        verifyThatAllIsThere();
    }

    void aServerThatStaysAwayIsAskedForAgainAndAgain()
    {
        QVERIFY(begin() && isHeard());

        QVERIFY(begins(Outage::ServerKilled));
        {
            QLocalServer inItsPlace;
            QSignalSpy asked(&inItsPlace, &QLocalServer::newConnection);
            connect(&inItsPlace, &QLocalServer::newConnection, &inItsPlace,
                    [&] { inItsPlace.nextPendingConnection()->abort(); });
            QVERIFY(inItsPlace.listen(server().socketPath()));
            QTRY_VERIFY_WITH_TIMEOUT(asked.count() >= 2, Patience);
        }
        QVERIFY(ends(Outage::ServerKilled));

        QVERIFY(goesOn() && isHeard());
        verifyThatAllIsThere();
    }

    void aServerMayComeBackBeforeItsMicrophone()
    {
        QVERIFY(begin() && isHeard());

        QVERIFY(begins(Outage::ServerKilled));
        QVERIFY(server().start({.hasMicrophone = false}));
        QVERIFY(server().plugInEverything());

        QVERIFY(goesOn() && isHeard());
        verifyThatAllIsThere();
    }

    void anotherMicrophoneMayBeOfAnotherKind()
    {
        QVERIFY(begin() && isHeard());

        QVERIFY(begins(Outage::ServerKilled));
        QVERIFY(server().start({.rate = 16000, .channels = 1}));

        QVERIFY(goesOn() && isHeard());
        verifyThatAllIsThere();
    }

    // The server is back, and has not answered yet.
    void aPauseThatEndsWhileTheMicrophoneIsOpenedIsOver()
    {
        QVERIFY(startServer());
        ServerDoor door(path(u"door"_s), server().socketPath());
        QVERIFY(beginBehind(door));
        m_recorder->pause();
        QVERIFY(isReopening(door));

        QVERIFY(m_recorder->record());
        door.letThrough();

        QVERIFY(goesOn() && isHeard());
        verifyThatAllIsThere();
        m_recorder.reset();
    }

    void aPauseWhileTheMicrophoneIsOpenedUsesItNoLonger()
    {
        QVERIFY(startServer());
        ServerDoor door(path(u"door"_s), server().socketPath());
        QVERIFY(beginBehind(door));
        QVERIFY(isReopening(door));

        m_recorder->pause();
        door.letThrough();

        QTRY_VERIFY_WITH_TIMEOUT(isMicrophoneHeldBack(), Patience);
        QVERIFY(m_recorder->record());
        QVERIFY(goesOn() && isHeard());
        verifyThatAllIsThere();
        m_recorder.reset();
    }

private:
    bool beginBehind(const ServerDoor &door)
    {
        qputenv("PULSE_SERVER", "unix:" + QFile::encodeName(door.path()));
        m_recorder = recording();
        return door.isOpen() && m_recorder && isHeard();
    }
    // Sent away once, it is held while it opens the microphone again.
    static bool isReopening(ServerDoor &door)
    {
        qputenv("PULSE_SERVER", "unix:" + QFile::encodeName(door.path())); // nobody else's any more
        door.holdStreams();
        door.sendAway();
        return QTest::qWaitFor([&door] { return door.isHoldingOne(); }, Patience);
    }
    void prepare() override
    {
        RecordingCase::prepare();
        m_stderr = std::make_unique<StderrCatcher>();
    }
    void finish() override
    {
        m_recorder.reset();
        m_passages.clear();
        m_stderr.reset();
    }

    static bool isMicrophoneHeldBack()
    {
        QProcess pactl;
        pactl.start(u"env"_s, {u"LC_ALL=C"_s, u"pactl"_s, u"list"_s, u"source-outputs"_s});
        return pactl.waitForFinished(Patience) &&
               pactl.readAllStandardOutput().contains("Corked: yes");
    }

    static void everyOutage()
    {
        QTest::addColumn<Outage>("outage");
        QTest::newRow("the server is killed and started again") << Outage::ServerKilled;
        QTest::newRow("the server hangs and goes on") << Outage::ServerHangs;
        QTest::newRow("the microphone is pulled out") << Outage::MicrophonePulledOut;
        QTest::newRow("everything is pulled out") << Outage::EverythingPulledOut;
        QTest::newRow("the default changes there and back") << Outage::DefaultChanged;
    }
    bool begin()
    {
        if (!startServer())
            return false;
        m_recorder = recording();
        return m_recorder != nullptr;
    }

    // Sound that was not there before, for two seconds of the take. What was heard before that has
    // died away then.
    bool isHeard()
    {
        const auto played = tune(44100, 15, static_cast<unsigned>(m_passages.size()) + 1);
        if (!server().silence() || !goesOn())
            return false;
        const double from = m_recorder->currentTime();
        const bool heard = speak(played) && reaches(*m_recorder, m_recorder->currentTime() + 2);
        m_passages.push_back({played, from, m_recorder->currentTime()});
        return heard;
    }

    bool goesOn() const { return reaches(*m_recorder, m_recorder->currentTime() + 0.5); }

    bool begins(Outage outage)
    {
        switch (outage) {
        case Outage::ServerKilled:
            server().kill();
            return true;
        case Outage::ServerHangs:
            return server().hang();
        case Outage::MicrophonePulledOut:
            return server().pullOutMicrophone();
        case Outage::EverythingPulledOut:
            return server().pullOutEverything();
        case Outage::DefaultChanged:
            return server().plugInAnotherMicrophone() &&
                   server().chooseMicrophone(QStringLiteral("other"));
        }
        return false;
    }
    bool ends(Outage outage)
    {
        switch (outage) {
        case Outage::ServerKilled:
            return server().start();
        case Outage::ServerHangs:
            server().goOn();
            return true;
        case Outage::MicrophonePulledOut:
            return server().plugInMicrophone();
        case Outage::EverythingPulledOut:
            return server().plugInEverything();
        case Outage::DefaultChanged:
            return server().chooseMicrophone(QStringLiteral("microphone"));
        }
        return false;
    }

    void verifyThatAllIsThere()
    {
        m_recorder->stop();
        const auto take = DecodedAudio::read(path());
        QVERIFY(take);
        QVERIFY(std::abs(take->seconds() - m_recorder->currentTime()) < 0.05);
        const auto sound = take->channel(0);
        for (const Passage &passage : m_passages) {
            const auto likeness = compare(passage.played, piece(sound, passage), 44100, 1);
            QVERIFY2(likeness.correlation >= 0.98, qPrintable(told(passage, likeness)));
            QVERIFY(likeness.start < 0.01); // nor does its beginning lack
            QVERIFY(likeness.worstCorrelation >= 0.98);
            QVERIFY(likeness.drift < 0.02);
        }
        QCOMPARE(m_stderr->caught(), QByteArray());
    }
    static QString told(const Passage &passage, const Likeness &likeness)
    {
        return QStringLiteral("from %1 to %2 s: %3, worst second %4, off by %5 s, begins at %6 s")
            .arg(passage.from)
            .arg(passage.to)
            .arg(likeness.correlation)
            .arg(likeness.worstCorrelation)
            .arg(likeness.drift)
            .arg(likeness.start);
    }
    static std::span<const float> piece(std::span<const float> sound, const Passage &passage)
    {
        const auto from = static_cast<std::size_t>(passage.from * 44100);
        const auto to = static_cast<std::size_t>(passage.to * 44100);
        return sound.subspan(from, std::min(to, sound.size()) - from);
    }

    std::unique_ptr<AudioRecorder> m_recorder;
    std::vector<Passage> m_passages;
    std::unique_ptr<StderrCatcher> m_stderr;
};

QTEST_GUILESS_MAIN(OutageRecordingTest)
#include "OutageRecordingTest.moc"
