#include "lectures/ProgramCase.h"
#include "support/RefusedCalls.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using tarvelo::tests::aLecture;
using tarvelo::tests::LectureBuilder;
using tarvelo::tests::RefusedInTurn;

// Lectures that went come back while they are open, under their own ID or another, and what is
// saved then goes to them and to no other.
class LecturesBackTest final : public tarvelo::tests::TodayCase
{
    Q_OBJECT

private Q_SLOTS:
    // Nothing but the ID tells the three from each other.
    void anOpenLectureIsTakenForNoOtherThatLooksLikeIt()
    {
        aLecture().named("Ethics").withNotes(u""_s).withoutAudio().insertInto(m_program->database);
        openAndLoseToANewcomer(aLecture().named("Logic").withNotes(u""_s).withoutAudio());
        QCOMPARE(m_program->storedRows().value(0).value(u"ID"_s), QVariant(1));

        bringEverythingBack();
        m_program->finishEdit(u"modal logic"_s, u"Kripke"_s);

        QCOMPARE(sortedTexts(),
                 QStringList({u"Ethics: "_s, u"Newcomer: "_s, u"modal logic: Kripke"_s}));
    }

    void aRowWithoutAPathIsFoundAgain()
    {
        aLecture().named("Logic").withoutAudio().insertInto(m_program->database);
        QVERIFY(m_program->database.openDb()->executeNonQuery(
            u"UPDATE audioData SET audioFileFullPath = NULL, notes = NULL"_s));
        openAndLoseToANewcomer();

        bringEverythingBack();
        m_program->finishEdit(u"modal logic"_s, u"Kripke"_s);

        QCOMPARE(sortedTexts(), QStringList({u"Newcomer: "_s, u"modal logic: Kripke"_s}));
    }

    // From an older copy, or from the recordings.
    void aRecordingThatHasALectureAgainIsSavedIntoThatOne()
    {
        openAndLoseToANewcomer(aLecture().named("Optics").withNotes(u"Lenses"_s));
        QVERIFY(aLecture().named("found").insertInto(*m_program->database.openDb()));

        controller().lecturesCameBack({});
        m_program->finishEdit(u"wave optics"_s, u"Huygens"_s);

        QCOMPARE(sortedTexts(), QStringList({u"Newcomer: "_s, u"wave optics: Huygens"_s}));
    }

    void theEntryInTheListIsSavedIntoItsRowToo()
    {
        openAndLoseToANewcomer(aLecture().named("Optics").withNotes(u"Lenses"_s));

        bringEverythingBack();
        m_program->change(0, u"wave optics"_s, u"Huygens"_s);

        QCOMPARE(sortedTexts(), QStringList({u"Newcomer: "_s, u"wave optics: Huygens"_s}));
    }

    void whatWaitedForTheCopyIsSavedIntoTheRow()
    {
        openAndLoseToANewcomer(aLecture().named("Optics").withNotes(u"Lenses"_s));
        {
            tarvelo::store::Sqlite other(newestCopy());
            QVERIFY(other.beginTransaction());
            m_program->finishEdit(u"wave optics"_s, u"Huygens"_s);
            QVERIFY(other.rollback());
        }

        bringEverythingBack();
        QCOMPARE(sortedTexts(), QStringList({u"Newcomer: "_s, u"Optics: Lenses"_s}));
        m_program->clock.advance(20s);

        QCOMPARE(sortedTexts(), QStringList({u"Newcomer: "_s, u"wave optics: Huygens"_s}));
    }

    void aCopyFromWhichItCameBackTakesNoChangeOfIt()
    {
        openAndLoseToANewcomer(aLecture().named("Optics").withNotes(u"Lenses"_s));
        const auto &database = m_program->database;
        QVERIFY(database.changeGone(newestCopy(), 1, u"wave optics"_s, u"Huygens"_s));
        QVERIFY(!database.changeGone(newestCopy(), 7, u"another"_s, u""_s));

        bringEverythingBack();

        QVERIFY(!database.changeGone(newestCopy(), 1, u"acoustics"_s, u"Pipes"_s));
    }

    // They may be back though that failed, since only its last step did.
    void whicheverCallFailsOnceTheOpenLectureIsSavedOnce()
    {
        RefusedInTurn calls("/Tarvelo");
        while (calls.areLeft()) {
            finish();
            prepare();
            openAndLoseToANewcomer(aLecture().named("Optics").withNotes(u"Lenses"_s));
            calls.refuse();
            bringBack(newestCopy());
            calls.allow();

            m_program->finishEdit(u"wave optics"_s, u"Huygens"_s);
            m_program->clock.advance(20s);
            bringEverythingBack();

            QVERIFY2(sortedTexts() == QStringList({u"Newcomer: "_s, u"wave optics: Huygens"_s}),
                     calls.which() + sortedTexts().join(u", "_s).toUtf8());
        }
        QVERIFY2(calls.count() > 20, calls.which());
    }

private:
    void openAndLoseToANewcomer(const LectureBuilder &lecture)
    {
        lecture.insertInto(m_program->database);
        openAndLoseToANewcomer();
    }
    // The newest one, which is the first in the list.
    void openAndLoseToANewcomer()
    {
        controller().prepareViewForDate(m_program->today());
        m_program->edit(0);
        QVERIFY(m_program->database.openDb()->executeNonQuery(
            u"CREATE TEMP TRIGGER failure BEFORE INSERT ON main.audioData BEGIN SELECT "
            "RAISE(ABORT, 'no'); END"_s));
        controller().onAddItem(nullptr);
        m_program->windows.newLectureOutlets().txtSubjectForNewNote->setText(u"Newcomer"_s);
        m_program->finishNewLecture();
        QCOMPARE(m_program->storedTexts(), QStringList{u"Newcomer: "_s});
    }
    QString newestCopy()
    {
        auto &database = *m_program->database.openDb();
        return m_program->database.backups().copies(database).value(0).filePath;
    }
    void bringBack(const QString &copyPath)
    {
        auto &database = *m_program->database.openDb();
        if (const auto back = m_program->database.backups().bringBack(copyPath, database))
            controller().lecturesCameBack(*back);
    }
    void bringEverythingBack()
    {
        for (const auto &copy : m_program->database.backups().copies(*m_program->database.openDb()))
            bringBack(copy.filePath);
    }
    QStringList sortedTexts()
    {
        QStringList texts = m_program->storedTexts();
        texts.sort();
        return texts;
    }
};

QTEST_MAIN(LecturesBackTest)
#include "LecturesBackTest.moc"
