#include "lectures/NewLecture.h"
#include "lectures/ProgramCase.h"
#include "store/FullDisk.h"
#include "support/FileContent.h"
#include "support/RefusedCalls.h"

#include <QDir>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using tarvelo::lectures::Lecture;
using tarvelo::tests::aLecture;
using tarvelo::tests::contentOf;
using tarvelo::tests::SmallDisk;
using tarvelo::tests::writeContent;

// A lecture that is in the list while its row, or its recording, waits for better times.
class WaitingRowTest final : public tarvelo::tests::TodayCase
{
    Q_OBJECT

private Q_SLOTS:
    void aLectureThatCouldNotBeStoredHasNoRow()
    {
        aLecture().named("earlier").insertInto(m_program->database);
        finishWhileLocked("Optics", true);

        QVERIFY(!lecture(0)->hasRow());
        m_program->clock.advance(10s);

        QVERIFY(lecture(0)->hasRow());
        QCOMPARE(lecture(0)->getRecordUniqueID(), storedID(1));
    }

    void whatIsChangedMeanwhileIsStoredWithItAndInNoOther_data() { withAndWithoutRecording(); }
    void whatIsChangedMeanwhileIsStoredWithItAndInNoOther()
    {
        QFETCH(bool, records);
        aLecture().named("earlier").withNotes(u"Lenses"_s).insertInto(m_program->database);
        finishWhileLocked("Optics", records);

        m_program->change(0, u"wave optics"_s, u"Huygens"_s);
        QCOMPARE(m_program->subjectsShown(), QStringList{u"Wave Optics"_s});
        QCOMPARE(m_program->storedTexts(), QStringList{u"earlier: Lenses"_s});
        m_program->clock.advance(20s);

        QCOMPARE(m_program->storedTexts(),
                 QStringList({u"earlier: Lenses"_s, u"wave optics: Huygens"_s}));
        QCOMPARE(lecture(0)->strNotes(), u"Huygens"_s);
    }

    // The day was chosen again meanwhile.
    void aListThatWasMadeAnewGetsItWhenItIsStored()
    {
        finishWhileLocked("Optics", true);
        controller().prepareViewForDate(m_program->today());
        QVERIFY(m_program->subjectsShown().isEmpty());

        m_program->clock.advance(20s);

        QCOMPARE(m_program->subjectsShown(), QStringList{u"Optics"_s});
    }

    // The row of another lecture is about to be deleted.
    void whatIsStoredMeanwhileMovesNoRow()
    {
        aLecture().named("earlier").insertInto(m_program->database);
        finishWhileLocked("Optics", true);
        controller().prepareViewForDate(m_program->today());
        QCOMPARE(m_program->subjectsShown(), QStringList{u"Earlier"_s});
        const auto earlier = lecture(0);

        m_program->clock.advance(20s);

        QCOMPARE(m_program->subjectsShown(), QStringList({u"Earlier"_s, u"Optics"_s}));
        QCOMPARE(lecture(0), earlier);
    }

    // Nothing moves under the hand of whoever works with it.
    void aListThatHasItIsNotMadeAnewWhenItIsStored()
    {
        finishWhileLocked("Optics", true);
        const auto shown = lecture(0);
        controller().owedLectures().storeSoon();

        m_program->clock.advance(20s);

        QVERIFY(shown->hasRow());
        QCOMPARE(lecture(0), shown);
    }

    void theListOfAllStaysOneWhenSomethingIsStored()
    {
        aLecture().named("earlier").on("2024-03-01").insertInto(m_program->database);
        finishWhileLocked("Optics", true);
        controller().showList(nullptr);
        QCOMPARE(m_program->subjectsShown(), QStringList{u"Earlier"_s});

        m_program->clock.advance(20s);

        QCOMPARE(m_program->subjectsShown(), QStringList({u"Earlier"_s, u"Optics"_s}));
        QCOMPARE(m_program->windows.mainOutlets().lblDateDisplay->text(), u"All List"_s);
    }

    void whatIsChangedAfterItWasStoredIsStoredToo()
    {
        finishWhileLocked("Optics", true);
        m_program->edit(0);
        m_program->clock.advance(20s);
        QCOMPARE(m_program->storedTexts(), QStringList{u"Optics: "_s});

        m_program->finishEdit(u"Acoustics"_s, u"Pipes"_s);

        QCOMPARE(m_program->storedTexts(), QStringList{u"Acoustics: Pipes"_s});
        QCOMPARE(m_program->subjectsShown(), QStringList{u"Acoustics"_s});
    }

    void whatWasChangedMeanwhileOutlivesTheProgram()
    {
        finishWhileLocked("Optics", false);

        m_program->change(0, u"Acoustics"_s, u"Pipes"_s);

        m_program->controller.journal().flush();
        QStringList subjects;
        for (const QFileInfo &file : QDir(folder()).entryInfoList({u"*.journal"_s}))
            subjects.append(tarvelo::store::readJournal(file.filePath()).journal.subject);
        QCOMPARE(subjects, QStringList{u"Acoustics"_s});
    }

    void twoThatWaitAreNotTakenForEachOther()
    {
        finishWhileLocked("Optics", false);
        finishWhileLocked("Logic", false);

        m_program->change(0, u"Acoustics"_s, u"Pipes"_s);
        m_program->clock.advance(20s);

        QCOMPARE(m_program->storedTexts(), QStringList({u"Acoustics: Pipes"_s, u"Logic: "_s}));
        QCOMPARE(m_program->subjectsShown(), QStringList({u"Acoustics"_s, u"Logic"_s}));
    }

    void oneThatIsDeletedMeanwhileDoesNotComeBackAndTakesNoOther_data()
    {
        withAndWithoutRecording();
    }
    void oneThatIsDeletedMeanwhileDoesNotComeBackAndTakesNoOther()
    {
        QFETCH(bool, records);
        aLecture().named("earlier").withoutAudio().insertInto(m_program->database);
        finishWhileLocked("Optics", records);

        controller().onDelete(0);
        m_program->clock.advance(20s);

        QVERIFY(m_program->subjectsShown().isEmpty());
        QCOMPARE(m_program->storedTexts(), QStringList{u"earlier: Lenses and mirrors"_s});
        QCOMPARE(controller().leftLectures().owed(), 0);
        QCOMPARE(filesIn(folder()), QStringList{u".owner"_s});
        QVERIFY(filesIn(audio()).isEmpty());
    }

    void oneOfWhichOnlyTheRecordingWaitsIsDeletedWhole()
    {
        m_program->recordNewLecture(3);
        QVERIFY(QDir(audio()).removeRecursively());
        QFile inTheWay(audio());
        QVERIFY(inTheWay.open(QIODevice::WriteOnly));
        m_program->finishNewLecture();
        QCOMPARE(m_program->storedTexts().size(), 1);

        controller().prepareViewForDate(m_program->today());
        controller().onDelete(0);
        QVERIFY(inTheWay.remove());
        m_program->clock.advance(20s);

        QVERIFY(m_program->storedTexts().isEmpty());
        QCOMPARE(filesIn(folder()), QStringList{u".owner"_s});
    }

    // Its row is stored, and its journal could not be removed then.
    void oneThatIsDeletedTakesAnOldJournalAlong()
    {
        m_program->recordNewLecture(3);
        m_program->finishNewLecture();
        tarvelo::store::LectureJournal journal{.id = u"20240305T080000000"_s, .isDone = true};
        journal.target = lecture(0)->strLectureAudioPath();
        QVERIFY(writeContent(folder() + u"/leftover-20240305T080000000.journal"_s,
                             tarvelo::store::toBytes(journal)));

        controller().onDelete(0);

        QCOMPARE(controller().leftLectures().owed(), 0);
        QCOMPARE(filesIn(folder()), QStringList{u".owner"_s});
    }

    // Its journal stayed, since it could not be removed then.
    void oneWithoutARecordingThatIsDeletedTakesAnOldJournalAlong()
    {
        finishWhileLocked("Optics", false);
        tarvelo::tests::refuse("unlink", "leftover-", 1000);
        m_program->clock.advance(20s);
        tarvelo::tests::refuseNothing();
        QCOMPARE(m_program->storedTexts(), QStringList{u"Optics: "_s});
        QCOMPARE(controller().leftLectures().owed(), 1);

        controller().onDelete(0);

        QCOMPARE(controller().leftLectures().owed(), 0);
        QVERIFY(m_program->storedTexts().isEmpty());
    }

    void anEqualOneThatWasStoredMeanwhileIsAnother()
    {
        finishWhileHeldForWriting("Optics");
        controller().onAddItem(nullptr);
        m_program->windows.newLectureOutlets().txtSubjectForNewNote->setText(u"Optics"_s);
        m_program->finishNewLecture();
        QCOMPARE(m_program->storedRows().size(), 1);

        m_program->clock.advance(20s);

        QCOMPARE(m_program->storedTexts(), QStringList({u"Optics: "_s, u"Optics: "_s}));
        QVERIFY(lecture(0)->getRecordUniqueID() != lecture(1)->getRecordUniqueID());
    }

    void oneThatGetsAnotherPlaceIsFoundThere()
    {
        QVERIFY(QDir(audio()).removeRecursively());
        QFile inTheWay(audio());
        QVERIFY(inTheWay.open(QIODevice::WriteOnly));
        finishWhileLocked("Optics", true);
        const QString wished = lecture(0)->strLectureAudioPath();
        QVERIFY(inTheWay.remove() && QDir().mkpath(audio()));
        QVERIFY(writeContent(wished, "another take"));

        m_program->clock.advance(20s);

        const QString path = lecture(0)->strLectureAudioPath();
        QVERIFY(path != wished && QFile::exists(path));
        QCOMPARE(m_program->storedRows().value(0)["audioFileFullPath"_L1].toString(), path);
        QCOMPARE(contentOf(wished), QByteArray("another take"));
    }

    void whatIsOwedIsKnown()
    {
        QVERIFY(controller().owedLectures().recordings().isEmpty());

        finishWhileLocked("Optics", true);

        QCOMPARE(controller().owedLectures().recordings(),
                 QStringList{lecture(0)->strLectureAudioPath()});
    }

    void whileAnotherIsDeletedTheOpenOneStaysOpen()
    {
        aLecture().named("earlier").insertInto(m_program->database);
        controller().prepareViewForDate(m_program->today());
        finishWhileLocked("Optics", false);
        m_program->edit(1);

        controller().onDelete(0);
        m_program->finishEdit(u"Acoustics"_s, u"Pipes"_s);
        m_program->clock.advance(20s);

        QCOMPARE(m_program->storedTexts(), QStringList{u"Acoustics: Pipes"_s});
    }

    void whatIsWrittenIntoOneThatWasDeletedIsGoneWithIt()
    {
        finishWhileLocked("Optics", false);
        m_program->edit(0);

        controller().onDelete(0);
        m_program->finishEdit(u"Acoustics"_s, u"Pipes"_s);
        m_program->clock.advance(20s);

        QVERIFY(m_program->storedTexts().isEmpty());
    }

    // Both were saved within one second, and the audio folder is on a disk of its own.
    void aRecordingThatFindsNoRoomCostsNoEarlierOne()
    {
        QVERIFY(QDir().mkpath(audio()));
        SmallDisk disk(audio());
        m_program->recordNewLecture(3);
        m_program->finishNewLecture();
        const QDateTime moment = m_program->clock.now();
        const QString path = lecture(0)->strLectureAudioPath();
        QVERIFY(writeContent(path, "the earlier take"));
        m_program->recordNewLecture(4);
        const QByteArray take = QByteArray("the later take").repeated(3000);
        QVERIFY(writeContent(controller().tempAudioSavePath(), take));
        m_program->clock.set(moment.addMSecs(-200));

        disk.fill();
        m_program->finishNewLecture();
        QCOMPARE(contentOf(path), QByteArray("the earlier take"));
        disk.emptyAgain();
        m_program->clock.advance(20s);

        QByteArrayList takes;
        for (const QString &name : filesIn(audio()))
            takes.append(contentOf(audio() + u'/' + name));
        QVERIFY(takes.contains("the earlier take") && takes.contains(take));
        QCOMPARE(filesIn(folder()), QStringList{u".owner"_s});
    }

private:
    static void withAndWithoutRecording()
    {
        QTest::addColumn<bool>("records");
        QTest::newRow("with a recording") << true;
        QTest::newRow("without a recording") << false;
    }

    // While another program holds the database, which it does not any more afterwards.
    void finishWhileLocked(const char *subject, bool records)
    {
        if (records)
            m_program->recordNewLecture(3);
        else
            controller().onAddItem(nullptr);
        m_program->windows.newLectureOutlets().txtSubjectForNewNote->setText(
            QString::fromLatin1(subject));
        tarvelo::store::Sqlite other(m_program->places.databaseFile());
        QVERIFY(other.beginTransaction());
        m_program->finishNewLecture();
        QVERIFY(other.rollback());
    }

    // While another program reads: what is there can be asked.
    void finishWhileHeldForWriting(const char *subject)
    {
        controller().onAddItem(nullptr);
        m_program->windows.newLectureOutlets().txtSubjectForNewNote->setText(
            QString::fromLatin1(subject));
        tarvelo::store::Sqlite other(m_program->places.databaseFile());
        QVERIFY(other.executeNonQuery(u"BEGIN IMMEDIATE"_s));
        m_program->finishNewLecture();
        QVERIFY(other.rollback());
    }
    Lecture lecture(std::size_t row) { return controller().arrangedObjects().at(row); }
    qint64 storedID(int row) { return m_program->storedRows().value(row)["ID"_L1].toLongLong(); }

    QString folder() const { return m_program->places.folder() + u"/temp"_s; }
    QString audio() const { return m_program->places.folder() + u"/Audio"_s; }
    static QStringList filesIn(const QString &folder)
    {
        return QDir(folder).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }
};

QTEST_MAIN(WaitingRowTest)
#include "WaitingRowTest.moc"
