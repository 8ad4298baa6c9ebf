#include "platform/SteadyFile.h"

#include "support/FileContent.h"
#include "support/FolderCase.h"
#include "support/RefusedCalls.h"
#include "support/SmallFiles.h"

#include <QDir>
#include <QFile>

#include <sys/stat.h>

using namespace Qt::StringLiterals;
using tarvelo::platform::SteadyFile;
using tarvelo::tests::contentOf;
using tarvelo::tests::SmallFiles;

class SteadyFileTest final : public tarvelo::tests::FolderCase
{
    Q_OBJECT

private Q_SLOTS:
    void theLastContentStandsThereFollowedByBlanks()
    {
        SteadyFile file(path());

        for (const char *content : {"first", "the second is longer", "third"})
            QVERIFY(file.replace(content));

        QCOMPARE(read().trimmed(), QByteArray("third"));
    }

    void itIsForItsUserAlone()
    {
        SteadyFile file(path());
        QVERIFY(file.replace("content") && file.replace("content"));

        for (const QString &name : names()) {
            struct stat status = {};
            QCOMPARE(::stat(QFile::encodeName(m_folder->filePath(name)).constData(), &status), 0);
            QCOMPARE(status.st_mode & 07777, 0600U);
        }
        QCOMPARE(names().size(), 2);
    }

    // What it needs on the disk is taken by the first content, and not again.
    void itNeedsNoMoreRoomForWhatComesNext()
    {
        SteadyFile file(path());
        QVERIFY(file.replace("first"));
        const qint64 before = blocks();

        for (int i = 0; i < 20; ++i)
            QVERIFY(file.replace(QByteArray(200 * i, 'n')));

        QCOMPARE(blocks(), before);
    }

    void contentThatOutgrowsItsRoomIsWrittenWholeAllTheSame()
    {
        SteadyFile file(path());
        QVERIFY(file.replace("first"));
        const QByteArray notes(100'000, 'n');

        QVERIFY(file.replace(notes));

        QCOMPARE(read().trimmed(), notes);
    }

    void whatCannotBeWrittenLeavesTheOldContent()
    {
        SteadyFile file(path());
        QVERIFY(file.replace("first"));
        {
            const SmallFiles full(16 << 10);
            QVERIFY(!file.replace(QByteArray(40'000, 'n')));
        }
        QCOMPARE(read().trimmed(), QByteArray("first"));

        QVERIFY(file.replace("as long as before"));

        QCOMPARE(read().trimmed(), QByteArray("as long as before"));
    }

    void withHalfTheRoomItWishesForItIsContent()
    {
        SteadyFile file(path());
        const SmallFiles full(30'000);

        QVERIFY(file.replace(QByteArray(20'000, 'n')));

        QCOMPARE(read().trimmed(), QByteArray(20'000, 'n'));
    }

    void whatACrashLeftIsWrittenOver()
    {
        QVERIFY(SteadyFile(path()).replace("of a process that is gone"));

        QVERIFY(SteadyFile(path()).replace("mine"));

        QCOMPARE(read().trimmed(), QByteArray("mine"));
        QCOMPARE(names().size(), 2);
    }

    void inAFolderThatIsMissingNothingIsWritten()
    {
        SteadyFile file(m_folder->filePath(u"missing/file"_s));

        QVERIFY(!file.replace("content"));
    }

    // A power cut may bring the old content back then.
    void namesThatAreNotOnTheDiskAreSaid()
    {
        SteadyFile file(path());
        QVERIFY(file.replace("first"));
        tarvelo::tests::refuse("fsync", qPrintable(m_folder->path()));
        QVERIFY(!file.replace("second"));
        QVERIFY(tarvelo::tests::wasRefused());

        QVERIFY(file.replace("third"));

        QCOMPARE(read().trimmed(), QByteArray("third"));
    }

    // It may be what the disk still has under the other name.
    void whatACrashLeftIsNotWrittenIntoUnlessTheNamesAreOnTheDisk()
    {
        QVERIFY(SteadyFile(path()).replace("first"));
        struct stat before = {};
        const QByteArray spare = QFile::encodeName(m_folder->filePath(u".file.spare"_s));
        QCOMPARE(::stat(spare.constData(), &before), 0);
        const int held = ::open(spare.constData(), O_RDONLY);
        tarvelo::tests::refuse("fsync", qPrintable(m_folder->path()));

        QVERIFY(SteadyFile(path()).replace("second"));

        struct stat after = {};
        QCOMPARE(::stat(QFile::encodeName(path()).constData(), &after), 0);
        QVERIFY(before.st_ino != after.st_ino);
        ::close(held);
    }

    void itGoesWithItsRoom()
    {
        SteadyFile file(path());
        QVERIFY(file.replace("first") && file.replace("second"));

        file.remove();

        QCOMPARE(names(), QStringList());
        QVERIFY(file.replace("again"));
        QCOMPARE(read().trimmed(), QByteArray("again"));
    }

    void underAnotherNameItStaysWithoutItsRoom()
    {
        SteadyFile file(path());
        QVERIFY(file.replace("first") && file.replace("second"));

        QVERIFY(file.renameTo(m_folder->filePath(u"other"_s)));

        QCOMPARE(names(), QStringList({u"other"_s}));
    }

protected:
    void finish() override
    {
        tarvelo::tests::refuseNothing();
        FolderCase::finish();
    }

private:
    QString path() const { return m_folder->filePath(u"file"_s); }
    QStringList names() const
    {
        return QDir(m_folder->path()).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }
    QByteArray read() const { return contentOf(path()); }
    qint64 blocks() const
    {
        qint64 sum = 0;
        for (const QString &name : names()) {
            struct stat status = {};
            if (::stat(QFile::encodeName(m_folder->filePath(name)).constData(), &status) == 0)
                sum += status.st_blocks;
        }
        return sum;
    }
};

QTEST_GUILESS_MAIN(SteadyFileTest)
#include "SteadyFileTest.moc"
