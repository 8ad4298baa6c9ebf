// A program that dies after any of the steps by which it keeps a lecture, and the next one that
// goes on with it.

#include "audio/LeftStage.h"
#include "audio/TakeFolder.h"
#include "support/TestCase.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

// 0: nobody dies.
int s_stepsToLive = 0;

bool s_isAudioAnotherDisk = false;

bool isInAudio(const char *path)
{
    return std::strstr(path, "/Audio/") != nullptr;
}

void takeStep()
{
    if (s_stepsToLive > 0 && --s_stepsToLive == 0)
        ::_exit(9);
}

} // namespace

// Everything by which a file of the disk changes, of this program and of the libraries: they find
// these before those of the system. The step that is the last one is done.
#define STEP(result, name, parameters, arguments)                                                  \
    extern "C" result name parameters                                                              \
    {                                                                                              \
        using Function = result(*) parameters;                                                     \
        static const auto real = reinterpret_cast<Function>(::dlsym(RTLD_NEXT, #name));            \
        const result value = real arguments;                                                       \
        takeStep();                                                                                \
        return value;                                                                              \
    }

// Where that is so, no file is renamed into the folder of the recordings.
extern "C" int rename(const char *from, const char *to) noexcept
{
    if (s_isAudioAnotherDisk && isInAudio(from) != isInAudio(to)) {
        errno = EXDEV;
        return -1;
    }
    const int value = ::renameat(AT_FDCWD, from, AT_FDCWD, to);
    takeStep();
    return value;
}
STEP(int, renameat2,
     (int fromFolder, const char *from, int toFolder, const char *to, unsigned flags) noexcept,
     (fromFolder, from, toFolder, to, flags))
STEP(int, unlink, (const char *path) noexcept, (path))
STEP(int, fsync, (int file), (file))
STEP(int, fdatasync, (int file), (file))
STEP(int, ftruncate, (int file, off_t size) noexcept, (file, size))
STEP(int, posix_fallocate, (int file, off_t at, off_t size), (file, at, size))
STEP(ssize_t, pwrite, (int file, const void *bytes, size_t count, off_t at),
     (file, bytes, count, at))
STEP(ssize_t, pwrite64, (int file, const void *bytes, size_t count, off64_t at),
     (file, bytes, count, at))

using namespace Qt::StringLiterals;
using tarvelo::audio::TakeFolder;
using tarvelo::tests::LeftStage;

class InterruptedKeepingTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void whoeverDiesAfterAnyStepLosesAndDoublesNothing_data()
    {
        QTest::addColumn<bool>("hasJournal");
        QTest::addColumn<bool>("isOfSecond");
        QTest::addColumn<bool>("onTwoDisks");
        QTest::newRow("with a journal") << true << false << false;
        QTest::newRow("a recording alone") << false << false << false;
        QTest::newRow("of a second process") << true << true << false;
        QTest::newRow("with recordings on another disk") << true << false << true;
    }
    void whoeverDiesAfterAnyStepLosesAndDoublesNothing()
    {
        QFETCH(bool, hasJournal);
        QFETCH(bool, isOfSecond);
        QFETCH(bool, onTwoDisks);
        s_isAudioAnotherDisk = onTwoDisks;
        LeftStage::takeBytes();
        int steps = 0;
        for (bool isThrough = false; !isThrough;) {
            LeftStage stage;
            stage.leaveTake();
            if (hasJournal)
                stage.leaveJournal();
            if (isOfSecond)
                moveToSecond(stage);

            isThrough = keepsInAnother(stage, ++steps);

            goOn(stage);
            stage.expectOneKeptLecture();
            QVERIFY2(!QTest::currentTestFailed(), qPrintable(QString::number(steps)));
        }
        // As many as it takes to write, sync and name a recording, a journal and a row.
        QVERIFY(steps > 20);
    }

private:
    // As if the process had had a folder of its own.
    static void moveToSecond(const LeftStage &stage)
    {
        const QString folder = stage.locations.temporaryFolder();
        QVERIFY(QDir(folder).mkdir(u"take-abcdef"_s));
        for (const QString &name : stage.names())
            QVERIFY(QFile::rename(folder + u'/' + name, folder + u"/take-abcdef/"_s + name));
    }
    // True when the process lived to its end.
    static bool keepsInAnother(const LeftStage &home, int steps)
    {
        const pid_t child = ::fork();
        if (child == 0) {
            s_stepsToLive = steps;
            LeftStage stage(home.places.places());
            keepWhatIsThere(stage);
            ::_exit(0);
        }
        int status = 0;
        ::waitpid(child, &status, 0);
        return WIFEXITED(status) && WEXITSTATUS(status) == 0;
    }
    static void goOn(LeftStage &stage) { keepWhatIsThere(stage); }
    static void keepWhatIsThere(LeftStage &stage)
    {
        stage.setAside();
        for (const QString &path : TakeFolder::below(stage.locations.temporaryFolder()))
            if (const auto folder = TakeFolder::own(path))
                stage.left.setAside(path);
        stage.left.storeOwed();
        for (const auto &left : stage.left.undecided())
            stage.left.keep(left);
    }
};

QTEST_GUILESS_MAIN(InterruptedKeepingTest)
#include "InterruptedKeepingTest.moc"
