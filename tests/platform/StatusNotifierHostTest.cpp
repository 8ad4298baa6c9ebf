#include "platform/StatusNotifierHost.h"

#include "support/PrivateBus.h"
#include "support/TestCase.h"

#include <QFileInfo>
#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <csignal>

using namespace Qt::StringLiterals;
using tarvelo::platform::StatusNotifierHost;
using tarvelo::tests::PrivateBus;

namespace {

constexpr int Patience = 30000;

// A status bar in a process of its own, since the question to it is waited for.
class Bar final
{
public:
    explicit Bar(const QStringList &when = {})
    {
        m_process.start(QStringLiteral(PYTHON),
                        QStringList{u"-B"_s, QStringLiteral(STATUS_BAR), m_folder.path()} + when);
        while (!m_process.canReadLine() && m_process.waitForReadyRead(Patience)) {
        }
        m_isReady = m_process.readLine() == "ready\n";
    }
    Bar(const Bar &) = delete;
    Bar &operator=(const Bar &) = delete;
    ~Bar()
    {
        ::kill(pid(), SIGCONT);
        m_process.closeWriteChannel();
        m_process.waitForFinished(Patience);
    }

    bool isReady() const { return m_isReady; }
    pid_t pid() const { return static_cast<pid_t>(m_process.processId()); }
    bool wasAsked() const { return QFileInfo::exists(m_folder.filePath(u"asked"_s)); }
    void beginToShow() { m_process.write("now\n"); }

private:
    QTemporaryDir m_folder;
    QProcess m_process;
    bool m_isReady = false;
};

} // namespace

class StatusNotifierHostTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aBarThatIsThereIsToldOf()
    {
        const Bar bar;
        QVERIFY(bar.isReady());
        StatusNotifierHost host;

        const QSignalSpy appeared(&host, &StatusNotifierHost::appeared);

        QTRY_COMPARE_WITH_TIMEOUT(appeared.size(), 1, Patience);
    }

    void aBarThatComesLaterIsToldOf()
    {
        StatusNotifierHost host;
        const QSignalSpy appeared(&host, &StatusNotifierHost::appeared);

        const Bar bar;

        QVERIFY(bar.isReady());
        QTRY_COMPARE_WITH_TIMEOUT(appeared.size(), 1, Patience);
    }

    void aBarThatHasNothingToShowItemsWithIsToldOfWhenItHas()
    {
        Bar bar({u"later"_s});
        QVERIFY(bar.isReady());
        StatusNotifierHost host;
        const QSignalSpy appeared(&host, &StatusNotifierHost::appeared);

        QTRY_VERIFY_WITH_TIMEOUT(bar.wasAsked(), Patience);
        QCOMPARE(appeared.size(), 0);
        bar.beginToShow();

        QTRY_COMPARE_WITH_TIMEOUT(appeared.size(), 1, Patience);
    }

    void aBarThatHangsKeepsNobodyWaitingAndIsToldOfWhenItGoesOn()
    {
        Bar bar;
        QVERIFY(bar.isReady());
        QCOMPARE(::kill(bar.pid(), SIGSTOP), 0);

        StatusNotifierHost host;
        const QSignalSpy appeared(&host, &StatusNotifierHost::appeared);
        QCoreApplication::processEvents();
        QCOMPARE(appeared.size(), 0);
        QCOMPARE(::kill(bar.pid(), SIGCONT), 0);

        QTRY_COMPARE_WITH_TIMEOUT(appeared.size(), 1, Patience);
    }

private:
    void prepare() override { QVERIFY(m_bus.isRunning()); }

    PrivateBus m_bus;
};

QTEST_GUILESS_MAIN(StatusNotifierHostTest)
#include "StatusNotifierHostTest.moc"
