#include "lectures/ProgramCase.h"
#include "support/RefusedCalls.h"

#include <functional>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using tarvelo::lectures::Lecture;
using tarvelo::tests::aLecture;
using tarvelo::tests::RefusedInTurn;

// A failed write empties the table, while the list goes on showing the lectures that were in it.
class EmptiedTableTest final : public tarvelo::tests::TodayCase
{
    Q_OBJECT

private Q_SLOTS:
    void aChangeOfALectureThatHasGoneTouchesNoOther()
    {
        loseTheEarlierOneToANewcomer();
        QCOMPARE(m_program->storedTexts(), QStringList{u"Newcomer: "_s});

        m_program->change(0, u"wave optics"_s, u"Huygens"_s);

        QCOMPARE(m_program->storedTexts(), QStringList{u"Newcomer: "_s});
        QCOMPARE(m_program->subjectsShown(), QStringList({u"Wave Optics"_s, u"Newcomer"_s}));
    }

    void theChangeComesBackWithTheLecture()
    {
        loseTheEarlierOneToANewcomer();
        m_program->change(0, u"wave optics"_s, u"Huygens"_s);

        bringBack();

        QCOMPARE(m_program->storedTexts(),
                 QStringList({u"Newcomer: "_s, u"wave optics: Huygens"_s}));
    }

    void theNewcomerIsChangedAsEver()
    {
        loseTheEarlierOneToANewcomer();

        m_program->change(1, u"acoustics"_s, u"Pipes"_s);
        QCOMPARE(m_program->storedTexts(), QStringList{u"acoustics: Pipes"_s});

        bringBack();
        QCOMPARE(m_program->storedTexts(),
                 QStringList({u"acoustics: Pipes"_s, u"Optics: Lenses"_s}));
    }

    void aWindowThatWasOpenBeforeSavesIntoTheCopyToo()
    {
        aLecture().named("Optics").withNotes(u"Lenses"_s).insertInto(m_program->database);
        controller().prepareViewForDate(m_program->today());
        m_program->edit(0);
        failNext("INSERT");
        saveNewcomer();
        controller().prepareViewForDate(m_program->today());

        m_program->finishEdit(u"wave optics"_s, u"Huygens"_s);

        QCOMPARE(m_program->storedTexts(), QStringList{u"Newcomer: "_s});
        bringBack();
        QCOMPARE(m_program->storedTexts(),
                 QStringList({u"Newcomer: "_s, u"wave optics: Huygens"_s}));
    }

    void theChangeThatEmptiedTheTableAndTheNextOneComeBack()
    {
        aLecture().named("Optics").withNotes(u"Lenses"_s).insertInto(m_program->database);
        controller().prepareViewForDate(m_program->today());
        failNext("UPDATE");

        m_program->change(0, u"wave optics"_s, u"Huygens"_s);
        QVERIFY(m_program->storedTexts().isEmpty());
        m_program->change(0, u"wave optics"_s, u"Huygens and Fresnel"_s);

        QVERIFY(m_program->storedTexts().isEmpty());
        bringBack();
        QCOMPARE(m_program->storedTexts(), QStringList{u"wave optics: Huygens and Fresnel"_s});
    }

    void whatWaitedToBeSavedIsSavedInTheCopy()
    {
        aLecture().named("Optics").withNotes(u"Lenses"_s).insertInto(m_program->database);
        controller().prepareViewForDate(m_program->today());
        {
            tarvelo::store::Sqlite other(m_program->places.databaseFile());
            QVERIFY(other.beginTransaction());
            m_program->change(0, u"wave optics"_s, u"Huygens"_s);
            QVERIFY(other.rollback());
        }

        failNext("INSERT");
        saveNewcomer();
        m_program->clock.advance(20s);

        QCOMPARE(m_program->storedTexts(), QStringList{u"Newcomer: "_s});
        bringBack();
        QCOMPARE(m_program->storedTexts(),
                 QStringList({u"Newcomer: "_s, u"wave optics: Huygens"_s}));
    }

    void aWindowThatIsOpenWhileItsLectureComesBackSavesIntoTheTable()
    {
        loseTheEarlierOneToANewcomer();
        m_program->edit(0);

        bringBack();
        controller().prepareViewForDate(m_program->today());
        m_program->finishEdit(u"wave optics"_s, u"Huygens"_s);

        QCOMPARE(m_program->storedTexts(),
                 QStringList({u"Newcomer: "_s, u"wave optics: Huygens"_s}));
        QVERIFY(m_program->subjectsShown().contains(u"Wave Optics"_s));
    }

    // Those without a recording go together, and those of them that were not chosen stay in the
    // list.
    void oneThatWasDeletedWithAnotherIsNotTakenForTheNextOne()
    {
        loseTwoByADelete([] {});
        QVERIFY(m_program->storedTexts().isEmpty());
        saveNewcomer();
        QCOMPARE(m_program->storedRows().first()["ID"_L1].toInt(), 1);

        m_program->change(0, u"wave optics"_s, u"Huygens"_s);

        QCOMPARE(m_program->storedTexts(), QStringList{u"Newcomer: "_s});
        auto &database = *m_program->database.openDb();
        const QString copy = m_program->database.backups().copies(database).first().filePath;
        QCOMPARE(m_program->database.backups().bringBack(copy, database)->count, 2);
        QCOMPARE(m_program->storedTexts(),
                 QStringList({u"Newcomer: "_s, u"Logic: notes"_s, u"wave optics: Huygens"_s}));
    }

    // The window holds one entry of it, the list another since it was built anew.
    void theListShowsWhatAWindowThatWasOpenBeforeSavesIntoTheCopy()
    {
        aLecture().named("Optics").withNotes(u"Lenses"_s).insertInto(m_program->database);
        controller().prepareViewForDate(m_program->today());
        m_program->edit(0);
        controller().prepareViewForDate(m_program->today());
        failNext("UPDATE");

        m_program->finishEdit(u"wave optics"_s, u"Huygens"_s);

        QVERIFY(m_program->storedTexts().isEmpty());
        QCOMPARE(m_program->subjectsShown(), QStringList{u"Wave Optics"_s});
        QCOMPARE(controller().arrangedObjects().front()->strNotes(), u"Huygens"_s);
    }

    void aWindowThatShowsTheOneThatWasDeletedSavesNoMore()
    {
        loseTwoByADelete([this] { m_program->edit(0); });

        m_program->finishEdit(u"modal logic"_s, u"Kripke"_s);

        bringEverythingBack();
        QCOMPARE(m_program->storedTexts(), QStringList({u"Optics: notes"_s, u"Logic: notes"_s}));
    }

    // They may be gone though the delete failed, since only its last step did.
    void whicheverCallFailsOnceInADeleteTheOthersAreNotTakenForTheNextOne()
    {
        RefusedInTurn calls("/Tarvelo");
        while (calls.areLeft()) {
            finish();
            prepare();
            loseTwoByADelete([&calls] { calls.refuse(); });
            calls.allow();
            saveNewcomer();

            m_program->change(static_cast<int>(m_program->subjectsShown().indexOf(u"Optics"_s)),
                              u"wave optics"_s, u"Huygens"_s);

            bringEverythingBack();
            QStringList lectures = m_program->storedTexts();
            lectures.sort();
            QVERIFY2(lectures == QStringList({u"Logic: notes"_s, u"Newcomer: "_s,
                                              u"wave optics: Huygens"_s}),
                     calls.which() + lectures.join(u", "_s).toUtf8());
        }
        QVERIFY2(calls.count() > 20, calls.which());
    }

    // A row may be there though its insert failed, since only the last step did.
    void whicheverCallFailsOnceBothLecturesAreThereOnce()
    {
        RefusedInTurn calls("/Tarvelo");
        while (calls.areLeft()) {
            finish();
            prepare();
            aLecture().named("Optics").withNotes(u"Lenses"_s).insertInto(m_program->database);
            calls.refuse();
            saveNewcomer();
            calls.allow();
            m_program->clock.advance(30s);

            bringEverythingBack();
            QStringList lectures = m_program->storedTexts();
            lectures.sort();
            QVERIFY2(lectures == QStringList({u"Newcomer: "_s, u"Optics: Lenses"_s}),
                     calls.which() + lectures.join(u", "_s).toUtf8());
        }
        QVERIFY2(calls.count() > 20, calls.which());
    }

    // The table is not emptied, and so nothing has gone.
    void whileAnotherProgramHoldsTheFileNothingHasGone()
    {
        aLecture().named("Optics").withNotes(u"Lenses"_s).insertInto(m_program->database);
        controller().prepareViewForDate(m_program->today());
        {
            tarvelo::store::Sqlite other(m_program->places.databaseFile());
            QVERIFY(other.beginTransaction());
            saveNewcomer();
            QVERIFY(other.rollback());
        }

        m_program->change(0, u"wave optics"_s, u"Huygens"_s);

        QCOMPARE(m_program->storedTexts(), QStringList{u"wave optics: Huygens"_s});
    }

private:
    void loseTheEarlierOneToANewcomer()
    {
        aLecture().named("Optics").withNotes(u"Lenses"_s).insertInto(m_program->database);
        controller().prepareViewForDate(m_program->today());
        failNext("INSERT");
        saveNewcomer();
    }
    // Of "Logic", which takes "Optics" with it.
    void loseTwoByADelete(const std::function<void()> &before)
    {
        for (const char *name : {"Optics", "Logic"})
            aLecture()
                .named(name)
                .withoutAudio()
                .withNotes(u"notes"_s)
                .insertInto(m_program->database);
        controller().prepareViewForDate(m_program->today());
        QCOMPARE(m_program->subjectsShown(), QStringList({u"Logic"_s, u"Optics"_s}));
        before();
        controller().onDelete(0);
    }
    // What it runs into goes with the table, and is in no copy.
    void failNext(const char *statement)
    {
        QVERIFY(m_program->database.openDb()->executeNonQuery(
            u"CREATE TEMP TRIGGER failure BEFORE %1 ON main.audioData BEGIN SELECT "
            "RAISE(ABORT, 'no'); END"_s.arg(QLatin1String(statement))));
    }
    void saveNewcomer()
    {
        controller().onAddItem(nullptr);
        m_program->windows.newLectureOutlets().txtSubjectForNewNote->setText(u"Newcomer"_s);
        m_program->finishNewLecture();
    }
    void bringBack()
    {
        auto &database = *m_program->database.openDb();
        const auto copies = m_program->database.backups().copies(database);
        QVERIFY(!copies.isEmpty());
        const auto back =
            m_program->database.backups().bringBack(copies.first().filePath, database);
        QVERIFY(back);
        QCOMPARE(back->count, 1);
        controller().lecturesCameBack(*back);
    }

    void bringEverythingBack()
    {
        auto &database = *m_program->database.openDb();
        for (const auto &copy : m_program->database.backups().copies(database))
            QVERIFY(m_program->database.backups().bringBack(copy.filePath, database));
    }
};

QTEST_MAIN(EmptiedTableTest)
#include "EmptiedTableTest.moc"
