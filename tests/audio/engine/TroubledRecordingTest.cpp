#include "audio/engine/RecordingCase.h"
#include "support/OrdinaryUser.h"
#include "support/SmallFiles.h"
#include "support/StderrCatcher.h"

#include <QLocalServer>
#include <QLocalSocket>

using namespace tarvelo::engine;
using namespace tarvelo::tests;

// Whatever is missing or breaks: no hang, no message, and what was recorded stays.
class TroubledRecordingTest final : public RecordingCase
{
    Q_OBJECT

private Q_SLOTS:
    void withoutASoundServerNothingIsPrepared()
    {
        talkTo(path(QStringLiteral("nobody")));

        verifyThatNothingIsPrepared();
    }

    void withoutAMicrophoneNothingIsPrepared()
    {
        QVERIFY(startServer({.hasMicrophone = false}));

        verifyThatNothingIsPrepared();
    }

    void aServerThatNeverAnswersIsGivenUp()
    {
        QLocalServer mute;
        QVERIFY(mute.listen(path(QStringLiteral("mute"))));
        talkTo(mute.fullServerName());

        verifyThatNothingIsPrepared();
    }

    void aServerThatHangsUpIsGivenUp()
    {
        QLocalServer rude;
        connect(&rude, &QLocalServer::newConnection, &rude,
                [&] { rude.nextPendingConnection()->close(); });
        QVERIFY(rude.listen(path(QStringLiteral("rude"))));
        talkTo(rude.fullServerName());

        verifyThatNothingIsPrepared();
    }

    void aServerThatRefusesUsIsGivenUp()
    {
        PrivateSoundServer strict;
        QVERIFY(strict.start());
        QVERIFY(strict.lockUsOut());

        verifyThatNothingIsPrepared();
    }

    void whereNothingCanBeWrittenNothingIsPrepared()
    {
        QVERIFY(startServer());
        const StderrCatcher catcher;

        QVERIFY(!recorder(path() + QStringLiteral("/missing/take.m4a"))->prepareToRecord());
        QFile::setPermissions(QFileInfo(path()).path(), QFile::ReadOwner | QFile::ExeOwner);
        {
            const OrdinaryUser user;
            QVERIFY(!recorder()->prepareToRecord());
        }
        QFile::setPermissions(QFileInfo(path()).path(),
                              QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);

        QVERIFY(!QFileInfo::exists(path()));
        QCOMPARE(catcher.caught(), QByteArray());
    }

    void aFullDiskKeepsWhatWasRecorded()
    {
        QVERIFY(startServer());
        const auto played = tune(44100, 20);
        QVERIFY(speak(played));
        const StderrCatcher catcher;
        const auto recorder = recording();
        const SmallFiles disk(30000);

        // On a full disk the time steps back to what is safe.
        double before = 0;
        const auto stepsBack = [&] {
            const double now = recorder->currentTime();
            return now < std::exchange(before, now);
        };
        QVERIFY(QTest::qWaitFor(stepsBack, Patience));
        recorder->pause();
        QVERIFY(recorder->record());
        recorder->stop();

        const auto take = DecodedAudio::read(path());
        QVERIFY(take);
        QVERIFY(take->seconds() > 1);
        QVERIFY(std::abs(take->seconds() - recorder->currentTime()) < 0.05);
        QVERIFY(compare(played, take->channel(0), 44100).correlation >= 0.98);
        QCOMPARE(catcher.caught(), QByteArray());
    }

    void aServerThatDiesLeavesTheTake()
    {
        QVERIFY(startServer());
        QVERIFY(speak(tune(44100, 20)));
        const StderrCatcher catcher;
        const auto recorder = recording();
        QVERIFY(reaches(*recorder, 1.5));

        server().kill();
        recorder->pause();
        QVERIFY(recorder->record());
        recorder->stop();

        QVERIFY(recorder->currentTime() >= 1.5);
        QVERIFY(std::abs(DecodedAudio::read(path())->seconds() - recorder->currentTime()) < 0.05);
        QCOMPARE(catcher.caught(), QByteArray());
    }

    void aMicrophoneThatIsPulledOutLeavesTheTake()
    {
        QVERIFY(startServer());
        const StderrCatcher catcher;
        const auto recorder = recording();
        QVERIFY(reaches(*recorder, 1.5));

        QVERIFY(server().pullOutMicrophone());
        recorder->stop();

        QVERIFY(recorder->currentTime() >= 1.5);
        QVERIFY(std::abs(DecodedAudio::read(path())->seconds() - recorder->currentTime()) < 0.05);
        QCOMPARE(catcher.caught(), QByteArray());
    }

private:
    static void talkTo(const QString &socket)
    {
        qputenv("PULSE_SERVER", "unix:" + QFile::encodeName(socket));
    }

    void verifyThatNothingIsPrepared()
    {
        const StderrCatcher catcher;
        const auto made = recorder();

        QVERIFY(made);
        QVERIFY(!made->prepareToRecord());
        QVERIFY(!QFileInfo::exists(path()));
        QVERIFY(!made->record());
        made->pause();
        made->updateMeters();
        made->stop();

        QCOMPARE(made->currentTime(), 0.0);
        QVERIFY(!QFileInfo::exists(path()));
        QCOMPARE(catcher.caught(), QByteArray());
    }
};

QTEST_GUILESS_MAIN(TroubledRecordingTest)
#include "TroubledRecordingTest.moc"
