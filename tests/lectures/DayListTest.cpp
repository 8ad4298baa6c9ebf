#include "lectures/DayList.h"

#include "lectures/ProgramCase.h"
#include "store/GoneLectures.h"

#include <QDir>

using namespace Qt::StringLiterals;
using tarvelo::lectures::DayList;
using tarvelo::lectures::Lecture;
using tarvelo::lectures::MainWindowOutlets;
using tarvelo::tests::aLecture;
using tarvelo::tests::LectureProgram;
using tarvelo::tests::theDay;

class DayListTest final : public tarvelo::tests::ProgramCase
{
    Q_OBJECT

private Q_SLOTS:
    void aDayShowsItsLecturesNewestFirst()
    {
        aLecture().named("first").on("2024-03-05").insertInto(m_program->database);
        aLecture().named("second").on("2024-03-05").insertInto(m_program->database);

        m_list->prepareViewForDate(m_program->today());

        QCOMPARE(subjects(), QStringList({u"Second"_s, u"First"_s}));
        QCOMPARE(m_list->dateOfButtonClicked(), m_program->today());
    }

    void aDayShowsNoLectureOfAnotherDay()
    {
        aLecture().on("2024-03-04").insertInto(m_program->database);
        aLecture().named("today").on("2024-03-05").insertInto(m_program->database);
        aLecture().on("2023-03-05").insertInto(m_program->database);

        m_list->prepareViewForDate(m_program->today());

        QCOMPARE(subjects(), QStringList({u"Today"_s}));
    }

    void aLectureOfTheListHasWhatItsRowHas()
    {
        const qint64 id = aLecture()
                              .named("history of art")
                              .withNotes("Giotto")
                              .withAudio(u"/a//b.aac"_s)
                              .lasting("01:00:00")
                              .insertInto(m_program->database);

        m_list->prepareViewForDate(m_program->today());

        const Lecture lecture = m_list->arrangedObjects().at(0);
        QCOMPARE(lecture->strSubject(), u"History Of Art"_s);
        QCOMPARE(lecture->strNotes(), u"Giotto"_s);
        QCOMPARE(lecture->getLectureAudioPath(), u"/a//b.aac"_s);
        QCOMPARE(lecture->strRecordingDuration(), u"01:00:00"_s);
        QCOMPARE(lecture->getRecordUniqueID(), id);
        QVERIFY(!lecture->bChecked());
    }

    void aRowWithoutNotesAndAudioIsALectureToo()
    {
        aLecture().withNotes("").withoutAudio().insertInto(m_program->database);

        m_list->prepareViewForDate(m_program->today());

        QCOMPARE(m_list->arrangedObjects().size(), 1U);
        QCOMPARE(m_list->arrangedObjects().at(0)->strNotes(), QString());
        QCOMPARE(m_list->arrangedObjects().at(0)->strLectureAudioPath(), QString());
    }

    void anEmptyOpenDayOffersANewLecture_data()
    {
        QTest::addColumn<QDateTime>("day");
        QTest::newRow("today") << theDay("2024-03-05");
        QTest::newRow("tomorrow") << theDay("2024-03-06");
        QTest::newRow("next year") << theDay("2025-01-01");
    }
    void anEmptyOpenDayOffersANewLecture()
    {
        QFETCH(QDateTime, day);
        outlets().btnAddItem->hide();
        m_program->emptyDayPanel().hide();
        outlets().btnDeleteItem->show();
        outlets().btnDeleteItem->setEnabled(true);

        m_list->prepareViewForDate(day);

        QVERIFY(!outlets().btnAddItem->isHidden());
        QVERIFY(!m_program->emptyDayPanel().isHidden());
        QVERIFY(outlets().btnDeleteItem->isHidden());
        QVERIFY(!outlets().btnDeleteItem->isEnabled());
    }

    void anEmptyPastDayOffersNothing()
    {
        outlets().btnAddItem->show();
        m_program->emptyDayPanel().show();

        m_list->prepareViewForDate(theDay("2024-03-04"));

        QVERIFY(outlets().btnAddItem->isHidden());
        QVERIFY(m_program->emptyDayPanel().isHidden());
    }

    void aDayWithLecturesHidesThePanelAndKeepsTheDeleteButtonHidden_data()
    {
        QTest::addColumn<QString>("day");
        QTest::addColumn<bool>("isClosed");
        QTest::newRow("past") << u"2024-03-04"_s << true;
        QTest::newRow("today") << u"2024-03-05"_s << false;
    }
    void aDayWithLecturesHidesThePanelAndKeepsTheDeleteButtonHidden()
    {
        QFETCH(QString, day);
        QFETCH(bool, isClosed);
        aLecture().on(day.toLatin1().constData()).insertInto(m_program->database);
        m_program->emptyDayPanel().show();
        outlets().btnAddItem->setHidden(!isClosed);
        outlets().btnDeleteItem->show();
        outlets().btnDeleteItem->setEnabled(false);

        m_list->prepareViewForDate(theDay(day.toLatin1().constData()));

        QVERIFY(m_program->emptyDayPanel().isHidden());
        QCOMPARE(outlets().btnAddItem->isHidden(), isClosed);
        QVERIFY(outlets().btnDeleteItem->isEnabled());
        QVERIFY(outlets().btnDeleteItem->isHidden());
    }

    void theVeryInstantAndTheNextAreOpenWhateverTheirDay()
    {
        const QDateTime now = theDay("2024-03-06").addMSecs(-1);
        m_program->clock.set(now);

        QVERIFY(m_list->isDayOpen(now));
        QVERIFY(m_list->isDayOpen(now.addMSecs(1)));
    }

    void todayIsOpenFromItsFirstMomentToItsLast()
    {
        m_program->clock.set(theDay("2024-03-06").addMSecs(-1));

        QVERIFY(m_list->isDayOpen(theDay("2024-03-05")));
        QVERIFY(!m_list->isDayOpen(theDay("2024-03-05").addMSecs(-1)));
    }

    void theDayIsAskedForInLatinDigitsWhateverTheUsersAre()
    {
        LectureProgram program("ar_EG");
        aLecture().on("2024-03-05").insertInto(program.database);
        DayList list(program.dates, program.database, program.windows.mainOutlets(), [] {});

        list.prepareViewForDate(program.today());

        QCOMPARE(list.arrangedObjects().size(), 1U);
    }

    void withoutADatabaseTheListIsEmpty()
    {
        QVERIFY(QDir().mkpath(m_program->places.databaseFile()));

        m_list->prepareViewForDate(m_program->today());
        m_list->showAllList(m_program->today());

        QVERIFY(m_list->arrangedObjects().empty());
        QVERIFY(!m_program->emptyDayPanel().isHidden());
        QCOMPARE(m_reloads, 2);
    }

    void allListShowsTheMonthOfEveryYearAsTheFileHasIt()
    {
        aLecture().named("march").on("2024-03-05").insertInto(m_program->database);
        aLecture().named("april").on("2024-04-05").insertInto(m_program->database);
        aLecture().named("long ago").on("1999-03-31").insertInto(m_program->database);
        aLecture().named("later").on("2030-03-01").insertInto(m_program->database);
        m_program->emptyDayPanel().show();
        outlets().btnDeleteItem->show();
        outlets().btnDeleteItem->setEnabled(false);

        m_list->showAllList(m_program->today());

        QCOMPARE(subjects(), QStringList({u"March"_s, u"Long Ago"_s, u"Later"_s}));
        QCOMPARE(outlets().lblDateDisplay->text(), u"All List"_s);
        QCOMPARE(outlets().lblDateDisplay->accessibleName(), u"All List"_s);
        QVERIFY(outlets().btnDeleteItem->isEnabled());
        QVERIFY(outlets().btnDeleteItem->isHidden());
        QVERIFY(m_program->emptyDayPanel().isHidden());
    }

    void anEmptyAllListShowsThePanelAfterAPastDayToo()
    {
        m_list->prepareViewForDate(theDay("2024-03-04"));
        QVERIFY(m_program->emptyDayPanel().isHidden());
        outlets().btnDeleteItem->show();
        outlets().btnDeleteItem->setEnabled(true);

        m_list->showAllList(theDay("2024-03-04"));

        QVERIFY(!m_program->emptyDayPanel().isHidden());
        QVERIFY(!outlets().btnDeleteItem->isEnabled());
        QVERIFY(outlets().btnDeleteItem->isHidden());
    }

    void whatShowsIsReadAgain()
    {
        m_list->showAgain();
        QCOMPARE(m_reloads, 0);
        aLecture().named("march").on("2024-03-05").insertInto(m_program->database);
        aLecture().named("earlier").on("2024-03-01").insertInto(m_program->database);

        m_list->showAllList(m_program->today());
        aLecture().named("later").on("2024-03-09").insertInto(m_program->database);
        outlets().mainWindow->setFrameWidth(452, false);
        m_list->showAgain();
        QCOMPARE(subjects(), QStringList({u"March"_s, u"Earlier"_s, u"Later"_s}));
        QCOMPARE(outlets().mainWindow->frameWidth(), 452);

        m_list->prepareViewForDate(m_program->today());
        aLecture().named("second").on("2024-03-05").insertInto(m_program->database);
        m_list->showAgain();
        QCOMPARE(subjects(), QStringList({u"Second"_s, u"March"_s}));
    }

    void newcomersStandBehindTheOthers()
    {
        m_list->appendNewcomers();
        QCOMPARE(m_reloads, 0);
        aLecture().named("first").on("2024-03-05").insertInto(m_program->database);
        m_list->prepareViewForDate(m_program->today());
        const auto first = m_list->arrangedObjects().at(0);
        aLecture().named("second").on("2024-03-05").insertInto(m_program->database);
        aLecture().named("another day").on("2024-03-04").insertInto(m_program->database);

        m_list->appendNewcomers();
        QCOMPARE(subjects(), QStringList({u"First"_s, u"Second"_s}));
        QCOMPARE(m_list->arrangedObjects().at(0), first);
        m_list->appendNewcomers();
        QCOMPARE(subjects().size(), 2);

        m_list->showAllList(m_program->today());
        aLecture().named("third").on("2024-03-01").insertInto(m_program->database);
        m_list->appendNewcomers();
        QCOMPARE(subjects(), QStringList({u"First"_s, u"Second"_s, u"Another Day"_s, u"Third"_s}));
    }

    void withoutNewcomersAPastDayStaysWithoutThePanel()
    {
        m_list->prepareViewForDate(theDay("2024-03-04"));
        aLecture().named("another day").on("2024-03-05").insertInto(m_program->database);

        m_list->appendNewcomers();

        QVERIFY(m_program->emptyDayPanel().isHidden());
        QCOMPARE(m_reloads, 1);
    }

    void aNewcomerMayHaveTheIdOfOneThatHasGone()
    {
        aLecture().named("gone").on("2024-03-05").insertInto(m_program->database);
        m_list->prepareViewForDate(m_program->today());
        const auto gone = m_list->arrangedObjects().at(0);
        tarvelo::store::GoneLectures{u"copy"_s}.mark(*gone);
        QVERIFY(!gone->hasRow());
        QVERIFY(m_program->database.connection()->executeNonQuery(
            u"UPDATE audioData SET subject = 'new'"_s));

        m_list->appendNewcomers();

        QCOMPARE(subjects(), QStringList({u"Gone"_s, u"New"_s}));
    }

    void allListBringsTheWindowBackToTheListsWidth()
    {
        outlets().mainWindow->setFrameWidth(1234, false);
        outlets().mainWindow->show();

        m_list->showAllList(m_program->today());

        QVERIFY(outlets().mainWindow->isSliding());
        QTRY_COMPARE(outlets().mainWindow->width(), 833);
    }

    void anAppendedLectureStandsLast()
    {
        aLecture().named("stored").insertInto(m_program->database);
        m_list->prepareViewForDate(m_program->today());

        m_list->append(std::make_shared<tarvelo::store::LectureInfoItem>(
            u"new"_s, QString(), QString(), QString(), true));

        QCOMPARE(subjects(), QStringList({u"Stored"_s, u"New"_s}));
        QCOMPARE(m_reloads, 2);
    }

    void everyRowHasItsLectureAndNoOtherHasOne()
    {
        aLecture().named("first").insertInto(m_program->database);
        aLecture().named("second").insertInto(m_program->database);
        QVERIFY(!m_list->lectureAt(0));

        m_list->prepareViewForDate(m_program->today());

        QCOMPARE(m_list->lectureAt(0)->strSubject(), u"Second"_s);
        QCOMPARE(m_list->lectureAt(1)->strSubject(), u"First"_s);
        QVERIFY(!m_list->lectureAt(2));
        QVERIFY(!m_list->lectureAt(-1));
    }

    void aLectureThatIsRemovedIsTakenOutWithoutReloading()
    {
        aLecture().named("first").insertInto(m_program->database);
        aLecture().named("second").insertInto(m_program->database);
        m_list->prepareViewForDate(m_program->today());

        m_list->removeObject(2);
        m_list->removeObject(-1);
        QCOMPARE(subjects().size(), 2);
        m_list->removeObject(0);

        QCOMPARE(subjects(), QStringList{u"First"_s});
        QCOMPARE(m_reloads, 1);
    }

private:
    void prepare() override
    {
        m_reloads = 0;
        ProgramCase::prepare();
        m_list = std::make_unique<DayList>(m_program->dates, m_program->database, outlets(),
                                           [this] { ++m_reloads; });
    }
    void finish() override
    {
        m_list.reset();
        ProgramCase::finish();
    }

    const MainWindowOutlets &outlets() const { return m_program->windows.mainOutlets(); }
    QStringList subjects() const
    {
        QStringList found;
        for (const Lecture &lecture : m_list->arrangedObjects())
            found.append(lecture->strSubject());
        return found;
    }

    int m_reloads = 0;
    std::unique_ptr<DayList> m_list;
};

QTEST_MAIN(DayListTest)
#include "DayListTest.moc"
