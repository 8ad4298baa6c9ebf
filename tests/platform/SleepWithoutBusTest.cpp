#include "platform/SleepInhibitor.h"

#include "support/EnvironmentVariable.h"
#include "support/StderrCatcher.h"
#include "support/TestCase.h"

#include <QDBusConnection>
#include <QLocalServer>
#include <QLocalSocket>
#include <QTemporaryDir>

#include <memory>

using namespace Qt::StringLiterals;
using tarvelo::platform::DesktopSleepInhibitor;
using tarvelo::tests::EnvironmentVariable;
using tarvelo::tests::StderrCatcher;

// A computer without a session bus, and with nobody or a stranger where the system's bus should be.
// Where the buses are is asked for once in a process.
class SleepWithoutBusTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aBusThatIsThereLaterIsFound()
    {
        const StderrCatcher catcher;
        DesktopSleepInhibitor inhibitor(u"A lecture is being recorded"_s);
        inhibitor.hold();
        inhibitor.release();
        QLocalServer stranger;

        // What was begun without a bus may still be about to fail.
        const auto asksNow = [&] {
            inhibitor.release();
            inhibitor.hold();
            return stranger.hasPendingConnections();
        };
        QVERIFY(stranger.listen(m_bus));

        QTRY_VERIFY(asksNow());
        stranger.nextPendingConnection()->abort();
        QCOMPARE(catcher.caught(), QByteArray());
    }

    void aBusThatHangsKeepsNobodyWaiting()
    {
        QLocalServer hanging;
        QVERIFY(hanging.listen(m_bus));
        DesktopSleepInhibitor inhibitor(u"A lecture is being recorded"_s);

        inhibitor.hold();

        // Who had waited for it would have given it up and hung up by now.
        QTRY_VERIFY(hanging.hasPendingConnections());
        const std::unique_ptr<QLocalSocket> asking(hanging.nextPendingConnection());
        QTRY_VERIFY(asking->bytesAvailable() > 0);
        QCOMPARE(asking->state(), QLocalSocket::ConnectedState);
        asking->abort();
        hanging.close();
    }

private:
    QTemporaryDir m_folder;
    QString m_bus = m_folder.filePath(u"bus"_s);
    EnvironmentVariable m_system{"DBUS_SYSTEM_BUS_ADDRESS", u"unix:path="_s + m_bus};
    EnvironmentVariable m_session{"DBUS_SESSION_BUS_ADDRESS", u"unix:path=/nowhere"_s};
};

QTEST_GUILESS_MAIN(SleepWithoutBusTest)
#include "SleepWithoutBusTest.moc"
