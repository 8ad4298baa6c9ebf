#include "store/LectureDatabase.h"

#include "store/DamagedDatabases.h"
#include "store/DatabaseCase.h"
#include "store/FullDisk.h"
#include "store/Integrity.h"
#include "store/LectureInfoItem.h"
#include "store/LectureJournal.h"
#include "store/Statements.h"

using namespace Qt::StringLiterals;
using namespace tarvelo::store;
using namespace tarvelo::tests;

// What the database does with a file that is damaged.
class MendedDatabaseTest final : public DatabaseCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_sound = databaseOf(30); }

    void aSoundFileIsLeftAloneAndNothingIsPutAside()
    {
        start(m_sound);

        QVERIFY(m_database->openDb());
        QVERIFY(m_database->mendIfDamaged());

        QCOMPARE(subjectsIn(connection()).size(), 30);
        QVERIFY(!m_database->damagedFiles().newest());
    }

    void whatCannotBeReadAtAllIsPutAsideAtTheFirstUse()
    {
        QByteArray content = m_sound;
        content.replace(0, 100, QByteArray(100, '\0'));
        start(content);

        QVERIFY(m_database->openDb());

        QCOMPARE(subjectsIn(connection()).size(), 30);
        QVERIFY(isSound(connection()));
        QCOMPARE(aside(), content);
    }

    void aFileThatWasCutOffKeepsWhatIsLeft()
    {
        const QByteArray content = m_sound.chopped(DatabasePage);
        start(content);

        QVERIFY(m_database->openDb());

        QVERIFY(subjectsIn(connection()).size() >= 20);
        QCOMPARE(aside(), content);
    }

    void aDamagedPageIsFoundByLookingAtEveryPageAndTheConnectionStaysTheSame()
    {
        start(withDamagedPage());
        Sqlite *const before = m_database->openDb();
        QVERIFY(!m_database->damagedFiles().newest());

        QVERIFY(m_database->mendIfDamaged());

        QCOMPARE(m_database->openDb(), before);
        QVERIFY(isSound(connection()));
        QVERIFY(subjectsIn(connection()).size() >= 20);
        aLecture().named("later").insertInto(*m_database);
        QVERIFY(subjectsIn(connection()).contains(u"later"_s));
    }

    void aWriteThatFailsOnADamagedFileCostsNoLectureThatCanBeRead()
    {
        start(withDamagedPage());
        QVERIFY(m_database->openDb());
        const QByteArray content = m_places->readDatabaseFile();

        m_database->insertIntoDbwithSqlStatementWithArguments(u"nonsense"_s, {});
        aLecture().named("later").insertInto(*m_database);

        QCOMPARE(subjectsIn(connection()), QStringList(u"later"_s));
        QCOMPARE(aside(), content);
        const auto copies = m_database->backups().copies(connection());
        QCOMPARE(copies.size(), 1);
        QVERIFY(m_database->backups().bringBack(copies.first().filePath, connection())->count >=
                20);
    }

    void aJournalThatADeathLeftIsFollowedAndNothingStaysAside()
    {
        QByteArray content;
        QByteArray journal;
        leaveHalfDone(content, journal);
        start(content);
        QVERIFY(writeContent(m_places->databaseFile() + u"-journal"_s, journal));

        QVERIFY(m_database->openDb());

        QCOMPARE(subjectsIn(connection()).size(), 30);
        QVERIFY(isSound(connection()));
        QVERIFY(!m_database->damagedFiles().newest());
    }

    void whatADamagedFileWasBeforeItsJournalWasFollowedLiesAside()
    {
        QByteArray content;
        QByteArray journal;
        leaveHalfDone(content, journal);
        journal.fill('\xa5');
        content.replace(0, 16, QByteArray(16, '\0'));
        start(content);
        QVERIFY(writeContent(m_places->databaseFile() + u"-journal"_s, journal));

        QVERIFY(m_database->openDb());

        QCOMPARE(aside(), content);
        QCOMPARE(contentOf(m_database->damagedFiles().newest()->filePath + u"-journal"_s), journal);
        QVERIFY(isSound(connection()));
    }

    void theJournalOfAFileThatWasEmptiedLiesAside()
    {
        QByteArray content;
        QByteArray journal;
        leaveHalfDone(content, journal);
        start(QByteArray());
        QVERIFY(writeContent(m_places->databaseFile() + u"-journal"_s, journal));

        QVERIFY(m_database->openDb());

        QCOMPARE(contentOf(m_database->damagedFiles().newest()->filePath + u"-journal"_s), journal);
    }

    void aLockedFileIsNotTakenForADamagedOne()
    {
        start(m_sound);
        Sqlite other(m_places->databaseFile());
        QVERIFY(other.beginTransaction());

        QVERIFY(m_database->openDb());
        QVERIFY(!m_database->mendIfDamaged());

        QVERIFY(other.rollback());
        QVERIFY(!m_database->damagedFiles().newest());
        QCOMPARE(subjectsIn(connection()).size(), 30);
    }

    // 3 is SQLite's number for it.
    void whatCannotBeMendedIsForcedToTheDiskAllTheSame()
    {
        start(withDamagedPage());
        QDir().mkpath(m_places->folder() + u"/Backups/.sound.attempt"_s);

        QVERIFY(m_database->openDb());
        QVERIFY(!m_database->mendIfDamaged());

        const auto rows = connection().executeQuery(u"PRAGMA synchronous"_s);
        QVERIFY(rows);
        QCOMPARE(rows->value(0).value(u"synchronous"_s).toInt(), 3);
    }

    void oneDamageIsPutAsideOnceAlsoWhenItCannotBeMended()
    {
        start(withDamagedPage());
        QVERIFY(m_database->openDb());
        QDir().mkpath(m_places->folder() + u"/Backups/.sound.attempt"_s);

        QVERIFY(!m_database->mendIfDamaged());
        m_clock.advance(std::chrono::hours(24));
        QVERIFY(!m_database->mendIfDamaged());

        QCOMPARE(QDir(m_places->folder() + u"/Backups"_s).entryList(QDir::Files).size(), 1);
        QVERIFY(m_database->connection());
    }

    // What cannot be put aside is not written to, until it can be.
    void aDamagedFileThatCannotBePutAsideIsNotWrittenTo()
    {
        QByteArray content = m_sound;
        content.replace(content.size() / 2 / DatabasePage * DatabasePage, DatabasePage,
                        QByteArray(DatabasePage, '\xa5'));
        start(content);
        const QString copies = m_places->folder() + u"/Backups"_s;
        QDir().mkpath(copies);
        {
            const SmallDisk disk(copies, 16);
            QVERIFY(m_database->openDb());
            const QByteArray before = m_places->readDatabaseFile();
            QVERIFY(!m_database->mendIfDamaged());

            QVERIFY(!m_database->openToWrite());
            QVERIFY(!insertLater());
            LectureInfoItem first({}, {}, {}, {}, true);
            first.setRecordUniqueID(1);
            first.setLectureAudioPath(u"/nowhere.m4a"_s);
            QVERIFY(!m_database->deleteVoiceData(first));
            QCOMPARE(m_places->readDatabaseFile(), before);
        }

        QVERIFY(insertLater());
        QVERIFY(m_database->damagedFiles().newest());
        QVERIFY(m_database->mendIfDamaged());
        QVERIFY(subjectsIn(connection()).contains(u"later"_s));
    }

private:
    bool insertLater()
    {
        return m_database->insertIntoDbwithSqlStatementWithArguments(
            statements::Insert, newLectureRow(u"later"_s, {}, u"2024-03-05"_s, {}, {}));
    }
    void start(const QByteArray &content) const { m_places->writeDatabaseFile(content); }
    Sqlite &connection() const { return *m_database->openDb(); }
    QByteArray aside() const
    {
        const auto newest = m_database->damagedFiles().newest();
        return newest ? contentOf(newest->filePath) : QByteArray();
    }
    QByteArray withDamagedPage() const
    {
        QByteArray content = m_sound;
        content.replace(content.size() - DatabasePage, DatabasePage,
                        QByteArray(DatabasePage, '\xa5'));
        return content;
    }
    // As a death in the middle of a large change leaves it.
    void leaveHalfDone(QByteArray &content, QByteArray &journal) const
    {
        start(m_sound);
        Sqlite database(m_places->databaseFile());
        QVERIFY(database.executeQuery(u"PRAGMA cache_size = 2"_s));
        QVERIFY(database.beginTransaction());
        QVERIFY(database.executeNonQuery(u"UPDATE audioData SET subject = 'half', notes = ''"_s));
        content = contentOf(m_places->databaseFile());
        journal = contentOf(m_places->databaseFile() + u"-journal"_s);
        QVERIFY(database.rollback());
    }

    QByteArray m_sound;
};

QTEST_GUILESS_MAIN(MendedDatabaseTest)
#include "MendedDatabaseTest.moc"
