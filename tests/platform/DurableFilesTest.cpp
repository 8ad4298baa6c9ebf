#include "platform/DurableFiles.h"

#include "support/FileContent.h"
#include "support/RefusedCalls.h"
#include "support/TestCase.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStorageInfo>
#include <QTemporaryDir>

#include <sys/stat.h>

using namespace Qt::StringLiterals;
using namespace tarvelo::platform;
using tarvelo::tests::contentOf;
using tarvelo::tests::RefusedInTurn;
using tarvelo::tests::writeContent;

class DurableFilesTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aFileTakesTheOtherNameAndThePlaceOfWhatHadIt()
    {
        QVERIFY(writeContent(path(u"half"_s), "new"));
        QVERIFY(writeContent(path(u"whole"_s), "old"));

        QVERIFY(renameDurably(path(u"half"_s), path(u"whole"_s)));

        QCOMPARE(read(u"whole"_s), QByteArray("new"));
        QVERIFY(!QFileInfo::exists(path(u"half"_s)));
    }

    // Else a power cut could bring the old name back beside the new one.
    void theFolderThatAFileLeftKnowsOfItToo()
    {
        QVERIFY(QDir().mkpath(path(u"left"_s)) && QDir().mkpath(path(u"entered"_s)));
        RefusedInTurn calls("/left");
        while (calls.areLeft()) {
            QVERIFY(writeContent(path(u"left/file"_s), "content"));

            calls.refuse();
            const bool isMoved = renameDurably(path(u"left/file"_s), path(u"entered/file"_s));
            calls.allow();

            QCOMPARE(QFile::remove(path(u"entered/file"_s)), isMoved);
        }
        // The file is opened, synced and renamed, the folder opened and synced.
        QCOMPARE(calls.count(), 3 + 2 + 1);
    }

    void whatIsNotThereTakesNoName()
    {
        QVERIFY(writeContent(path(u"whole"_s), "old"));

        QVERIFY(!renameDurably(path(u"half"_s), path(u"whole"_s)));
        QVERIFY(!renameDurably(path(u"whole"_s), path(u"no folder/whole"_s)));

        QCOMPARE(read(u"whole"_s), QByteArray("old"));
    }

    void roomThatIsHeldIsTakenFromTheDisk()
    {
        QVERIFY(holdRoom(path(u"room"_s), 3'000'000));

        struct stat status = {};
        QCOMPARE(::stat(QFile::encodeName(path(u"room"_s)).constData(), &status), 0);
        QCOMPARE(status.st_size, 3'000'000);
        QVERIFY(status.st_blocks * 512 >= 3'000'000);
        QCOMPARE(status.st_mode & 07777, 0600U);
    }

    void roomGrowsAndNeverShrinks()
    {
        QVERIFY(holdRoom(path(u"room"_s), 10000));
        QVERIFY(holdRoom(path(u"room"_s), 20000));
        QVERIFY(holdRoom(path(u"room"_s), 5000));

        QCOMPARE(QFileInfo(path(u"room"_s)).size(), 20000);
    }

    void whereLittleIsFreeNoRoomIsTaken()
    {
        const qint64 free = QStorageInfo(m_folder.path()).bytesAvailable();

        QVERIFY(!holdRoom(path(u"room"_s), free / 2));

        QVERIFY(!QFileInfo::exists(path(u"room"_s)));
    }

    void whereNoFileCanBeNoRoomIsTaken()
    {
        QVERIFY(!holdRoom(path(u"no folder/room"_s), 10));
        QVERIFY(QFile::link(path(u"elsewhere"_s), path(u"link"_s)));
        QVERIFY(!holdRoom(path(u"link"_s), 10));

        QVERIFY(!QFileInfo::exists(path(u"elsewhere"_s)));
    }

private:
    void prepare() override { QVERIFY(m_folder.isValid()); }
    void finish() override
    {
        QDir folder(m_folder.path());
        for (const QString &name : folder.entryList(QDir::Files | QDir::System | QDir::Hidden))
            folder.remove(name);
    }

    QString path(const QString &name) const { return m_folder.filePath(name); }
    QByteArray read(const QString &name) const { return contentOf(path(name)); }

    QTemporaryDir m_folder;
};

QTEST_GUILESS_MAIN(DurableFilesTest)
#include "DurableFilesTest.moc"
