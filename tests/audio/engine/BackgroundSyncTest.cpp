#include "audio/engine/BackgroundSync.h"

#include "audio/engine/OutputFile.h"
#include "support/TestCase.h"

#include <QFile>
#include <QTemporaryDir>

#include <array>
#include <atomic>
#include <cerrno>
#include <sys/syscall.h>
#include <thread>
#include <unistd.h>

using tarvelo::engine::BackgroundSync;
using tarvelo::engine::OutputFile;

namespace {

std::atomic<bool> g_fails = false;
std::atomic<bool> g_isDiskBusy = false;
std::thread::id g_thread;

} // namespace

extern "C" __attribute__((used)) int fdatasync(int file)
{
    g_thread = std::this_thread::get_id();
    g_isDiskBusy.wait(true);
    errno = EIO;
    return g_fails ? -1 : static_cast<int>(::syscall(SYS_fdatasync, file));
}

class BackgroundSyncTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void whatWasNotBegunHasNoOutcome()
    {
        BackgroundSync sync(*m_file);

        QVERIFY(!sync.isUnderWay());
        QVERIFY(!sync.outcome());
        QVERIFY(!sync.wait());
    }

    void whoBeginsDoesNotWait()
    {
        BackgroundSync sync(*m_file);
        g_isDiskBusy = true;

        sync.begin();
        QVERIFY(sync.isUnderWay());
        QVERIFY(!sync.outcome());
        diskIsFree();

        QCOMPARE(sync.wait(), std::optional(true));
        QVERIFY(g_thread != std::this_thread::get_id());
        QVERIFY(!sync.isUnderWay());
    }

    void theOutcomeIsToldOnce()
    {
        BackgroundSync sync(*m_file);
        sync.begin();

        std::optional<bool> outcome;
        QTRY_VERIFY(outcome || (outcome = sync.outcome()));

        QVERIFY(*outcome);
        QVERIFY(!sync.outcome());
        QVERIFY(!sync.isUnderWay());
    }

    void aDiskThatFailsIsSaidToHave()
    {
        BackgroundSync sync(*m_file);
        g_fails = true;

        sync.begin();
        QCOMPARE(sync.wait(), std::optional(false));

        g_fails = false;
        sync.begin();
        QCOMPARE(sync.wait(), std::optional(true));
    }

private:
    void prepare() override
    {
        g_fails = false;
        m_file = OutputFile::create(
            QFile::encodeName(m_folder.filePath(QStringLiteral("take"))).toStdString());
        QVERIFY(m_file && m_file->append(std::array<std::uint8_t, 3>{1, 2, 3}));
    }
    void finish() override
    {
        diskIsFree();
        m_file.reset();
    }
    static void diskIsFree()
    {
        g_isDiskBusy = false;
        g_isDiskBusy.notify_all();
    }

    const QTemporaryDir m_folder;
    std::unique_ptr<OutputFile> m_file;
};

QTEST_GUILESS_MAIN(BackgroundSyncTest)
#include "BackgroundSyncTest.moc"
