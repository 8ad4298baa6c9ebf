#include "support/TestCase.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <csignal>

namespace {

// The program as it is shipped, in a home of its own.
class Program final
{
public:
    explicit Program(const QTemporaryDir &home, const QStringList &arguments = {})
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("HOME"), home.path());
        environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), home.path());
        environment.insert(QStringLiteral("XDG_CONFIG_HOME"), home.filePath(QStringLiteral("c")));
        environment.insert(QStringLiteral("XDG_DATA_HOME"), home.filePath(QStringLiteral("d")));
        environment.remove(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"));
        environment.remove(QStringLiteral("PULSE_SERVER"));
        m_process.setProcessEnvironment(environment);
        m_process.start(QStringLiteral(TARVELO_PROGRAM), arguments);
    }
    ~Program()
    {
        m_process.kill();
        m_process.waitForFinished();
    }

    bool isRunning() const { return m_process.state() == QProcess::Running; }
    bool endedWell() const
    {
        return m_process.state() == QProcess::NotRunning &&
               m_process.exitStatus() == QProcess::NormalExit && m_process.exitCode() == 0;
    }
    void signal(int number) const { ::kill(static_cast<pid_t>(m_process.processId()), number); }
    // All that it has said so far, on both channels.
    QByteArray said()
    {
        m_said += m_process.readAllStandardOutput() + m_process.readAllStandardError();
        return m_said;
    }

private:
    QProcess m_process;
    QByteArray m_said;
};

// The calendar has chosen its first day then, the last thing that a launch does.
bool isLaunched(const QTemporaryDir &home)
{
    return QFile::exists(home.filePath(QStringLiteral("tarvelo.socket"))) &&
           QFile::exists(home.filePath(QStringLiteral("d/Tarvelo/TarveloInfo.db")));
}

} // namespace

class ProgramTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theProgramStartsWithoutBusOrSoundServerAndSaysNothing()
    {
        const QTemporaryDir home;
        Program program(home);

        QTRY_VERIFY_WITH_TIMEOUT(isLaunched(home), 60000);

        QVERIFY(program.isRunning());
        QCOMPARE(program.said(), QByteArray());
    }

    void aQuestionIsAnsweredWithoutADisplay()
    {
        const QTemporaryDir home;
        Program program(home, {QStringLiteral("-platform"), QStringLiteral("none"),
                               QStringLiteral("--version")});

        QTRY_VERIFY_WITH_TIMEOUT(program.endedWell(), 60000);

        QVERIFY(program.said().startsWith("Tarvelo "));
        QVERIFY(!isLaunched(home));
    }

    void aSecondStartEndsAtOnceAndTheFirstGoesOn()
    {
        const QTemporaryDir home;
        Program first(home);
        QTRY_VERIFY_WITH_TIMEOUT(isLaunched(home), 60000);

        Program second(home);
        QTRY_VERIFY_WITH_TIMEOUT(second.endedWell(), 60000);

        QVERIFY(first.isRunning());
        QCOMPARE(first.said() + second.said(), QByteArray());
    }

    void aRequestToEndIsFollowedAndLeavesNothingRunning_data()
    {
        QTest::addColumn<int>("number");
        QTest::newRow("SIGTERM") << SIGTERM;
        QTest::newRow("SIGINT") << SIGINT;
        QTest::newRow("SIGHUP") << SIGHUP;
    }

    void aRequestToEndIsFollowedAndLeavesNothingRunning()
    {
        QFETCH(int, number);
        const QTemporaryDir home;
        Program program(home);
        QTRY_VERIFY_WITH_TIMEOUT(isLaunched(home), 60000);

        program.signal(number);

        QTRY_VERIFY_WITH_TIMEOUT(program.endedWell(), 60000);
        QCOMPARE(program.said(), QByteArray());
        QVERIFY(!QFile::exists(home.filePath(QStringLiteral("tarvelo.lock"))));
    }

    void afterAKillTheNextStartIsTheFirst()
    {
        const QTemporaryDir home;
        {
            Program killed(home);
            QTRY_VERIFY_WITH_TIMEOUT(isLaunched(home), 60000);
        }
        QVERIFY(QFile::remove(home.filePath(QStringLiteral("d/Tarvelo/TarveloInfo.db"))));

        Program next(home);
        QTRY_VERIFY_WITH_TIMEOUT(isLaunched(home), 60000);

        QVERIFY(next.isRunning());
    }
};

QTEST_GUILESS_MAIN(ProgramTest)
#include "ProgramTest.moc"
