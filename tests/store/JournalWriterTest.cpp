#include "store/JournalWriter.h"

#include "store/LectureJournal.h"
#include "support/FileContent.h"
#include "support/FolderCase.h"

#include <QDir>
#include <QFile>

#include <atomic>
#include <sys/syscall.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace tarvelo::store;

namespace {
std::atomic<bool> isDiskBusy = false;
}

// As a disk does that takes its time.
extern "C" __attribute__((used)) int fdatasync(int file)
{
    isDiskBusy.wait(true);
    return static_cast<int>(::syscall(SYS_fdatasync, file));
}

class JournalWriterTest final : public tarvelo::tests::FolderCase
{
    Q_OBJECT

private Q_SLOTS:
    void whatIsWrittenIsOnTheDiskAfterAFlush()
    {
        JournalWriter writer(path());

        writer.write("first");
        writer.write("second");

        QVERIFY(writer.flush());
        QVERIFY(writer.isWritten() == true);
        QCOMPARE(read(path()), QByteArray("second"));
    }

    void withoutAnythingToDoAFlushWaitsForNothing()
    {
        JournalWriter writer(path());

        QVERIFY(!writer.flush());
        QVERIFY(!QFile::exists(path()));
    }

    void allThatWasAskedForIsDoneBeforeItGoes()
    {
        {
            JournalWriter writer(path());
            for (int i = 0; i < 100; ++i)
                writer.write(QByteArray::number(i));
        }

        QCOMPARE(read(path()), QByteArray("99"));
    }

    void itIsDoneInItsOrder()
    {
        JournalWriter writer(path());

        writer.write("closed");
        writer.renameTo(other());
        writer.write("open");
        QVERIFY(writer.flush());
        QCOMPARE(read(other()), QByteArray("closed"));
        QCOMPARE(read(path()), QByteArray("open"));

        writer.removeOther(other());
        writer.remove();
        writer.flush();
        QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files | QDir::Hidden), QStringList());
    }

    // A program may be killed while the disk takes its time.
    void whileTheDiskTakesItsTimeTheLastContentStandsBesideIt()
    {
        LectureJournal journal{.id = u"1"_s, .notes = u"Lenses"_s, .version = 1};
        JournalWriter writer(path());
        writer.write(toBytes(journal));
        QVERIFY(writer.flush());
        isDiskBusy = true;

        for (const QString &notes : {u"Huygens"_s, u"Fresnel"_s}) {
            journal.notes = notes;
            ++journal.version;
            writer.write(toBytes(journal));
            QCOMPARE(readLatest(path()).file.journal.notes, notes);
        }
        QCOMPARE(readJournal(path()).journal.notes, u"Lenses"_s);

        isDiskBusy = false;
        isDiskBusy.notify_all();
        QVERIFY(writer.flush());
        QVERIFY(!readLatest(path()).isAhead);
        QCOMPARE(readJournal(path()).journal.notes, u"Fresnel"_s);
        writer.remove();
        writer.flush();
        QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files | QDir::Hidden), QStringList());
    }

    // As on a full disk: what stands there is replaced, not emptied first.
    void whereTheLastContentCannotBeWrittenTheOneBeforeStays()
    {
        LectureJournal journal{.id = u"1"_s, .notes = u"Lenses"_s, .version = 1};
        QVERIFY(writeLatest(path(), toBytes(journal)));
        QVERIFY(QDir(m_folder->path()).mkdir(u"."_s + QFileInfo(latestOf(path())).fileName()));

        journal.notes = u"Huygens"_s;
        QVERIFY(!writeLatest(path(), toBytes(journal)));

        QCOMPARE(readLatest(path()).file.journal.notes, u"Lenses"_s);
    }

    void aMarkIsMadeAlsoWhenThereWasNoJournal()
    {
        JournalWriter writer(path());

        writer.renameTo(other());
        writer.flush();

        QVERIFY(QFile::exists(other()));
    }

    void whatCannotBeWrittenIsSaid()
    {
        JournalWriter writer(m_folder->filePath(u"missing/lecture.journal"_s));

        writer.write("content");

        QVERIFY(!writer.flush());
        QVERIFY(writer.isWritten() == false);
    }

private:
    QString path() const { return m_folder->filePath(u"lecture.journal"_s); }
    QString other() const { return m_folder->filePath(u"lecture.closed"_s); }
    static QByteArray read(const QString &path)
    {
        return tarvelo::tests::contentOf(path).trimmed();
    }
};

QTEST_GUILESS_MAIN(JournalWriterTest)
#include "JournalWriterTest.moc"
