#include "audio/engine/FragmentedFile.h"

#include "audio/engine/AacEncoder.h"
#include "support/TestCase.h"

#include <QFile>
#include <QTemporaryDir>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <chrono>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

using namespace tarvelo::engine;

namespace {

// As a disk does that failed to write: it says so once, and has forgotten what it was.
std::atomic<int> g_syncsFailing = 0;
// So many writes fail, from that failure on.
std::atomic<int> g_writesFailing = 0;
std::atomic<bool> g_doWritesFail = false;

// As a disk that takes its time: until `g_isDiskBusy` is over.
std::atomic<bool> g_isDiskBusy = false;
std::atomic<bool> g_isSyncWaiting = false;

// Only what comes behind is lost.
std::atomic<off_t> g_sizeOnDisk = 0;

off_t sizeOf(int file)
{
    struct stat status = {};
    return ::fstat(file, &status) == 0 && S_ISREG(status.st_mode) ? status.st_size : 0;
}

void forgetContent(int file)
{
    const off_t size = sizeOf(file);
    const std::string path = "/proc/self/fd/" + std::to_string(file);
    ::truncate(path.c_str(), std::min<off_t>(size, g_sizeOnDisk));
    ::truncate(path.c_str(), size);
}

} // namespace

extern "C" __attribute__((used)) int fdatasync(int file)
{
    g_isSyncWaiting = g_isDiskBusy.load();
    g_isDiskBusy.wait(true);
    if (g_syncsFailing <= 0) {
        const off_t size = sizeOf(file);
        const auto result = static_cast<int>(::syscall(SYS_fdatasync, file));
        g_sizeOnDisk = result == 0 ? size : g_sizeOnDisk.load();
        return result;
    }
    --g_syncsFailing;
    g_doWritesFail = true;
    forgetContent(file);
    errno = EIO;
    return -1;
}

extern "C" __attribute__((used)) ssize_t pwrite(int file, const void *bytes, size_t count, off_t at)
{
    if (!g_doWritesFail || g_writesFailing <= 0)
        return ::syscall(SYS_pwrite64, file, bytes, count, at);
    --g_writesFailing;
    errno = EIO;
    return -1;
}

class FragmentedFileTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void whatADiskFailedToWriteIsWrittenAgain()
    {
        const QByteArray expected = takeOf(0);
        QVERIFY(!expected.isEmpty());

        QCOMPARE(takeOf(1), expected);

        QVERIFY(m_isSynced);
    }

    void whatIsWrittenAgainAndFailsOnceMoreIsNotTakenForSynced()
    {
        const QByteArray expected = takeOf(0);
        g_writesFailing = 1;

        QCOMPARE(takeOf(1), expected);
        QVERIFY(m_isSynced);

        g_writesFailing = 1000;
        takeOf(1);
        QVERIFY(!m_isSynced);
    }

    void aDiskThatWritesNothingIsSaidToHaveFailed()
    {
        takeOf(1000);

        QVERIFY(!m_isSynced);
    }

    // What waits in memory is lost when the program is killed.
    void aDiskThatTakesItsTimeKeepsNothingFromTheFile()
    {
        const auto encoder = AacEncoder::create({});
        const QTemporaryDir folder;
        const auto take = takeIn(folder, *encoder);
        g_isDiskBusy = true;
        while (!g_isSyncWaiting)
            addSilence(*encoder, *take, 10);

        const double before = take->secondsInFile();
        addSilence(*encoder, *take, 100);
        const double grown = take->secondsInFile() - before;
        const bool wasSynced = take->isSynced();
        g_isDiskBusy = false;
        g_isDiskBusy.notify_all();
        take->finish();

        QVERIFY2(grown > 100 * 1024 / 44100.0 - 2 * FragmentedFile::FragmentSeconds,
                 qPrintable(QString::number(grown)));
        QVERIFY(!wasSynced);
        QVERIFY(take->isSynced());
    }

    // As in a pause: what waits in memory is lost when the program is killed.
    void roomThatComesIsUsedAlsoWhenNothingFollows()
    {
        const auto encoder = AacEncoder::create({});
        const QTemporaryDir folder;
        const auto take = takeIn(folder, *encoder);
        g_writesFailing = 1000;
        g_doWritesFail = true;
        addSilence(*encoder, *take, 100);
        QVERIFY(take->isDiskFailing());
        QCOMPARE(take->secondsInFile(), 0.0);

        g_doWritesFail = false;

        QTRY_VERIFY((take->syncNowAndThen(), !take->isDiskFailing()));
        QVERIFY(take->secondsInFile() > 100 * 1024 / 44100.0 - 2 * FragmentedFile::FragmentSeconds);
        g_writesFailing = 0;
    }

    // As in a pause.
    void whatWasWrittenComesToTheDiskAlsoWhenNothingFollows()
    {
        const auto encoder = AacEncoder::create({});
        const QTemporaryDir folder;
        const auto take = takeIn(folder, *encoder);
        addSilence(*encoder, *take, 100);
        QVERIFY(!take->isSynced());

        QTRY_VERIFY((take->syncNowAndThen(), take->isSynced()));
    }

private:
    static std::unique_ptr<FragmentedFile> takeIn(const QTemporaryDir &folder, AacEncoder &encoder)
    {
        return FragmentedFile::create(
            OutputFile::create(
                QFile::encodeName(folder.filePath(QStringLiteral("take.m4a"))).toStdString()),
            encoder.codec());
    }
    static void addSilence(AacEncoder &encoder, FragmentedFile &take, int frames)
    {
        for (int frame = 0; frame < frames; ++frame) {
            AVFrame *quiet = encoder.frame();
            av_samples_set_silence(quiet->extended_data, 0, encoder.frameLength(), 2,
                                   AV_SAMPLE_FMT_FLTP);
            encoder.encode(encoder.frameLength(),
                           [&](const AVPacket &packet) { take.add(packet); });
        }
    }

    QByteArray takeOf(int syncsFailing)
    {
        const QTemporaryDir folder;
        QFile file(folder.filePath(QStringLiteral("take.m4a")));
        g_sizeOnDisk = 0;
        const auto encoder = AacEncoder::create({});
        const auto take = FragmentedFile::create(
            OutputFile::create(QFile::encodeName(file.fileName()).toStdString()), encoder->codec());
        addSilence(*encoder, *take, 100);
        g_syncsFailing = syncsFailing;
        take->finish();
        g_syncsFailing = 0;
        g_writesFailing = 0;
        g_doWritesFail = false;
        m_isSynced = take->isSynced();
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    bool m_isSynced = false;
};

QTEST_GUILESS_MAIN(FragmentedFileTest)
#include "FragmentedFileTest.moc"
