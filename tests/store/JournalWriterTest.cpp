#include "store/JournalWriter.h"

#include "support/TestCase.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;
using tarvelo::store::JournalWriter;

class JournalWriterTest final : public tarvelo::tests::TestCase
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

protected:
    void prepare() override { m_folder = std::make_unique<QTemporaryDir>(); }
    void finish() override { m_folder.reset(); }

private:
    QString path() const { return m_folder->filePath(u"lecture.journal"_s); }
    QString other() const { return m_folder->filePath(u"lecture.closed"_s); }
    static QByteArray read(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll().trimmed() : QByteArray();
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

QTEST_GUILESS_MAIN(JournalWriterTest)
#include "JournalWriterTest.moc"
