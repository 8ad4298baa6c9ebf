#include "store/DatabaseCase.h"
#include "store/FullDisk.h"
#include "store/LectureDatabase.h"
#include "store/LectureInfoItem.h"
#include "store/Statements.h"
#include "support/LectureBuilder.h"
#include "support/OrdinaryUser.h"
#include "support/SmallFiles.h"
#include "support/StderrCatcher.h"

#include <QProcess>

#include <functional>
#include <memory>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace tarvelo::store;
using namespace tarvelo::tests;

namespace {

std::function<void()> duringPause;

} // namespace

// Stands in for the C library's pause in this program, so that a test can act while one goes on.
extern "C" int pauseAndAct(useconds_t microseconds) __asm__("usleep");
extern "C" int pauseAndAct(useconds_t)
{
    if (duringPause)
        duringPause();
    return 0;
}

// What a user can meet on a real disk: every case ends in a null or false result, without a word.
class LectureDatabaseTroubleTest final : public DatabaseCase
{
    Q_OBJECT

private Q_SLOTS:
    void whileAnotherProgramHoldsTheFileNothingIsReadOrWritten()
    {
        aLecture().named("kept").insertInto(*m_database);
        LectureDatabase fresh(m_places->places(), m_clock);
        QProcess other;
        QVERIFY(holdLock(other));

        QVERIFY(fresh.openDb());
        QVERIFY(!fresh.lecturesOfDay(u"2024-03-05"_s));
        QVERIFY(m_database->lecturesOfDay(u"2024-03-05"_s)->isEmpty());
        writeEverything(*m_database);
        writeEverything(fresh);

        QVERIFY(letGo(other));
        QCOMPARE(subjects(*m_database), QStringList(u"kept"_s));
        QCOMPARE(subjects(fresh), QStringList(u"kept"_s));
    }

    void aLockThatEndsAfterTheFirstAttemptCostsEveryLecture()
    {
        aLecture().named("lost").insertInto(*m_database);
        Sqlite other(m_places->databaseFile());
        QVERIFY(other.beginTransaction());
        duringPause = [&] { other.rollback(); };

        aLecture().named("new").insertInto(*m_database);

        QCOMPARE(subjects(*m_database), QStringList(u"new"_s));
    }

    void aReaderInAnotherProgramMakesAWriteFailToo()
    {
        aLecture().named("kept").insertInto(*m_database);
        Sqlite other(m_places->databaseFile());
        QVERIFY(other.beginDeferredTransaction());
        QVERIFY(other.executeQuery(u"select * from audioData"_s));

        writeEverything(*m_database);

        QVERIFY(other.commit());
        QCOMPARE(subjects(*m_database), QStringList(u"kept"_s));
    }

    void aReadOnlyFileIsReadAndKeepsItsLectures()
    {
        aLecture().named("kept").insertInto(*m_database);
        m_database.reset();
        setWritable(false);
        LectureDatabase database(m_places->places(), m_clock);
        {
            const OrdinaryUser user;
            QVERIFY(database.openDb());
            QCOMPARE(subjects(database), QStringList(u"kept"_s));
            writeEverything(database);
            QCOMPARE(subjects(database), QStringList(u"kept"_s));
        }
        setWritable(true);
    }

    void aReadOnlyFileOfAnOlderRunIsReadWithoutIndexes()
    {
        makeFileOfAnOlderRun();
        setWritable(false);
        const QByteArray before = m_places->readDatabaseFile();
        LectureDatabase database(m_places->places(), m_clock);
        {
            const OrdinaryUser user;
            QCOMPARE(subjects(database), QStringList(u"old"_s));
        }
        setWritable(true);

        QCOMPARE(m_places->readDatabaseFile(), before);
    }

    void aFolderThatCannotBeWrittenGivesNoDatabase()
    {
        const QString parent = m_places->places().applicationSupport;
        QFile::setPermissions(parent, QFile::ReadOwner | QFile::ExeOwner);
        {
            const OrdinaryUser user;
            QVERIFY(!m_database->openDb());
            writeEverything(*m_database);
        }
        QFile::setPermissions(parent, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);

        QVERIFY(!QFileInfo::exists(m_places->folder()));
        QVERIFY(m_database->openDb());
    }

    void aFileInThePlaceOfTheFolderGivesNoDatabase()
    {
        QFile file(m_places->folder());
        QVERIFY(file.open(QIODevice::WriteOnly));

        QVERIFY(!m_database->openDb());
        writeEverything(*m_database);

        QVERIFY(QFileInfo(m_places->folder()).isFile());
    }

    void aDirectoryInThePlaceOfTheFileGivesNoDatabase()
    {
        QDir().mkpath(m_places->databaseFile());

        QVERIFY(!m_database->openDb());
        QVERIFY(!m_database->lecturesOfDay(u"2024-03-05"_s));
        QVERIFY(!m_database->lecturesOfMonth(u"03"_s));
        writeEverything(*m_database);

        QVERIFY(QDir(m_places->databaseFile()).isEmpty());
    }

    void aFileThatIsNoDatabaseIsPutAsideAndLecturesAreStoredAgain()
    {
        const QByteArray content = QByteArray("Minutes of the meeting\n").repeated(500);
        m_places->writeDatabaseFile(content);

        QVERIFY(m_database->openDb());
        QVERIFY(m_database->lecturesOfDay(u"2024-03-05"_s)->isEmpty());
        aLecture().named("first").insertInto(*m_database);

        QCOMPARE(subjects(*m_database), QStringList(u"first"_s));
        QFile aside(m_database->damagedFiles().newest()->filePath);
        QVERIFY(aside.open(QIODevice::ReadOnly));
        QCOMPARE(aside.readAll(), content);
    }

    void aFileThatIsNoDatabaseAndCannotBePutAsideIsLeftAsItIs()
    {
        const QByteArray content = QByteArray("Minutes of the meeting\n").repeated(500);
        m_places->writeDatabaseFile(content);
        QFile inTheWay(m_places->folder() + u"/Backups"_s);
        QVERIFY(inTheWay.open(QIODevice::WriteOnly));

        QVERIFY(m_database->openDb());
        QVERIFY(!m_database->lecturesOfDay(u"2024-03-05"_s));
        writeEverything(*m_database);

        QCOMPARE(m_places->readDatabaseFile(), content);
    }

    void aDamagedFileEndsTheListEarly()
    {
        for (int i = 0; i < 50; ++i)
            aLecture().withNotes(QString(500, u'n')).insertInto(*m_database);
        m_database.reset();
        QByteArray content = m_places->readDatabaseFile();
        // All but the first two pages, which hold the schema and the table's root.
        content.replace(8192, content.size() - 8192, QByteArray(content.size() - 8192, '\xa5'));
        m_places->writeDatabaseFile(content);
        LectureDatabase database(m_places->places(), m_clock);

        const auto rows = database.lecturesOfMonth(u"03"_s);

        QVERIFY(rows);
        QVERIFY(rows->size() < 50);
    }

    void onAFullDiskTheLecturesStayAsTheyAre()
    {
        m_places->makeFolder();
        SmallDisk disk(m_places->folder());
        aLecture().named("kept").insertInto(*m_database);

        disk.fill();
        writeEverything(*m_database);
        QCOMPARE(subjects(*m_database), QStringList(u"kept"_s));
        disk.emptyAgain();

        aLecture().named("later").insertInto(*m_database);
        QCOMPARE(subjects(*m_database), QStringList({u"later"_s, u"kept"_s}));
        m_database.reset();
    }

    void onADiskThatBecomesFullEveryLectureIsThereOrComesBack()
    {
        for (int kibibytes = 300; kibibytes <= 600; kibibytes += 100) {
            m_database.reset();
            m_places = std::make_unique<TemporaryPlaces>();
            m_places->makeFolder();
            SmallDisk disk(m_places->folder(), kibibytes);
            m_database = std::make_unique<LectureDatabase>(m_places->places(), m_clock);
            for (int lecture = 0; lecture < 20; ++lecture)
                aLecture()
                    .named("kept")
                    .withNotes(QString(2000, u'n'))
                    .withoutAudio()
                    .insertInto(*m_database);

            disk.fill();
            aLecture().named("new").withNotes(QString(90000, u'n')).insertInto(*m_database);
            disk.emptyAgain();

            Sqlite &database = *m_database->openDb();
            const auto copies = m_database->backups().copies(database);
            if (!subjects(*m_database).contains(u"kept"_s))
                QCOMPARE(m_database->backups().bringBack(copies.value(0).filePath, database)->count,
                         20);
            QCOMPARE(subjects(*m_database).count(u"kept"_s), 20);
            m_database.reset();
        }
    }

    void onADiskThatIsFullFromTheStartThereAreNoLectures()
    {
        m_places->makeFolder();
        SmallDisk disk(m_places->folder());

        disk.fill();
        QVERIFY(m_database->openDb());
        writeEverything(*m_database);
        QVERIFY(!m_database->lecturesOfDay(u"2024-03-05"_s));
        disk.emptyAgain();

        aLecture().named("first").insertInto(*m_database);
        QCOMPARE(subjects(*m_database), QStringList(u"first"_s));
        m_database.reset();
    }

    void whereNoFileMayGrowTheLecturesStayAsTheyAre()
    {
        aLecture().named("kept").insertInto(*m_database);
        {
            const tarvelo::tests::SmallFiles noRoom(0);
            writeEverything(*m_database);
        }

        QCOMPARE(subjects(*m_database), QStringList(u"kept"_s));
        aLecture().named("later").insertInto(*m_database);
        QCOMPARE(subjects(*m_database), QStringList({u"later"_s, u"kept"_s}));
    }

    void aLectureThatNoLongerFitsCostsAllOthers()
    {
        aLecture().named("lost").insertInto(*m_database);
        m_database->openDb()->executeQuery(u"PRAGMA max_page_count = 6"_s);

        aLecture().withNotes(QString(50000, u'n')).insertInto(*m_database);

        const auto rows = m_database->lecturesOfMonth(u"03"_s);
        QVERIFY(rows);
        QVERIFY(rows->isEmpty());
    }

private:
    void prepare() override
    {
        m_stderr = std::make_unique<StderrCatcher>();
        DatabaseCase::prepare();
        duringPause = nullptr;
    }
    void finish() override
    {
        duringPause = nullptr;
        DatabaseCase::finish();
        const QByteArray said = m_stderr->caught();
        m_stderr.reset();
        QCOMPARE(said, QByteArray());
    }

    static bool holdLock(QProcess &other, const QString &file)
    {
        other.start(QStringLiteral(LOCK_HOLDER), {file});
        return other.waitForReadyRead() && other.readAll() == "locked\n";
    }
    bool holdLock(QProcess &other) const { return holdLock(other, m_places->databaseFile()); }
    static bool letGo(QProcess &other)
    {
        other.closeWriteChannel();
        return other.waitForFinished() && other.exitCode() == 0;
    }

    void setWritable(bool writable) const
    {
        const auto write = writable ? QFile::WriteOwner : QFile::Permission();
        QFile::setPermissions(m_places->databaseFile(), QFile::ReadOwner | write);
        QFile::setPermissions(m_places->folder(), QFile::ReadOwner | QFile::ExeOwner | write);
    }

    void makeFileOfAnOlderRun() const
    {
        m_places->makeFolder();
        Sqlite old(m_places->databaseFile());
        old.executeNonQuery(statements::CreateAfterInsert);
        QVERIFY(aLecture().named("old").insertInto(old));
    }

    static void writeEverything(LectureDatabase &database)
    {
        aLecture().named("new").insertInto(database);
        database.updateToDoDatawithSqlStatementWithArguments(statements::Update,
                                                             {u"changed"_s, u"n"_s, u"1"_s});
        LectureInfoItem lecture(u"Any"_s, u""_s, u""_s, u""_s, false);
        lecture.setLectureAudioPath(u"/music/optics.aac"_s);
        database.deleteVoiceData(lecture);
    }

    static QStringList subjects(LectureDatabase &database)
    {
        QStringList subjects;
        for (const Row &row : database.lecturesOfDay(u"2024-03-05"_s).value_or(Rows()))
            subjects.append(row.value(u"subject"_s).toString());
        return subjects;
    }

    std::unique_ptr<StderrCatcher> m_stderr;
};

QTEST_GUILESS_MAIN(LectureDatabaseTroubleTest)
#include "LectureDatabaseTroubleTest.moc"
