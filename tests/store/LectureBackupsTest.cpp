#include "store/LectureBackups.h"

#include "store/DamagedDatabases.h"
#include "store/DatabaseCase.h"
#include "store/LectureInfoItem.h"
#include "store/Statements.h"
#include "support/LectureBuilder.h"

#include <QFileInfo>

#include <optional>

using namespace Qt::StringLiterals;
using namespace tarvelo::store;
using tarvelo::tests::aLecture;
using tarvelo::tests::LectureBuilder;
using tarvelo::tests::subjectsIn;

class LectureBackupsTest final : public tarvelo::tests::DatabaseCase
{
    Q_OBJECT

private Q_SLOTS:
    void aFirstLectureTakesNothingAway()
    {
        add(aLecture());

        QVERIFY(copies().isEmpty());
    }

    void aResetKeepsEveryLectureInACopy()
    {
        add(aLecture().named("Optics"));
        add(aLecture().named("Logic").withoutAudio());
        const QString before = everything();

        reset();

        QVERIFY(everything().isEmpty());
        const auto copy = copies().value(0);
        QCOMPARE(copies().size(), 1);
        QCOMPARE(copy.lectures, 2);
        QCOMPARE(copy.missing, 2);
        QCOMPARE(copy.made, m_clock.now().toLocalTime());
        QCOMPARE(bringBack(), 2);
        QCOMPARE(everything(), before);
    }

    void aCopyIsForItsUserAloneAndReadByAnyProgram()
    {
        add(aLecture().named("Optics"));
        reset();

        const QString path = copies().value(0).filePath;

        QCOMPARE(QFileInfo(path).permissions() & 0x0fff, QFile::ReadUser | QFile::WriteUser);
        Sqlite other(path);
        QCOMPARE(subjectsIn(other), QStringList(u"Optics"_s));
        QCOMPARE(
            QDir(folder()).entryList({u"*.db"_s, u".copy*"_s}, QDir::Files | QDir::Hidden).size(),
            1);
    }

    void aDeleteOfOneLectureNeedsNoCopy()
    {
        add(aLecture().withAudio(u"/music/a.m4a"_s));
        add(aLecture().withAudio(u"/music/b.m4a"_s));

        remove(u"/music/a.m4a"_s);

        QVERIFY(copies().isEmpty());
        QCOMPARE(subjectsIn(connection()).size(), 1);
    }

    void aDeleteOfSeveralLecturesKeepsThem()
    {
        add(aLecture().named("Logic").withoutAudio());
        add(aLecture().named("Optics"));
        add(aLecture().named("Ethics").withoutAudio());
        const QString before = everything();

        remove(QString());

        QCOMPARE(subjectsIn(connection()), QStringList(u"Optics"_s));
        QCOMPARE(copies().value(0).lectures, 3);
        QCOMPARE(copies().value(0).missing, 2);
        QCOMPARE(bringBack(), 2);
        QCOMPARE(everything(), before);
    }

    void anApostropheThatMakesTheDeleteFailMakesNoCopy()
    {
        add(aLecture().withAudio(u"/it's/a.m4a"_s));
        add(aLecture().withAudio(u"/it's/a.m4a"_s));

        remove(u"/it's/a.m4a"_s);

        QVERIFY(copies().isEmpty());
        QCOMPARE(subjectsIn(connection()).size(), 2);
    }

    void whatIsBackDoesNotComeTwice()
    {
        add(aLecture().withoutAudio());
        add(aLecture().withoutAudio());
        remove(QString());
        QCOMPARE(bringBack(), 2);

        QCOMPARE(bringBack(), 0);

        QCOMPARE(subjectsIn(connection()).size(), 2);
        QCOMPARE(copies().value(0).missing, 0);
        QCOMPARE(copies().value(0).lectures, 2);
    }

    void aLectureThatWasChangedAfterItCameBackIsNotDoubled()
    {
        const qint64 id = add(aLecture().named("Logic").withoutAudio());
        add(aLecture().withoutAudio());
        remove(QString());
        QCOMPARE(bringBack(), 2);

        change(id, u"Modal Logic"_s);

        QCOMPARE(bringBack(), 0);
        QCOMPARE(subjectsIn(connection()).size(), 2);
    }

    void aLectureThatStayedAndWasChangedIsNotDoubled()
    {
        const qint64 id = add(aLecture().named("Optics"));
        add(aLecture().named("Logic").withoutAudio());
        add(aLecture().named("Logic").withoutAudio());
        remove(QString());

        change(id, u"Wave Optics"_s);

        QCOMPARE(bringBack(), 2);
        QCOMPARE(subjectsIn(connection()), QStringList({u"Wave Optics"_s, u"Logic"_s, u"Logic"_s}));
    }

    void whoseNumberWasGivenAgainGetsANewOne()
    {
        add(aLecture().named("old"));
        add(aLecture().named("older").withoutAudio());
        reset();
        add(aLecture().named("new").withAudio(u"/music/new.m4a"_s));

        QCOMPARE(bringBack(), 2);

        QCOMPARE(everything(), u"1 new, 2 older, 3 old"_s);
    }

    void aRecordingThatHasALectureAgainIsNotMissing()
    {
        add(aLecture().withAudio(u"/music/a.m4a"_s));
        add(aLecture().withAudio(u"/music/b.m4a"_s));
        reset();
        add(aLecture().named("found").withAudio(u"/music/a.m4a"_s));

        QCOMPARE(copies().value(0).missing, 1);
        QCOMPARE(bringBack(), 1);

        QCOMPARE(subjectsIn(connection()).size(), 2);
    }

    // Two that were saved within a second have one.
    void ofSeveralWithOneRecordingAllComeBack()
    {
        add(aLecture().named("first").withAudio(u"/music/a.m4a"_s));
        add(aLecture().named("second").withAudio(u"/music/a.m4a"_s));
        reset();
        add(aLecture().named("first").withAudio(u"/music/a.m4a"_s));

        QCOMPARE(copies().value(0).missing, 1);
        QCOMPARE(bringBack(), 1);

        QCOMPARE(subjectsIn(connection()), (QStringList{u"first"_s, u"second"_s}));
        QCOMPARE(copies().value(0).missing, 0);
    }

    void ofSeveralWithOneRecordingAChangedOneIsNotMissing()
    {
        add(aLecture().named("first").withAudio(u"/music/a.m4a"_s));
        add(aLecture().named("second").withAudio(u"/music/a.m4a"_s));
        reset();
        add(aLecture().named("changed").withAudio(u"/music/a.m4a"_s));
        add(aLecture().named("second").withAudio(u"/music/a.m4a"_s));

        QCOMPARE(copies().value(0).missing, 0);
    }

    void withoutATableEverythingIsMissingAndComesBack()
    {
        add(aLecture().named("Optics"));
        reset();
        connection().executeNonQuery(statements::Drop);

        QCOMPARE(copies().value(0).missing, 1);
        QCOMPARE(bringBack(), 1);

        QCOMPARE(subjectsIn(connection()), QStringList(u"Optics"_s));
    }

    void theNewestTenStay()
    {
        for (int round = 1; round <= 12; ++round) {
            add(aLecture().named(QString::number(round)));
            m_clock.advance(std::chrono::hours(1));
            reset();
        }

        QCOMPARE(copies().size(), 10);
        QCOMPARE(bringBack(), 1);
        QCOMPARE(subjectsIn(connection()), QStringList(u"12"_s));
    }

    void aClockThatIsPutBackCostsNoCopy()
    {
        for (int round = 1; round <= 12; ++round) {
            add(aLecture().named(QString::number(round)));
            m_clock.set(m_clock.now().addDays(-1));
            reset();
        }

        QCOMPARE(bringBack(), 1);
        QCOMPARE(subjectsIn(connection()), QStringList(u"12"_s));
    }

    void aWriteThatFailsWhileAnotherProgramWritesPushesNoCopyOut()
    {
        add(aLecture().named("Optics"));
        reset();
        add(aLecture().named("Logic").withoutAudio());
        Sqlite locker(m_places->databaseFile());

        QVERIFY(locker.beginDeferredTransaction());
        QVERIFY(locker.executeNonQuery(u"UPDATE audioData SET notes = 'locked'"_s));
        for (int again = 0; again < 12; ++again)
            reset();
        locker.rollback();

        QCOMPARE(everything(), u"1 Logic"_s);
        QCOMPARE(copies().size(), 1);
        QCOMPARE(bringBack(), 1);
    }

    void aWriteThatFailsWhileNobodyMayReadPushesNoCopyOut()
    {
        add(aLecture().named("Optics"));
        reset();
        add(aLecture().named("Logic").withoutAudio());
        Sqlite locker(m_places->databaseFile());

        QVERIFY(locker.beginTransaction());
        for (int again = 0; again < 12; ++again)
            reset();
        locker.rollback();

        QCOMPARE(everything(), u"1 Logic"_s);
        QCOMPARE(copies().size(), 2);
        QCOMPARE(copies().value(0).missing, 0);
        QCOMPARE(copies().value(1).missing, 1);
    }

    void whoDiesBetweenTheCopyAndTheLossLosesAndDoublesNothing()
    {
        add(aLecture().named("Logic").withoutAudio());
        add(aLecture().named("Ethics").withoutAudio());
        LectureBackups backups(folder(), m_clock);

        const auto copy = backups.keep(connection(), statements::AllIds);

        QVERIFY(copy && QFileInfo::exists(*copy));
        QCOMPARE(bringBack(), 0);
        QCOMPARE(everything(), u"1 Logic, 2 Ethics"_s);
    }

    void aDamagedFileIsCopiedAside()
    {
        add(aLecture());
        m_database.reset();
        QByteArray content = m_places->readDatabaseFile();
        content.replace(0, 8, "no SQL!!");
        m_places->writeDatabaseFile(content);
        m_database = std::make_unique<LectureDatabase>(m_places->places(), m_clock);

        add(aLecture());

        const QStringList names = QDir(folder()).entryList({u"*.db"_s}, QDir::Files);
        QCOMPARE(names.size(), 1);
        QFile copy(folder() + u'/' + names.value(0));
        QVERIFY(copy.open(QIODevice::ReadOnly));
        QCOMPARE(copy.readAll(), content);
        QVERIFY(copies().isEmpty());
    }

    void aCopyWhoseLecturesCannotBeComparedStays()
    {
        add(aLecture());
        QVERIFY(connection().executeNonQuery(u"ALTER TABLE audioData RENAME notes TO n0tes"_s));

        reset();

        QCOMPARE(copies().size(), 1);
        QCOMPARE(copies().first().missing, 1);
        QVERIFY(!backups().bringBack(copyPath(), connection()));
    }

    void aDamagedCopyIsNotListedAndNothingComesFromIt()
    {
        add(aLecture());
        reset();
        const QString path = copies().value(0).filePath;
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write("nothing that was a copy") > 0);
        file.close();

        QVERIFY(copies().isEmpty());
        QVERIFY(!backups().bringBack(path, connection()));
        QVERIFY(!backups().bringBack(folder() + u"/none.db"_s, connection()));
        QVERIFY(everything().isEmpty());
    }

    void whatCannotComeBackNowChangesNothing()
    {
        add(aLecture());
        reset();
        Sqlite other(m_places->databaseFile());
        QVERIFY(other.beginTransaction());

        QVERIFY(!backups().bringBack(copyPath(), connection()));

        other.rollback();
        QVERIFY(everything().isEmpty());
        QCOMPARE(bringBack(), 1);
    }

    void whereNoCopyCanBeMadeAFailedWriteTakesNothing()
    {
        add(aLecture().named("Optics"));
        add(aLecture().named("Logic").withoutAudio());
        blockFolder();

        reset();

        QCOMPARE(everything(), u"1 Optics, 2 Logic"_s);
        add(aLecture().named("Ethics"));
        QCOMPARE(everything(), u"1 Optics, 2 Logic, 3 Ethics"_s);
    }

    void whereNoCopyCanBeMadeSeveralLecturesAreNotDeletedButOneIs()
    {
        add(aLecture().named("Logic").withoutAudio());
        add(aLecture().named("Ethics").withoutAudio());
        add(aLecture().named("Optics"));
        blockFolder();

        QVERIFY(!remove(QString()));
        QVERIFY(remove(u"/music/optics.aac"_s));

        QCOMPARE(everything(), u"1 Logic, 2 Ethics"_s);
    }

    void whereNoCopyCanBeMadeATableWithNothingToLoseIsMadeAnew()
    {
        blockFolder();

        add(aLecture().named("Optics"));

        QCOMPARE(everything(), u"1 Optics"_s);
    }

    void aCopyOfAFileInTheMiddleOfAChangeIsAsItWasBefore()
    {
        for (int number = 0; number < 60; ++number)
            add(aLecture().named("Optics").withNotes(QString(400, u'n')));
        Sqlite other(m_places->databaseFile());
        QVERIFY(other.executeQuery(u"PRAGMA cache_size = 1"_s));
        QVERIFY(other.beginTransaction());
        QVERIFY(other.executeNonQuery(u"UPDATE audioData SET subject = 'half', notes = ''"_s));

        reset();

        QVERIFY(other.rollback());
        const QStringList names = QDir(folder()).entryList({u"*.db"_s}, QDir::Files);
        QCOMPARE(names.size(), 1);
        Sqlite copy(folder() + u'/' + names.value(0));
        QCOMPARE(subjectsIn(copy), QStringList(60, u"Optics"_s));
    }

    void aChangeThatEmptiedTheTableComesBackWithItsLecture()
    {
        const qint64 id = add(aLecture().named("Optics"));
        add(aLecture().named("Logic").withoutAudio());
        QVERIFY(connection().executeNonQuery(
            u"CREATE TEMP TRIGGER once BEFORE UPDATE ON main.audioData BEGIN SELECT "
            "RAISE(ABORT, 'no'); END"_s));

        change(id, u"Wave Optics"_s);

        QVERIFY(everything().isEmpty());
        QCOMPARE(bringBack(), 2);
        QCOMPARE(everything(), u"1 Wave Optics, 2 Logic"_s);
    }

    void aCopyThatCannotBeReadNowStays()
    {
        add(aLecture().named("Logic").withoutAudio());
        LectureBackups backups(folder(), m_clock);
        const auto copy = backups.keep(connection(), statements::AllIds);
        QVERIFY(copy && connection().executeNonQuery(u"DROP TABLE audioData"_s));
        QFile file(*copy);
        QVERIFY(file.open(QIODevice::ReadWrite) && file.seek(4096));
        file.write(QByteArray(file.size() - 4096, '\xa5'));
        file.close();

        backups.settle(connection(), *copy);

        QVERIFY(QFileInfo::exists(*copy));
    }

    void otherFilesInTheFolderStayAndAreNotListed()
    {
        add(aLecture());
        QDir().mkpath(folder());
        const QString foreign = folder() + u"/TarveloInfo of my own.db"_s;
        QVERIFY(QFile::copy(m_places->databaseFile(), foreign));

        for (int round = 1; round <= 12; ++round) {
            reset();
            add(aLecture().named(QString::number(round)));
        }

        QVERIFY(QFileInfo::exists(foreign));
        QCOMPARE(copies().size(), 10);
    }

    void roomForTheNextCopyIsHeldAsTheDatabaseGrows()
    {
        add(aLecture());
        QVERIFY(roomSize() > QFileInfo(m_places->databaseFile()).size());

        add(aLecture().withNotes(QString(500000, u'x')));

        QVERIFY(roomSize() > QFileInfo(m_places->databaseFile()).size());
    }

private:
    QString folder() const { return m_places->folder() + u"/Backups"_s; }
    qint64 roomSize() const { return QFileInfo(folder() + u"/.room"_s).size(); }
    const LectureBackups &backups() const { return m_database->backups(); }
    Sqlite &connection() const { return *m_database->openDb(); }
    QList<LectureBackups::Copy> copies() const { return backups().copies(connection()); }
    QString copyPath() const { return copies().value(0).filePath; }
    // From the newest copy.
    int bringBack() const
    {
        const auto back = backups().bringBack(copyPath(), connection());
        return back ? back->count : -1;
    }

    qint64 add(const LectureBuilder &lecture) const { return lecture.insertInto(*m_database); }
    // A statement that fails for whatever reason.
    void reset() const { m_database->insertIntoDbwithSqlStatementWithArguments(u"nonsense"_s, {}); }
    // Where the copies go, something else lies.
    void blockFolder() const
    {
        m_places->makeFolder();
        QDir(folder()).removeRecursively();
        QFile inTheWay(folder());
        QVERIFY(inTheWay.open(QIODevice::WriteOnly));
    }
    bool remove(const QString &audioPath) const
    {
        LectureInfoItem lecture(u"Any"_s, u""_s, u""_s, u""_s, false);
        lecture.setLectureAudioPath(audioPath);
        return m_database->deleteVoiceData(lecture);
    }
    void change(qint64 id, const QString &subject) const
    {
        m_database->updateToDoDatawithSqlStatementWithArguments(
            statements::Update, {subject, QString(), QString::number(id)});
    }

    // Of every lecture.
    QString everything() const
    {
        QStringList lectures;
        const auto rows =
            connection().executeQuery(u"select ID, subject from audioData order by ID"_s);
        for (const Row &row : rows.value_or(Rows()))
            lectures << row.value(u"ID"_s).toString() + u' ' + row.value(u"subject"_s).toString();
        return lectures.join(u", "_s);
    }
};

QTEST_GUILESS_MAIN(LectureBackupsTest)
#include "LectureBackupsTest.moc"
