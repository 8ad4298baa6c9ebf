#include "store/LectureDatabase.h"

#include "store/DatabaseCase.h"
#include "store/LectureInfoItem.h"
#include "store/Statements.h"
#include "support/LectureBuilder.h"
#include "support/Modes.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;
using namespace tarvelo::store;
using tarvelo::tests::addUmasks;
using tarvelo::tests::aLecture;
using tarvelo::tests::modeOf;
using tarvelo::tests::Umask;

class LectureDatabaseTest final : public tarvelo::tests::DatabaseCase
{
    Q_OBJECT

private Q_SLOTS:
    void openingMakesTheFolderAndAnEmptyFile()
    {
        QVERIFY(!QFileInfo::exists(m_places->folder()));

        QVERIFY(m_database->openDb());

        QCOMPARE(m_database->openDb()->filePath(), m_places->databaseFile());
        QVERIFY(QFileInfo::exists(m_places->databaseFile()));
        QCOMPARE(QFileInfo(m_places->databaseFile()).size(), 0);
    }

    // 3 is SQLite's number for it. Else a power cut soon after a change takes it back.
    void theEndOfAChangeIsForcedToTheDisk()
    {
        const auto rows = m_database->openDb()->executeQuery(u"PRAGMA synchronous"_s);

        QVERIFY(rows);
        QCOMPARE(rows->value(0).value(u"synchronous"_s).toInt(), 3);
    }

    void theEndOfAChangeIsForcedToTheDiskAlsoWhenTheFileWasLockedAtFirst()
    {
        aLecture().insertInto(*m_database);
        m_database = std::make_unique<LectureDatabase>(m_places->places(), m_clock);
        Sqlite other(m_places->databaseFile());
        QVERIFY(other.beginTransaction());
        QVERIFY(m_database->openDb());
        QVERIFY(other.rollback());

        aLecture().insertInto(*m_database);

        const auto rows = m_database->connection()->executeQuery(u"PRAGMA synchronous"_s);
        QVERIFY(rows);
        QCOMPARE(rows->value(0).value(u"synchronous"_s).toInt(), 3);
    }

    void theDatabaseAndItsJournalAreForTheirUserAlone_data() { addUmasks(); }
    void theDatabaseAndItsJournalAreForTheirUserAlone()
    {
        QFETCH(const mode_t, umask);
        const Umask mask(umask);
        aLecture().insertInto(*m_database);

        // The journal stands while a change has not been brought to its end.
        QVERIFY(m_database->openDb()->beginTransaction());
        QVERIFY(m_database->openDb()->executeNonQuery(u"update audioData set subject = 'x'"_s));

        QCOMPARE(modeOf(m_places->databaseFile() + u"-journal"_s), u"600"_s);
        QCOMPARE(modeOf(m_places->databaseFile()), u"600"_s);
        QCOMPARE(modeOf(m_places->folder()), u"700"_s);
        QVERIFY(m_database->openDb()->rollback());
    }

    void theFolderLiesUnderTheHomeFolderWhenThePathStartsWithATilde()
    {
        const QByteArray home = qgetenv("HOME");
        qputenv("HOME", QFile::encodeName(m_places->places().applicationSupport));
        LectureDatabase database({u"~/data"_s, u"Tarvelo"_s}, m_clock);

        const Sqlite *const connection = database.openDb();
        qputenv("HOME", home);

        QVERIFY(connection);
        QCOMPARE(connection->filePath(),
                 m_places->places().applicationSupport + u"/data/Tarvelo/TarveloInfo.db"_s);
    }

    void theConnectionIsMadeOnFirstUseAndKept()
    {
        QVERIFY(!m_database->connection());

        Sqlite *const first = m_database->openDb();

        QCOMPARE(m_database->openDb(), first);
        QCOMPARE(m_database->connection(), first);
    }

    void whatCannotBeOpenedIsNullAndTheNextCallStartsAnew()
    {
        QDir().mkpath(m_places->databaseFile());

        QVERIFY(!m_database->openDb());
        QVERIFY(!m_database->connection());
        QVERIFY(!m_database->openDb());
        QVERIFY(QDir().rmdir(m_places->databaseFile()));

        QVERIFY(m_database->openDb());
    }

    void whatWasClosedIsOpenedAgainForTheNextCall()
    {
        aLecture().insertInto(*m_database);
        Sqlite *const first = m_database->connection();
        first->close();

        QCOMPARE(m_database->lecturesOfDay(u"2024-03-05"_s)->size(), 1);

        QCOMPARE(m_database->openDb(), first);
    }

    void beforeTheFirstInsertThereIsNoTableToAsk()
    {
        QVERIFY(!m_database->lecturesOfDay(u"2024-03-05"_s));
        QVERIFY(!m_database->lecturesOfMonth(u"03"_s));
    }

    void theFirstInsertMakesTheTableAndKeepsTheLecture()
    {
        const qint64 id = aLecture().named("history of art").insertInto(*m_database);

        const auto rows = m_database->lecturesOfDay(u"2024-03-05"_s);
        QVERIFY(rows);
        QCOMPARE(rows->size(), 1);
        QCOMPARE(rows->constFirst().value(u"ID"_s).toLongLong(), id);
        QCOMPARE(rows->constFirst().value(u"subject"_s), QVariant(u"history of art"_s));
        QCOMPARE(rows->constFirst().value(u"recordingDate"_s), QVariant(u"2024-03-05"_s));
        QCOMPARE(tableText(), QString(statements::CreateAfterInsert).chopped(1));
    }

    void laterInsertsKeepTheEarlierLectures()
    {
        const qint64 first = aLecture().named("one").insertInto(*m_database);
        const qint64 second = aLecture().named("two").insertInto(*m_database);

        QVERIFY(second > first);
        QCOMPARE(subjectsOfDay(u"2024-03-05"_s), QStringList({u"two"_s, u"one"_s}));
    }

    void anInsertThatFailsForAnyReasonEmptiesTheTable()
    {
        aLecture().named("earlier").insertInto(*m_database);

        m_database->insertIntoDbwithSqlStatementWithArguments(u"INSERT into nowhere VALUES (?)"_s,
                                                              {1});

        QCOMPARE(subjectsOfDay(u"2024-03-05"_s), QStringList());
        QCOMPARE(tableText(), QString(statements::CreateAfterInsert).chopped(1));
    }

    void anInsertThatFailsOnceIsRepeatedIntoTheNewTable()
    {
        aLecture().named("earlier").insertInto(*m_database);
        m_database->openDb()->executeNonQuery(u"ALTER TABLE audioData RENAME COLUMN notes TO n"_s);

        aLecture().named("later").insertInto(*m_database);

        QCOMPARE(subjectsOfDay(u"2024-03-05"_s), QStringList(u"later"_s));
    }

    void anUpdateChangesSubjectAndNotesOfItsLectureAlone()
    {
        const qint64 first = aLecture().named("one").insertInto(*m_database);
        aLecture().named("two").insertInto(*m_database);

        m_database->updateToDoDatawithSqlStatementWithArguments(
            statements::Update, {u"uno"_s, u"nota"_s, QString::number(first)});

        const auto rows = m_database->lecturesOfDay(u"2024-03-05"_s);
        QCOMPARE(rows->at(0).value(u"subject"_s), QVariant(u"two"_s));
        QCOMPARE(rows->at(1).value(u"subject"_s), QVariant(u"uno"_s));
        QCOMPARE(rows->at(1).value(u"notes"_s), QVariant(u"nota"_s));
    }

    void anUpdateWithoutTheTableMakesItAndChangesNothing()
    {
        m_database->updateToDoDatawithSqlStatementWithArguments(statements::Update,
                                                                {u"a"_s, u"b"_s, u"1"_s});

        const auto rows = m_database->lecturesOfDay(u"2024-03-05"_s);
        QVERIFY(rows);
        QVERIFY(rows->isEmpty());
        QCOMPARE(tableText(), QString(statements::CreateAfterUpdate).chopped(1));
    }

    void anUpdateThatFailsEmptiesTheTable()
    {
        aLecture().insertInto(*m_database);

        m_database->updateToDoDatawithSqlStatementWithArguments(u"UPDATE nowhere SET x = ?"_s, {1});

        QCOMPARE(subjectsOfDay(u"2024-03-05"_s), QStringList());
        QCOMPARE(tableText(), QString(statements::CreateAfterUpdate).chopped(1));
    }

    void tooFewArgumentsAreAFailedStatementToo()
    {
        aLecture().insertInto(*m_database);

        m_database->insertIntoDbwithSqlStatementWithArguments(statements::Insert, {u"Optics"_s});

        QCOMPARE(subjectsOfDay(u"2024-03-05"_s), QStringList());
    }

    void aLectureIsFoundByItsDayAndByItsMonthInEveryYear()
    {
        aLecture().on(QDate(2024, 3, 5)).named("this year").insertInto(*m_database);
        aLecture().on(QDate(2019, 3, 31)).named("long ago").insertInto(*m_database);
        aLecture().on(QDate(2024, 4, 5)).named("next month").insertInto(*m_database);

        QCOMPARE(subjectsOfDay(u"2024-03-05"_s), QStringList(u"this year"_s));
        QCOMPARE(subjects(m_database->lecturesOfMonth(u"03"_s)),
                 QStringList({u"this year"_s, u"long ago"_s}));
        QVERIFY(m_database->lecturesOfDay(u"2024-03-06"_s)->isEmpty());
    }

    void aLectureUnderAYearOfAnotherCalendarIsNotFoundByTheDayButByTheMonth()
    {
        aLecture().on("2567-03-05").named("optics").insertInto(*m_database);

        QCOMPARE(subjectsOfDay(u"2024-03-05"_s), QStringList());
        QCOMPARE(subjectsOfDay(u"2567-03-05"_s), QStringList(u"optics"_s));
        QCOMPARE(subjects(m_database->lecturesOfMonth(u"03"_s)), QStringList(u"optics"_s));
    }

    void deletingTakesEveryLectureWithTheSamePath()
    {
        aLecture().named("one").withAudio(u"/a.aac"_s).insertInto(*m_database);
        aLecture().named("two").withAudio(u"/a.aac"_s).insertInto(*m_database);
        aLecture().named("three").withAudio(u"/b.aac"_s).insertInto(*m_database);

        m_database->deleteVoiceData(lectureAt(u"/a.aac"_s));

        QCOMPARE(subjectsOfDay(u"2024-03-05"_s), QStringList(u"three"_s));
    }

    void deletingALectureWithoutAudioTakesAllWithoutAudio()
    {
        aLecture().named("one").withoutAudio().insertInto(*m_database);
        aLecture().named("two").withoutAudio().on("2020-01-01").insertInto(*m_database);
        aLecture().named("three").insertInto(*m_database);

        m_database->deleteVoiceData(lectureAt(QString()));

        QCOMPARE(subjectsOfDay(u"2024-03-05"_s), QStringList(u"three"_s));
        QCOMPARE(subjectsOfDay(u"2020-01-01"_s), QStringList());
    }

    void aPathWithAnApostropheDeletesNothing()
    {
        aLecture().named("one").withAudio(u"/o'neill.aac"_s).insertInto(*m_database);

        m_database->deleteVoiceData(lectureAt(u"/o'neill.aac"_s));

        QCOMPARE(subjectsOfDay(u"2024-03-05"_s), QStringList(u"one"_s));
    }

    void aPathWithAQuestionMarkIsDeletedAsAnyOther()
    {
        aLecture().named("one").withAudio(u"/why?.aac"_s).insertInto(*m_database);

        m_database->deleteVoiceData(lectureAt(u"/why?.aac"_s));

        QCOMPARE(subjectsOfDay(u"2024-03-05"_s), QStringList());
    }

    void aLectureWithoutRowAndAudioTakesNoOther()
    {
        aLecture().withoutAudio().insertInto(*m_database);
        LectureInfoItem lecture = lectureAt(QString());
        lecture.setRecordUniqueID(LectureInfoItem::NoRow);

        QVERIFY(m_database->deleteVoiceData(lecture));

        QCOMPARE(m_database->lecturesOfDay(u"2024-03-05"_s)->size(), 1);
    }

    void deletingNeverOpensTheDatabase()
    {
        m_database->deleteVoiceData(lectureAt(u"/a.aac"_s));

        QVERIFY(!m_database->connection());
        QVERIFY(!QFileInfo::exists(m_places->folder()));
    }

    void lecturesAreThereAgainAfterARestart()
    {
        aLecture().named("kept").insertInto(*m_database);

        m_database = std::make_unique<LectureDatabase>(m_places->places(), m_clock);

        QCOMPARE(subjectsOfDay(u"2024-03-05"_s), QStringList(u"kept"_s));
    }

private:
    static QStringList subjects(const std::optional<Rows> &rows)
    {
        QStringList subjects;
        for (const Row &row : rows.value_or(Rows()))
            subjects.append(row.value(u"subject"_s).toString());
        return subjects;
    }
    QStringList subjectsOfDay(const QString &day)
    {
        return subjects(m_database->lecturesOfDay(day));
    }
    // As SQLite keeps it: without the final semicolon.
    QString tableText()
    {
        const auto rows = m_database->openDb()->executeQuery(
            u"select sql from sqlite_master where name = 'audioData'"_s);
        return rows && !rows->isEmpty() ? rows->constFirst().value(u"sql"_s).toString() : QString();
    }
    static LectureInfoItem lectureAt(const QString &path)
    {
        LectureInfoItem lecture(u"Any"_s, u""_s, u""_s, u""_s, false);
        lecture.setLectureAudioPath(path);
        return lecture;
    }
};

QTEST_GUILESS_MAIN(LectureDatabaseTest)
#include "LectureDatabaseTest.moc"
