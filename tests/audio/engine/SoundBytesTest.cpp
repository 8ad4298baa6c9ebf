#include "audio/engine/SoundBytes.h"
#include "audio/engine/BadPlace.h"
#include "support/FolderCase.h"
#include "support/OrdinaryUser.h"

#include <QFile>

#include <atomic>
#include <sys/resource.h>
#include <sys/stat.h>
#include <thread>

using tarvelo::engine::soundBytesOf;

class SoundBytesTest final : public tarvelo::tests::FolderCase
{
    Q_OBJECT

private Q_SLOTS:
    void theBytesAreThoseOfTheFile()
    {
        const QByteArray small = "short, and no sound";
        const QByteArray large = QByteArray("RIFF____WAVEfmt ") + QByteArray(3'000'001, 'x');

        QCOMPARE(soundBytesOf(fileOf(small)), small);
        QCOMPARE(soundBytesOf(fileOf(large)), large);
    }

    void aLargeFileThatDoesNotBeginLikeSoundIsNotRead_data()
    {
        QTest::addColumn<QByteArray>("head");
        QTest::newRow("zeros") << QByteArray(16, '\0');
        QTest::newRow("text") << QByteArray("A long shopping list");
        QTest::newRow("picture") << QByteArray("\x89PNG\r\n\x1a\n____");
        QTest::newRow("pages") << QByteArray("%PDF-1.7 ________");
        QTest::newRow("database") << QByteArray("SQLite format 3");
        QTest::newRow("almost MP3") << QByteArray("\xff\x1b\x90\x64");
        QTest::newRow("film") << QByteArray("\x1a\x45\xdf\xa3____________");
        QTest::newRow("film in RIFF") << QByteArray("RIFF____AVI LIST");
    }
    void aLargeFileThatDoesNotBeginLikeSoundIsNotRead()
    {
        QFETCH(QByteArray, head);

        QVERIFY(soundBytesOf(fileOf(head + QByteArray(1 << 20, 'x'))).isNull());
    }

    void aLargeFileThatBeginsLikeSoundIsRead_data()
    {
        QTest::addColumn<QByteArray>("head");
        QTest::newRow("MPEG-4") << QByteArray("\0\0\0\x18"
                                              "ftypM4A ",
                                              12);
        QTest::newRow("WAV") << QByteArray("RIFF____WAVE");
        QTest::newRow("AIFF") << QByteArray("FORM____AIFF");
        QTest::newRow("MP3") << QByteArray("\xff\xfb\x90\x64");
        QTest::newRow("MP3 with a title") << QByteArray("ID3\3");
        QTest::newRow("AAC in a stream") << QByteArray("\xff\xf1\x50\x80");
        QTest::newRow("FLAC") << QByteArray("fLaC");
        QTest::newRow("Ogg") << QByteArray("OggS");
        QTest::newRow("CAF") << QByteArray("caff");
    }
    void aLargeFileThatBeginsLikeSoundIsRead()
    {
        QFETCH(QByteArray, head);
        const QByteArray bytes = head + QByteArray(1 << 20, 'x');

        QCOMPARE(soundBytesOf(fileOf(bytes)), bytes);
    }

    void thereIsNothingToReadFrom()
    {
        QVERIFY(soundBytesOf(QString()).isNull());
        QVERIFY(soundBytesOf(path("missing")).isNull());
        QVERIFY(soundBytesOf(m_folder->path()).isNull());
        QVERIFY(soundBytesOf(fileOf("")).isNull());
        QVERIFY(soundBytesOf(QStringLiteral("/dev/zero")).isNull());
        QVERIFY(soundBytesOf(QStringLiteral("/proc/self/mem")).isNull());
    }

    // A pipe that nobody writes to would keep who opens it waiting for ever.
    void aPipeIsNotWaitedFor()
    {
        QCOMPARE(mkfifo(QFile::encodeName(path("pipe")).constData(), 0600), 0);

        QVERIFY(soundBytesOf(path("pipe")).isNull());
    }

    void aFileThatMayNotBeReadGivesNothing()
    {
        const QString file = fileOf("private");
        QVERIFY(QFile::setPermissions(file, {}));

        const tarvelo::tests::OrdinaryUser user;
        QVERIFY(soundBytesOf(file).isNull());
    }

    void ofAFileWithABadPlaceAllBeforeItIsRead()
    {
        const QByteArray bytes = QByteArray("RIFF____WAVEfmt ") + QByteArray(3'000'001, 'x');
        const QString file = fileOf(bytes);
        const tarvelo::tests::BadPlace bad(2'000'000, EIO);

        QCOMPARE(soundBytesOf(file), bytes.first(2'000'000));
    }

    void aFileThatCannotBeReadAtAllGivesNothing()
    {
        const QString file = fileOf("short");
        const tarvelo::tests::BadPlace bad(0, EIO);

        QVERIFY(soundBytesOf(file).isNull());
    }

    void aSignalThatBreaksOffReadingCostsNothing()
    {
        const QByteArray bytes(100'000, 'x');
        const QString file = fileOf(bytes);
        const tarvelo::tests::BadPlace bad(5000, EINTR, 3);

        QCOMPARE(soundBytesOf(file), bytes);
    }

    void fourGibibytesOfZerosCostNothing()
    {
        const QString file = fileOf("");
        QVERIFY(QFile::resize(file, qint64(4) << 30));
        const long before = mostMemory();

        QVERIFY(soundBytesOf(file).isNull());

        QVERIFY(mostMemory() - before < 1024);
    }

    void whatIsTooLargeToBeHeldIsNotRead()
    {
        const QString file = fileOf("RIFF____WAVE");
        QVERIFY(QFile::resize(file, qint64(4) << 30));
        const long before = mostMemory();

        QVERIFY(soundBytesOf(file).isNull());

        QVERIFY(mostMemory() - before < 1024);
    }

    // Somebody records into it, or empties it, meanwhile.
    void aFileThatChangesWhileItIsReadDoesNoHarm()
    {
        constexpr qint64 Most = 4 << 20;
        const QString file = fileOf("RIFF____WAVE");
        std::atomic<bool> isEnough = false;
        std::thread changes([&] {
            for (qint64 size = 0; !isEnough; size = (size + 1'234'567) % Most)
                QFile::resize(file, size);
        });

        bool isAlright = true;
        for (int time = 0; time < 300; ++time) {
            const QByteArray bytes = soundBytesOf(file);
            isAlright = isAlright && bytes.size() <= Most && (bytes.isNull() || !bytes.isEmpty());
        }
        isEnough = true;
        changes.join();

        QVERIFY(isAlright);
    }

private:
    QString path(const char *name) const { return m_folder->filePath(QString::fromLatin1(name)); }
    QString fileOf(const QByteArray &bytes) const
    {
        QFile file(path("file"));
        const bool isWritten = file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
        return isWritten ? file.fileName() : QString();
    }
    // Of this process at any time, in KiB.
    static long mostMemory()
    {
        rusage usage{};
        getrusage(RUSAGE_SELF, &usage);
        return usage.ru_maxrss;
    }
};

QTEST_GUILESS_MAIN(SoundBytesTest)
#include "SoundBytesTest.moc"
