#include "app/SingleInstance.h"

#include "support/Modes.h"
#include "support/TestCase.h"

#include <QDir>
#include <QFile>
#include <QFuture>
#include <QLocalSocket>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QThread>

#include <memory>

using tarvelo::app::Request;
using tarvelo::app::SingleInstance;
using tarvelo::tests::addUmasks;
using tarvelo::tests::modeOf;
using tarvelo::tests::Umask;
using namespace std::chrono_literals;

namespace {

// A second start, which waits for its answer, in a thread of its own.
bool askFrom(const QString &folder, bool &answered, Request request = Request::Reopen)
{
    bool wasFirst = true;
    bool ended = false;
    std::unique_ptr<QThread> second(QThread::create([&] {
        const SingleInstance instance(folder);
        wasFirst = instance.isFirst();
        answered = instance.askFirst(request, 30s);
    }));
    QObject::connect(second.get(), &QThread::finished, QCoreApplication::instance(),
                     [&] { ended = true; });
    second->start();
    const bool inTime = QTest::qWaitFor([&] { return ended; }, 60000);
    second->wait();
    return inTime && !wasFirst;
}

} // namespace

class SingleInstanceTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theFirstStartIsTheFirst()
    {
        const QTemporaryDir runtime;

        const SingleInstance first(runtime.path());

        QVERIFY(first.isFirst());
    }

    void whatLiesInTheRuntimeFolderIsForItsUserAlone_data() { addUmasks(); }
    void whatLiesInTheRuntimeFolderIsForItsUserAlone()
    {
        QFETCH(const mode_t, umask);
        const Umask mask(umask);
        const QTemporaryDir runtime;

        const SingleInstance first(runtime.path());

        QCOMPARE(modeOf(runtime.filePath(QStringLiteral("tarvelo.lock"))), QStringLiteral("600"));
        QVERIFY(modeOf(runtime.filePath(QStringLiteral("tarvelo.socket"))).endsWith(u"00"));
    }

    void aSecondStartAsksTheFirstToReopen()
    {
        const QTemporaryDir runtime;
        const SingleInstance first(runtime.path());
        QSignalSpy reopen(&first, &SingleInstance::requested);
        bool answered = false;

        QVERIFY(askFrom(runtime.path(), answered));

        QVERIFY(answered);
        QCOMPARE(reopen.size(), 1);
    }

    void whatTheSecondStartWasAskedForReachesTheFirst()
    {
        const QTemporaryDir runtime;
        const SingleInstance first(runtime.path());
        QSignalSpy asked(&first, &SingleInstance::requested);
        bool answered = false;

        QVERIFY(askFrom(runtime.path(), answered, Request::NewLecture));
        QVERIFY(askFrom(runtime.path(), answered, Request::ShowPreferences));

        QCOMPARE(asked.size(), 2);
        QCOMPARE(asked[0][0].value<Request>(), Request::NewLecture);
        QCOMPARE(asked[1][0].value<Request>(), Request::ShowPreferences);
    }

    void aWordThatMeansNothingIsHungUpOnAndDoesNothing()
    {
        const QTemporaryDir runtime;
        const SingleInstance first(runtime.path());
        QSignalSpy asked(&first, &SingleInstance::requested);
        QLocalSocket socket;
        socket.connectToServer(runtime.filePath(QStringLiteral("tarvelo.socket")));

        socket.write("dance\n");

        QTRY_COMPARE_WITH_TIMEOUT(socket.state(), QLocalSocket::UnconnectedState, 60000);
        QCOMPARE(asked.size(), 0);
    }

    void theFirstCanBeAskedAgainAndAgain()
    {
        const QTemporaryDir runtime;
        const SingleInstance first(runtime.path());
        QSignalSpy reopen(&first, &SingleInstance::requested);

        for (int i = 0; i < 3; ++i) {
            bool answered = false;
            QVERIFY(askFrom(runtime.path(), answered));
            QVERIFY(answered);
        }

        QCOMPARE(reopen.size(), 3);
    }

    void afterTheFirstEndedTheNextStartIsTheFirst()
    {
        const QTemporaryDir runtime;
        {
            const SingleInstance first(runtime.path());
        }

        const SingleInstance next(runtime.path());

        QVERIFY(next.isFirst());
    }

    void whatAKilledProcessLeftBehindIsTakenOver()
    {
        const QTemporaryDir runtime;
        QFile lock(runtime.filePath(QStringLiteral("tarvelo.lock")));
        QVERIFY(lock.open(QIODevice::WriteOnly));
        // No process has this number: it is above the kernel's highest.
        lock.write("999999999\nTarvelo\n" + QSysInfo::machineHostName().toUtf8() + "\n");
        lock.close();
        QFile socket(runtime.filePath(QStringLiteral("tarvelo.socket")));
        QVERIFY(socket.open(QIODevice::WriteOnly));
        socket.close();

        const SingleInstance first(runtime.path());
        bool answered = false;

        QVERIFY(first.isFirst());
        QVERIFY(askFrom(runtime.path(), answered));
        QVERIFY(answered);
    }

    void aFolderThatIsNotThereMakesEveryStartTheFirst()
    {
        const QTemporaryDir runtime;
        const QString missing = runtime.filePath(QStringLiteral("missing"));

        const SingleInstance one(missing);
        const SingleInstance other(missing);

        QVERIFY(one.isFirst());
        QVERIFY(other.isFirst());
    }

    void askingGivesUpWhenNobodyAnswers()
    {
        const QTemporaryDir runtime;
        const SingleInstance first(runtime.path());
        QVERIFY(QFile::remove(runtime.filePath(QStringLiteral("tarvelo.socket"))));

        const SingleInstance second(runtime.path());

        QVERIFY(!second.isFirst());
        QVERIFY(!second.askFirst(Request::Reopen, 50ms));
    }
};

QTEST_GUILESS_MAIN(SingleInstanceTest)
#include "SingleInstanceTest.moc"
