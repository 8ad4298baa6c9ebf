#include "platform/FolderLock.h"

#include "support/FolderCase.h"

#include <QProcess>

#include <dlfcn.h>
#include <functional>
#include <memory>
#include <sys/file.h>
#include <utility>

using namespace Qt::StringLiterals;
using tarvelo::platform::FolderLock;

namespace {
std::function<void()> s_beforeLocking;
}

// The program finds this one before that of the system.
extern "C" int flock(int file, int operation) noexcept
{
    if (const auto before = std::exchange(s_beforeLocking, {}))
        before();
    using Function = int (*)(int, int);
    static const auto real = reinterpret_cast<Function>(::dlsym(RTLD_NEXT, "flock"));
    return real(file, operation);
}

class FolderLockTest final : public tarvelo::tests::FolderCase
{
    Q_OBJECT

private Q_SLOTS:
    void aFolderHasOneOwner()
    {
        auto first = std::make_unique<FolderLock>();
        FolderLock second;

        QVERIFY(first->own(m_folder->path()) && first->owns());
        QVERIFY(!second.own(m_folder->path()) && !second.owns());

        first.reset();
        QVERIFY(second.own(m_folder->path()));
    }

    void owningItAgainChangesNothing()
    {
        FolderLock owner;

        QVERIFY(owner.own(m_folder->path()));
        QVERIFY(owner.own(m_folder->path()));
    }

    void aFolderThatIsMissingHasNoOwner()
    {
        FolderLock owner;

        QVERIFY(!owner.own(m_folder->filePath(u"missing"_s)));
    }

    // Who had it took it away, and the lock is of a file that nobody finds any more.
    void aFolderThatWentMeanwhileHasNoOwner()
    {
        auto first = std::make_unique<FolderLock>();
        QVERIFY(first->own(m_folder->path()));
        const QString path = m_folder->filePath(u".owner"_s);
        first.reset();
        s_beforeLocking = [&path] { QVERIFY(QFile::remove(path)); };

        FolderLock second;
        QVERIFY(!second.own(m_folder->path()));
    }

    void theFileIsForItsUserAlone()
    {
        FolderLock owner;
        QVERIFY(owner.own(m_folder->path()));

        struct stat status = {};
        QCOMPARE(::stat(QFile::encodeName(m_folder->filePath(u".owner"_s)).constData(), &status),
                 0);
        QCOMPARE(status.st_mode & 07777, 0600U);
    }

    // Else a player that outlives the program would keep its leftovers from being offered.
    void aProgramThatIsStartedDoesNotHoldIt()
    {
        auto owner = std::make_unique<FolderLock>();
        QVERIFY(owner->own(m_folder->path()));
        QProcess started;
        started.start(u"cat"_s, QStringList());
        QVERIFY(started.waitForStarted());

        owner.reset();

        FolderLock other;
        QVERIFY(other.own(m_folder->path()));
        started.closeWriteChannel();
        QVERIFY(started.waitForFinished());
    }

    void theLockOfAProcessThatEndedIsGone()
    {
        QProcess holder;
        holder.start(u"flock"_s, {m_folder->filePath(u".owner"_s), u"-c"_s, u"echo held; cat"_s});
        QVERIFY(holder.waitForReadyRead());
        FolderLock owner;
        QVERIFY(!owner.own(m_folder->path()));

        holder.closeWriteChannel();
        QVERIFY(holder.waitForFinished());

        QVERIFY(owner.own(m_folder->path()));
    }
};

QTEST_GUILESS_MAIN(FolderLockTest)
#include "FolderLockTest.moc"
