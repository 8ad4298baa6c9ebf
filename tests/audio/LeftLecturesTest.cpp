#include "audio/LeftLectures.h"

#include "audio/AudioFileLocations.h"
#include "audio/LeftStage.h"
#include "store/GoneLectures.h"
#include "support/DecodedAudio.h"
#include "support/LectureBuilder.h"
#include "support/RefusedCalls.h"
#include "support/TestCase.h"

using namespace Qt::StringLiterals;
using tarvelo::audio::LeftLectures;
using tarvelo::store::LectureInfoItem;
using tarvelo::store::LectureJournal;
using tarvelo::tests::aLecture;
using tarvelo::tests::DecodedAudio;
using tarvelo::tests::LeftStage;
using tarvelo::tests::MovieFacts;
using tarvelo::tests::refuse;
using tarvelo::tests::RefusedInTurn;

class LeftLecturesTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void nothingLeftIsNothingToOffer()
    {
        m_stage->setAside();

        QVERIFY(m_stage->left.undecided().isEmpty());
        QCOMPARE(m_stage->left.owed(), 0);
    }

    // It is another process's, as long as nobody said otherwise.
    void withoutAFolderOfItsOwnNothingIsOffered()
    {
        m_stage->leaveTake();
        m_stage->leaveJournal();

        QVERIFY(m_stage->left.undecided().isEmpty());
        QVERIFY(QFile::exists(m_stage->takePath()));
    }

    void aTakeAndItsJournalAreOfferedTogetherAndOutOfTheWay()
    {
        m_stage->leaveTake();
        m_stage->leaveJournal();

        m_stage->setAside();

        const auto lectures = m_stage->left.undecided();
        QCOMPARE(lectures.size(), 1);
        QCOMPARE(lectures[0].journal.subject, u"wave optics"_s);
        QCOMPARE(lectures[0].journal.day, u"2024-02-29"_s);
        QVERIFY(lectures[0].seconds > 1);
        QVERIFY(!QFile::exists(m_stage->takePath()));
        QVERIFY(!QFile::exists(m_stage->file("lecture.journal")));
    }

    void aTakeWithoutAJournalIsOfTheDayOnWhichItEnded()
    {
        m_stage->leaveTake();
        QFile take(m_stage->takePath());
        QVERIFY(take.open(QIODevice::ReadWrite));
        QVERIFY(take.setFileTime(QDateTime(QDate(2024, 1, 31), QTime(12, 0), Qt::UTC),
                                 QFileDevice::FileModificationTime));
        take.close();

        m_stage->setAside();

        const auto lectures = m_stage->left.undecided();
        QCOMPARE(lectures.size(), 1);
        QCOMPARE(lectures[0].journal.day, u"2024-01-31"_s);
        QVERIFY(m_stage->left.keep(lectures[0]) == LeftLectures::Kept::Stored);
        QCOMPARE(m_stage->rows().value(0)["subject"_L1], u"Untitled"_s);
        QCOMPARE(m_stage->rows().value(0)["recordingDate"_L1], u"2024-01-31"_s);
    }

    // Lectures are asked for under the day that everyone counts.
    void aTakeWithoutAJournalIsFoundUnderItsDayInEveryCalendar()
    {
        m_stage->leaveTake();
        const tarvelo::platform::Dates dates(m_stage->clock, {"fa_IR", u"UTC"_s});
        LeftLectures left(m_stage->locations, dates, m_stage->database);
        QVERIFY(left.setAside(m_stage->locations.temporaryFolder()));
        auto lecture = left.undecided().at(0);
        QCOMPARE(lecture.journal.day,
                 QFileInfo(lecture.takePath).lastModified().toUTC().toString(u"yyyy-MM-dd"_s));
        lecture.journal.day.clear();

        QVERIFY(left.keep(lecture) == LeftLectures::Kept::Stored);

        QCOMPARE(m_stage->rows().value(0)["recordingDate"_L1], u"2024-03-05"_s);
    }

    void aJournalWithoutATakeIsOfferedForItsNotes()
    {
        m_stage->leaveJournal();

        m_stage->setAside();

        const auto lectures = m_stage->left.undecided();
        QCOMPARE(lectures.size(), 1);
        QVERIFY(m_stage->left.keep(lectures[0]) == LeftLectures::Kept::Stored);
        QCOMPARE(m_stage->rows().value(0)["notes"_L1], u"Huygens"_s);
        QCOMPARE(m_stage->rows().value(0)["recordDuration"_L1], u"No Audio"_s);
        QCOMPARE(m_stage->rows().value(0)["audioFileFullPath"_L1], u""_s);
    }

    void whereNothingWasTypedOrRecordedNothingIsOffered()
    {
        m_stage->leaveJournal({.id = u"20240304T080000000"_s});

        m_stage->setAside();

        QVERIFY(m_stage->left.undecided().isEmpty());
        QCOMPARE(m_stage->names(), QStringList());
    }

    void aTakeInWhichNothingCanBeHeardIsNotOffered()
    {
        m_stage->write(m_stage->takePath(), m_stage->takeBytes().left(28));

        m_stage->setAside();

        QVERIFY(m_stage->left.undecided().isEmpty());
    }

    void aTakeThatWasClosedOnPurposeIsNotOffered()
    {
        m_stage->leaveTake();
        m_stage->write(m_stage->file("lecture.closed"), "");

        m_stage->setAside();

        QVERIFY(m_stage->left.undecided().isEmpty());
        QVERIFY(QFile::exists(m_stage->takePath()));
    }

    void aTakeThatIsOlderThanTheLectureStaysClosed()
    {
        m_stage->leaveTake();
        m_stage->write(m_stage->file("lecture.closed"), "");
        LectureJournal journal = LeftStage::journal();
        journal.take.clear();
        m_stage->leaveJournal(journal);

        m_stage->setAside();

        QVERIFY(m_stage->left.undecided().value(0).takePath.isEmpty());
        QVERIFY(QFile::exists(m_stage->takePath()));
    }

    void aDamagedJournalCostsOnlyWhatStoodInIt()
    {
        m_stage->leaveTake();
        m_stage->write(m_stage->file("lecture.journal"), QByteArray(4096, '\0'));

        m_stage->setAside();

        const auto lectures = m_stage->left.undecided();
        QCOMPARE(lectures.size(), 1);
        QVERIFY(m_stage->left.keep(lectures[0]) == LeftLectures::Kept::Stored);
        QCOMPARE(m_stage->names(), QStringList());
    }

    void severalWaitOldestFirst()
    {
        for (const char *id : {"20240304T080000000", "20240302T080000000"}) {
            LectureJournal journal = LeftStage::journal();
            journal.id = QLatin1StringView(id);
            m_stage->leaveTake();
            m_stage->leaveJournal(journal);
            m_stage->setAside();
        }

        const auto lectures = m_stage->left.undecided();

        QCOMPARE(lectures.size(), 2);
        QCOMPARE(lectures[0].journal.id, u"20240302T080000000"_s);
        QVERIFY(!lectures[0].takePath.isEmpty() && !lectures[1].takePath.isEmpty());
    }

    void twoOfOneNameAreBothKept()
    {
        for (int i = 0; i < 2; ++i) {
            m_stage->leaveTake();
            m_stage->leaveJournal();
            m_stage->setAside();
        }

        const auto lectures = m_stage->left.undecided();

        QCOMPARE(lectures.size(), 2);
        QVERIFY(!lectures[0].takePath.isEmpty() && !lectures[1].takePath.isEmpty());
    }

    void bothExtensionsAreFound()
    {
        m_stage->leaveTake();
        QFile::copy(m_stage->takePath(), m_stage->file("tempAudioFile.aac"));
        m_stage->leaveJournal();

        m_stage->setAside();

        QCOMPARE(m_stage->left.undecided().size(), 2);
    }

    void keptItIsALectureUnderItsDayWithAnIndexedRecording()
    {
        m_stage->leaveTake();
        m_stage->leaveJournal();
        m_stage->setAside();

        QVERIFY(m_stage->left.keep(m_stage->left.undecided().at(0)) == LeftLectures::Kept::Stored);

        m_stage->expectOneKeptLecture();
        const auto row = m_stage->rows().value(0);
        QCOMPARE(row["subject"_L1], u"wave optics"_s);
        QCOMPARE(row["recordingDate"_L1], u"2024-02-29"_s);
        QCOMPARE(row["recordDuration"_L1], u"00:00:02"_s);
        const QString path = row["audioFileFullPath"_L1].toString();
        QVERIFY(path.endsWith(u"/Audio//Audio - 20240305090000.m4a"_s));
        QVERIFY(!MovieFacts::read(path)->isFragmented);
    }

    void aFileThatHasTheNameAlreadyIsNotTouched()
    {
        const QString taken = m_stage->locations.getAudioSavePath();
        m_stage->write(taken, "another lecture");
        m_stage->leaveTake();
        m_stage->setAside();

        QVERIFY(m_stage->left.keep(m_stage->left.undecided().at(0)) == LeftLectures::Kept::Stored);

        QCOMPARE(QFile(taken).size(), 15);
        QVERIFY(QFile::exists(m_stage->rows().value(0)["audioFileFullPath"_L1].toString()));
    }

    void discardedItIsGone()
    {
        m_stage->leaveTake();
        m_stage->leaveJournal();
        m_stage->setAside();

        m_stage->left.discard(m_stage->left.undecided().at(0));

        QVERIFY(m_stage->left.undecided().isEmpty());
        QCOMPARE(m_stage->names(), QStringList());
        QVERIFY(m_stage->rows().isEmpty());
    }

    void notDecidedItIsOfferedAgain()
    {
        m_stage->leaveTake();
        m_stage->leaveJournal();
        m_stage->setAside();
        QCOMPARE(m_stage->left.undecided().size(), 1);

        m_stage->setAside();

        QCOMPARE(m_stage->left.undecided().size(), 1);
    }

    void whatTheStudentIsDoneWithIsStoredWithoutAQuestion()
    {
        LectureJournal journal = LeftStage::journal();
        journal.isDone = true;
        m_stage->leaveTake();
        m_stage->leaveJournal(journal);
        m_stage->setAside();
        QVERIFY(m_stage->left.undecided().isEmpty());
        QCOMPARE(m_stage->left.owed(), 1);

        m_stage->left.storeOwed();

        m_stage->expectOneKeptLecture();
    }

    void aRowThatIsThereAlreadyIsNotDoubled_data()
    {
        QTest::addColumn<bool>("hasTake");
        QTest::newRow("with a recording") << true;
        QTest::newRow("notes alone") << false;
    }
    void aRowThatIsThereAlreadyIsNotDoubled()
    {
        QFETCH(bool, hasTake);
        LectureJournal journal = LeftStage::journal();
        journal.isDone = true;
        journal.target = hasTake ? m_stage->locations.getAudioSavePath() : QString();
        journal.duration = hasTake ? u"00:00:02"_s : u"No Audio"_s;
        if (hasTake)
            m_stage->write(journal.target, m_stage->takeBytes());
        m_stage->database.insertIntoDbwithSqlStatementWithArguments(
            tarvelo::store::statements::Insert, journal.row());
        m_stage->leaveJournal(journal);
        m_stage->setAside();

        m_stage->left.storeOwed();

        QCOMPARE(m_stage->rows().size(), 1);
        QCOMPARE(m_stage->left.owed(), 0);
    }

    void whoseRecordingIsGoneKeepsItsNotes()
    {
        const LectureJournal journal = doneJournal();
        m_stage->leaveJournal(journal);
        m_stage->setAside();

        m_stage->left.storeOwed();

        QCOMPARE(m_stage->left.owed(), 0);
        QCOMPARE(m_stage->rows().size(), 1);
        QCOMPARE(m_stage->rows().first()["notes"_L1], u"Huygens"_s);
        QCOMPARE(m_stage->rows().first()["audioFileFullPath"_L1], journal.target);
    }

    void theJournalThatPromisesARecordingIsKnownByIt()
    {
        const LectureJournal journal = doneJournal();
        m_stage->leaveJournal(journal);
        m_stage->setAside();

        LectureInfoItem lecture({}, {}, {}, {}, true);
        lecture.setRecordUniqueID(7);
        QCOMPARE(m_stage->left.journalIdOf(lecture), QString());
        lecture.setLectureAudioPath(journal.target);
        QCOMPARE(m_stage->left.journalIdOf(lecture), journal.id);
        lecture.setLectureAudioPath(journal.target + u'x');
        QCOMPARE(m_stage->left.journalIdOf(lecture), QString());
    }

    void theJournalOfARowIsKnownUntilItsIdIsGivenAgain()
    {
        LectureInfoItem lecture({}, {}, {}, {}, true);
        lecture.setRecordUniqueID(7);

        m_stage->left.rowIsStored(u"one"_s, 7);
        QCOMPARE(m_stage->left.journalIdOf(lecture), u"one"_s);
        m_stage->left.rowIsStored(u"other"_s, 7);
        QCOMPARE(m_stage->left.journalIdOf(lecture), u"other"_s);
    }

    void theJournalOfARowThatWentIsNotThatOfTheNextOneWithItsId()
    {
        LectureInfoItem lecture({}, {}, {}, {}, true);
        lecture.setRecordUniqueID(7);
        m_stage->left.rowIsStored(u"one"_s, 7);
        m_stage->left.rowIsStored(u"other"_s, 8);

        m_stage->left.lecturesHaveGone({.copyPath = u"copy"_s, .ids = QSet<qint64>{7}});

        QCOMPARE(m_stage->left.journalIdOf(lecture), QString());
        lecture.setRecordUniqueID(8);
        QCOMPARE(m_stage->left.journalIdOf(lecture), u"other"_s);
    }

    // It could not be removed when the row was stored, and then the row went to a copy.
    void theJournalOfARowThatWentHasNothingLeftToDo()
    {
        const LectureJournal journal = doneJournal();
        m_stage->leaveJournal(journal);
        m_stage->setAside();
        m_stage->left.rowIsStored(journal.id, 1);
        m_stage->left.lecturesHaveGone({.copyPath = u"copy"_s});
        aLecture().named("Newcomer").withAudio(u"newcomer.m4a"_s).insertInto(m_stage->database);

        int stored = 0;
        m_stage->left.storeOwed([&stored](const LeftLectures::Stored &) { ++stored; });

        QCOMPARE(stored, 0);
        QCOMPARE(m_stage->names(), QStringList());
        QCOMPARE(m_stage->rows().size(), 1);
        QCOMPARE(m_stage->rows()[0]["audioFileFullPath"_L1], u"newcomer.m4a"_s);
    }

    void aRowThatWentBeforeItsRecordingWasMovedIsStoredAgain()
    {
        const LectureJournal journal = doneJournal();
        m_stage->leaveTake();
        m_stage->leaveJournal(journal);
        m_stage->setAside();
        m_stage->left.rowIsStored(journal.id, 1);
        m_stage->left.lecturesHaveGone({.copyPath = u"copy"_s});

        m_stage->left.storeOwed();

        m_stage->expectOneKeptLecture();
    }

    // The lecture was stored while its recording could not be moved, and another got its place.
    void theRowFollowsItsRecordingToAnotherPlace()
    {
        const LectureJournal journal = doneJournal();
        m_stage->database.insertIntoDbwithSqlStatementWithArguments(
            tarvelo::store::statements::Insert, journal.row());
        m_stage->leaveTake();
        m_stage->leaveJournal(journal);
        m_stage->setAside();
        m_stage->left.rowIsStored(journal.id, 1);
        LeftStage::write(journal.target, "another's");

        m_stage->left.storeOwed();

        QCOMPARE(m_stage->rows().size(), 1);
        const QString path = m_stage->rows().first()["audioFileFullPath"_L1].toString();
        QVERIFY(path != journal.target && QFile::exists(path));
        QCOMPARE(m_stage->left.owed(), 0);
    }

    // The first one's journal is gone, and the clock says what the other one's ID says.
    void whatIsKeptInOneMomentIsNotTakenForEachOther_data()
    {
        QTest::addColumn<bool>("hasJournal");
        QTest::newRow("with an equal journal") << true;
        QTest::newRow("without a journal") << false;
    }
    void whatIsKeptInOneMomentIsNotTakenForEachOther()
    {
        QFETCH(bool, hasJournal);
        LectureJournal journal = LeftStage::journal();
        journal.id = LectureJournal::idOf(m_stage->clock.now());
        for (const char *name : {"leftover-20240303T080000000", "leftover-20240304T080000000"}) {
            m_stage->leaveTake();
            QVERIFY(
                QFile::rename(m_stage->takePath(), m_stage->file(name) + u'.' +
                                                       QFileInfo(m_stage->takePath()).suffix()));
        }
        if (hasJournal)
            LeftStage::write(m_stage->file("leftover-20240303T080000000.journal"),
                             tarvelo::store::toBytes(journal));
        LeftStage::write(m_stage->file("leftover-20240304T080000000.journal"),
                         tarvelo::store::toBytes(journal));
        m_stage->setAside();

        const auto lectures = m_stage->left.undecided();
        QCOMPARE(lectures.size(), 2);
        for (const auto &left : lectures)
            QVERIFY(m_stage->left.keep(left) == LeftLectures::Kept::Stored);

        expectTwoLectures();
    }

    void whatIsKeptWhileNothingCanBeStoredIsNotTakenForEachOther()
    {
        for (const char *name : {"leftover-20240303T080000000", "leftover-20240304T080000000"}) {
            m_stage->leaveTake();
            QVERIFY(QFile::rename(m_stage->takePath(), m_stage->file(name) + u".m4a"_s));
            LeftStage::write(m_stage->file(name) + u".journal"_s,
                             tarvelo::store::toBytes(LeftStage::journal()));
        }
        m_stage->setAside();
        aLecture().insertInto(m_stage->database);
        m_stage->database.connection()->executeNonQuery(u"DELETE FROM audioData"_s);
        {
            tarvelo::store::Sqlite other(m_stage->places.databaseFile());
            QVERIFY(other.beginTransaction());
            for (const auto &left : m_stage->left.undecided())
                QVERIFY(m_stage->left.keep(left) == LeftLectures::Kept::Later);
        }

        m_stage->left.storeOwed();

        expectTwoLectures();
    }

    void whatIsKeptAgainAfterItWasStoredIsThereOnce_data()
    {
        QTest::addColumn<bool>("hasTake");
        QTest::addColumn<bool>("hasJournal");
        QTest::newRow("with a journal") << true << true;
        QTest::newRow("without a journal") << true << false;
        QTest::newRow("without a recording") << false << true;
    }
    // The first try may have decided it without knowing, and it was stored later.
    void whatIsKeptAgainAfterItWasStoredIsThereOnce()
    {
        QFETCH(bool, hasTake);
        QFETCH(bool, hasJournal);
        RefusedInTurn calls("/Tarvelo/temp");
        while (calls.areLeft()) {
            finish();
            prepare();
            if (hasTake)
                m_stage->leaveTake();
            if (hasJournal)
                m_stage->leaveJournal();
            m_stage->setAside();
            const auto lectures = m_stage->left.undecided();
            QCOMPARE(lectures.size(), 1);

            calls.refuse();
            const auto kept = m_stage->left.keep(lectures[0]);
            calls.allow();
            m_stage->left.storeOwed();
            if (kept == LeftLectures::Kept::Undecided)
                QVERIFY2(m_stage->left.keep(lectures[0]) == LeftLectures::Kept::Stored,
                         calls.which());

            QVERIFY2(m_stage->rows().size() == 1,
                     calls.which() + QByteArray::number(m_stage->rows().size()) + " rows, " +
                         m_stage->names().join(u' ').toUtf8());
            const QString path = m_stage->rows()[0]["audioFileFullPath"_L1].toString();
            QVERIFY2(hasTake ? QFile::exists(path) : path.isEmpty(), calls.which());
            QCOMPARE(m_stage->names(), QStringList());
        }
        QVERIFY2(calls.count() > 15, calls.which());
    }

    void whatIsDiscardedByItsIdIsNothingThatNobodyDecidedOn()
    {
        m_stage->leaveTake();
        m_stage->leaveJournal();
        m_stage->setAside();

        m_stage->left.discard(LeftStage::journal().id);

        QCOMPARE(m_stage->left.undecided().size(), 1);
    }

    // As when a home was moved to another computer.
    void aRecordingWhosePlaceIsNoMoreGetsAnotherOne()
    {
        LectureJournal journal = LeftStage::journal();
        journal.isDone = true;
        journal.target = u"/no/such/home/Audio/Audio - 1.m4a"_s;
        m_stage->leaveTake();
        m_stage->leaveJournal(journal);
        m_stage->setAside();

        m_stage->left.storeOwed();

        m_stage->expectOneKeptLecture();
    }

    // The clock was put back, and the file that had the name was deleted.
    void aRowOfAnotherLectureWithTheSamePlaceIsNotItsOwn()
    {
        const LectureJournal journal = doneJournal();
        const qint64 row = aLecture().withAudio(journal.target).insertInto(m_stage->database);
        m_stage->left.rowIsStored(u"earlier"_s, row);
        m_stage->leaveTake();
        m_stage->leaveJournal(journal);
        m_stage->setAside();

        m_stage->left.storeOwed();

        QCOMPARE(m_stage->rows().size(), 2);
        QCOMPARE(m_stage->rows().at(1)["notes"_L1], u"Huygens"_s);
    }

    void textsThatCouldNotBeWrittenDownAreStored()
    {
        LectureJournal journal = LeftStage::journal();
        journal.isDone = true;
        m_stage->leaveJournal(journal);
        m_stage->setAside();

        m_stage->left.storeOwed({}, {{journal.id, {u"acoustics"_s, u"Pipes"_s}}});

        QCOMPARE(m_stage->rows().size(), 1);
        QCOMPARE(m_stage->rows().first()["subject"_L1], u"acoustics"_s);
        QCOMPARE(m_stage->rows().first()["notes"_L1], u"Pipes"_s);
        QCOMPARE(m_stage->left.owed(), 0);
    }

    // An insert of which the last step failed only.
    void aRowThatIsThereAlthoughItsInsertFailedIsItsOwn()
    {
        RefusedInTurn calls("/Tarvelo");
        while (calls.areLeft()) {
            finish();
            prepare();
            LectureJournal journal = LeftStage::journal();
            journal.isDone = true;
            m_stage->leaveJournal(journal);
            m_stage->setAside();
            QVERIFY(m_stage->database.openDb());
            calls.refuse();
            bool isStored = false;
            const auto hear = [&isStored](const LeftLectures::Stored &) { isStored = true; };
            m_stage->left.storeOwed(hear);
            calls.allow();

            QVERIFY2(m_stage->rows().isEmpty() == !isStored, calls.which());
            m_stage->left.storeOwed(hear);
            QCOMPARE(m_stage->rows().size(), 1);
            QVERIFY(isStored);
        }
        QVERIFY2(calls.count() > 10, calls.which());
    }

    void twoOfTheSameNotesAndDayAreTwo()
    {
        LectureJournal journal = LeftStage::journal();
        journal.isDone = true;
        m_stage->database.insertIntoDbwithSqlStatementWithArguments(
            tarvelo::store::statements::Insert, journal.row());
        journal.lastRow = m_stage->left.lastRow();
        m_stage->leaveJournal(journal);
        m_stage->setAside();

        m_stage->left.storeOwed();
        QCOMPARE(m_stage->rows().size(), 2);

        // As when it died before the journal went.
        m_stage->leaveJournal(journal);
        m_stage->setAside();
        m_stage->left.storeOwed();
        QCOMPARE(m_stage->rows().size(), 2);
    }

    void whoseRecordingCannotBeLookedForNowIsNotForgotten()
    {
        const LectureJournal journal = doneJournal();
        m_stage->leaveJournal(journal);
        m_stage->setAside();
        const QString audio = m_stage->locations.getAudioFolderPath();
        QVERIFY(QDir().rename(audio.chopped(1), audio.chopped(1) + u".away"_s));

        m_stage->left.storeOwed();
        QCOMPARE(m_stage->left.owed(), 1);

        QVERIFY(QDir().rename(audio.chopped(1) + u".away"_s, audio.chopped(1)));
        LeftStage::write(journal.target, m_stage->takeBytes());
        m_stage->left.storeOwed();
        QCOMPARE(m_stage->left.owed(), 0);
        m_stage->expectOneKeptLecture();
    }

    void whoseJournalCannotBeReadNowIsNeitherOfferedNorForgotten()
    {
        m_stage->leaveTake();
        m_stage->leaveJournal();
        m_stage->setAside();

        refuse("read", ".journal");
        QVERIFY(m_stage->left.undecided().isEmpty());
        refuse("read", ".journal");
        QCOMPARE(m_stage->left.owed(), 1);

        QCOMPARE(m_stage->left.undecided().size(), 1);
        QCOMPARE(m_stage->left.undecided().at(0).journal.subject, u"wave optics"_s);
    }

    void whatCannotBeWrittenDownIsStoredAllTheSame()
    {
        LectureJournal journal = LeftStage::journal();
        journal.isDone = true;
        journal.take = m_stage->takePath();
        journal.target = m_stage->locations.getAudioSavePath();
        m_stage->leaveTake();

        const auto stored =
            m_stage->left.storeUnwritten(m_stage->locations.temporaryFolder(), journal);

        QVERIFY(stored);
        QCOMPARE(m_stage->rows().value(0)["ID"_L1].toLongLong(), stored->row);
        QCOMPARE(stored->recording, journal.target);
        m_stage->expectOneKeptLecture();
    }

    // A failed write of the program resets the table; one of this kind must not.
    void whatCannotBeStoredNowCostsNoOtherLecture()
    {
        m_stage->database.insertIntoDbwithSqlStatementWithArguments(
            tarvelo::store::statements::Insert, LeftStage::journal().row());
        m_stage->leaveTake();
        m_stage->setAside();
        {
            tarvelo::store::Sqlite other(m_stage->places.databaseFile());
            QVERIFY(other.beginTransaction());

            QVERIFY(m_stage->left.keep(m_stage->left.undecided().at(0)) ==
                    LeftLectures::Kept::Later);

            QVERIFY(other.rollback());
        }
        QCOMPARE(m_stage->rows().size(), 1);
        QCOMPARE(m_stage->left.owed(), 1);
        qint64 stored = 0;
        m_stage->left.storeOwed([&](const LeftLectures::Stored &lecture) { stored = lecture.row; });
        QCOMPARE(m_stage->rows().size(), 2);
        QCOMPARE(m_stage->rows().at(1)["ID"_L1].toLongLong(), stored);
    }

private:
    void prepare() override { m_stage = std::make_unique<LeftStage>(); }
    // With a place for its recording.
    LectureJournal doneJournal() const
    {
        LectureJournal journal = LeftStage::journal();
        journal.isDone = true;
        journal.target = m_stage->locations.getAudioSavePath();
        return journal;
    }
    void expectTwoLectures()
    {
        QCOMPARE(m_stage->rows().size(), 2);
        QVERIFY(m_stage->rows().at(0)["audioFileFullPath"_L1] !=
                m_stage->rows().at(1)["audioFileFullPath"_L1]);
        QCOMPARE(m_stage->rows().at(1)["notes"_L1], u"Huygens"_s);
    }
    void finish() override
    {
        tarvelo::tests::refuseNothing();
        m_stage.reset();
    }

    std::unique_ptr<LeftStage> m_stage;
};

QTEST_GUILESS_MAIN(LeftLecturesTest)
#include "LeftLecturesTest.moc"
