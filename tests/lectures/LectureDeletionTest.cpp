#include "lectures/LectureDeletion.h"

#include "calendar/CalendarDouble.h"
#include "lectures/CustomTableCellView.h"
#include "lectures/DayList.h"
#include "lectures/LectureRowHost.h"
#include "lectures/ProgramCase.h"
#include "lectures/RowSwipe.h"
#include "store/Statement.h"
#include "support/AnimationClock.h"
#include "widgets/PopOver.h"

#include <QMenu>
#include <QSignalSpy>

#include <sqlite3.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace tarvelo::lectures;
using tarvelo::tests::aLecture;
using tarvelo::tests::AnimationClock;
using tarvelo::tests::LectureProgram;
using tarvelo::tests::theDay;
using tarvelo::widgets::ImageButton;
using tarvelo::widgets::PopOver;

namespace {

// The rows' questions, answered as the application does.
class Host final : public LectureRowHost
{
public:
    explicit Host(MediaLinksArrayController &controller)
        : m_controller(controller)
    {
        m_controller.setRowHost(this);
    }
    ~Host() override { m_controller.setRowHost(nullptr); }

    bool isConfirmDeleteShowing() const override { return m_controller.isConfirmDeleteShowing(); }
    bool isSupportedIniTunes(QWidget *) const override { return false; }

private:
    MediaLinksArrayController &m_controller;
};

// On the windows and the store of a program, and can go before them.
struct DeletionAlone
{
    explicit DeletionAlone(LectureProgram &program)
        : list(program.dates, program.database, program.windows.mainOutlets(), [] {})
        , deletion(std::make_unique<LectureDeletion>(
              LectureDeletion::Collaborators{program.database, list, [](const auto &) {},
                                             [this](int row) { list.removeObject(row); }, [] {},
                                             [] {}, pendingRow},
              program.windows.mainOutlets(), program.windows.popoverOutlets()))
    {
        list.prepareViewForDate(program.today());
    }

    int pendingRow = -1;
    DayList list;
    std::unique_ptr<LectureDeletion> deletion;
};

// Tells of each row that changes in the file, as it does.
class RowChanges final
{
public:
    RowChanges(tarvelo::store::Sqlite &database, std::function<void()> changed)
        : m_changed(std::move(changed))
    {
        tarvelo::store::Statement statement;
        if (!database.prepareSqlInStatament(u"select 1"_s, statement))
            return;
        m_handle = sqlite3_db_handle(statement.get());
        const auto tell = [](void *self, int, const char *, const char *, sqlite3_int64) {
            static_cast<RowChanges *>(self)->m_changed();
        };
        sqlite3_update_hook(m_handle, tell, this);
    }
    ~RowChanges() { sqlite3_update_hook(m_handle, nullptr, nullptr); }
    Q_DISABLE_COPY_MOVE(RowChanges)

private:
    std::function<void()> m_changed;
    sqlite3 *m_handle = nullptr;
};

} // namespace

class LectureDeletionTest final : public tarvelo::tests::ProgramCase
{
    Q_OBJECT

private Q_SLOTS:
    void deletingTakesTheRowTheFileAndTheEntry()
    {
        showThree();

        controller().onDelete(1);

        QCOMPARE(m_program->subjectsShown(), QStringList({u"Third"_s, u"First"_s}));
        QCOMPARE(storedSubjects(), QStringList({u"First"_s, u"Third"_s}));
        QVERIFY(!QFile::exists(audioPath("second")));
        QVERIFY(QFile::exists(audioPath("first")) && QFile::exists(audioPath("third")));
    }

    void theRowSlidesOutAndWhatFollowsIsShownAfterwards()
    {
        showThree();
        main().btnDeleteItem->show();
        AnimationClock clock;

        controller().onDelete(0);
        QCOMPARE(table().rowCount(), 2);
        clock.pass(390ms);
        QVERIFY(main().btnDeleteItem->isVisible());

        clock.pass(10ms);
        QVERIFY(main().btnDeleteItem->isHidden());
        QCOMPARE(viewOf(0)->y(), 0);
        QVERIFY(main().btnDeleteItem->isEnabled());
        QVERIFY(m_program->emptyDayPanel().isHidden());
    }

    void theDayLosesItsMarkWithItsLastLecture()
    {
        store(aLecture().on("2024-03-05").named("Only").withAudio(audioPath("only")));
        tarvelo::tests::CalendarDouble application;
        application.database = m_program->database.openDb();
        main().calendarView->setDelegate(&application);
        showDay();
        QTRY_COMPARE(daysWithLectures(), 1);

        controller().onDelete(0);

        QTRY_COMPARE(daysWithLectures(), 0);
        main().calendarView->setDelegate(nullptr);
    }

    void theLastLectureLeavesTheEmptyDayPanel()
    {
        store(aLecture().on("2024-03-05").named("Only").withAudio(audioPath("only")));
        showDay();

        controller().onDelete(0);

        QTRY_VERIFY(m_program->emptyDayPanel().isVisible());
        QVERIFY(!main().btnDeleteItem->isEnabled());
        QVERIFY(main().btnDeleteItem->isHidden());
    }

    void theLastLectureOfAPastDayLeavesThePanelToo()
    {
        store(aLecture().on("2024-03-01").named("Only").withAudio(audioPath("only")));
        m_program->showDay(theDay("2024-03-01"));
        QVERIFY(m_program->emptyDayPanel().isHidden());

        controller().onDelete(0);

        QTRY_VERIFY(m_program->emptyDayPanel().isVisible());
        QVERIFY(!main().btnDeleteItem->isEnabled());
    }

    void anotherDayEndsTheSlideAndKeepsItsOwnPanel()
    {
        store(aLecture().on("2024-03-05").named("Only").withAudio(audioPath("only")));
        showDay();
        controller().onDelete(0);

        controller().prepareViewForDate(theDay("2024-03-01"));

        // An empty past day has no panel.
        QVERIFY(m_program->emptyDayPanel().isHidden());
        table().finishRemoval();
        QVERIFY(m_program->emptyDayPanel().isHidden());
    }

    void allListEndsTheSlideToo()
    {
        showThree();
        controller().onDelete(0);

        controller().showList(nullptr);
        QCOMPARE(table().rowCount(), 2);
        QCOMPARE(viewOf(0)->y(), 0);

        controller().onDelete(0);
        table().finishRemoval();
        QCOMPARE(storedSubjects(), QStringList{u"Second"_s});
    }

    void aFileThatIsGoneAlreadyIsNoObstacle()
    {
        showThree();
        QFile::remove(audioPath("second"));

        controller().onDelete(1);

        QCOMPARE(storedSubjects(), QStringList({u"First"_s, u"Third"_s}));
        QVERIFY(m_program->alerts.sheets.isEmpty());
    }

    void aFileThatCannotBeRemovedStaysWithoutAWord()
    {
        QDir().mkpath(audioPath("folder") + u"/inside"_s);
        store(aLecture().on("2024-03-05").named("Folder").withAudio(audioPath("folder")));
        QFile::remove(audioPath("folder"));
        QDir().mkpath(audioPath("folder") + u"/inside"_s);
        showDay();

        controller().onDelete(0);

        QVERIFY(QFile::exists(audioPath("folder")));
        QVERIFY(storedSubjects().isEmpty());
        QVERIFY(m_program->subjectsShown().isEmpty());
        QVERIFY(m_program->alerts.sheets.isEmpty());
    }

    void aLectureThatCannotBeDeletedNowKeepsItsFileAndItsEntry()
    {
        store(aLecture().on("2024-03-05").named("Optics").withAudio(audioPath("optics")));
        showDay();
        tarvelo::store::Sqlite other(m_program->places.databaseFile());
        QVERIFY(other.beginTransaction());

        controller().onDelete(0);

        QVERIFY(QFile::exists(audioPath("optics")));
        QCOMPARE(m_program->subjectsShown(), QStringList{u"Optics"_s});
        controller().onDeleteItem(viewOf(0)->btnDelete());
        QVERIFY(QFile::exists(audioPath("optics")));
        QVERIFY(other.rollback());
        QCOMPARE(storedSubjects(), QStringList{u"Optics"_s});
        QCOMPARE(viewOf(0)->objectValue()->strSubject(), u"Optics"_s);
        QVERIFY(m_program->alerts.sheets.isEmpty());
    }

    // Its row is not found by its path, which is wanted; the rest goes as ever.
    void aLectureWithAnApostropheInItsPathLeavesItsRow()
    {
        store(aLecture().on("2024-03-05").named("Quoted").withAudio(audioPath("o'neill")));
        showDay();

        controller().onDelete(0);

        QVERIFY(!QFile::exists(audioPath("o'neill")));
        QVERIFY(m_program->subjectsShown().isEmpty());
        QCOMPARE(storedSubjects(), QStringList{u"Quoted"_s});
    }

    void severalLecturesOfWhichNoCopyCanBeMadeStay()
    {
        for (const char *name : {"Optics", "Logic"})
            store(aLecture().on("2024-03-05").named(name).withAudio(audioPath("both")));
        QDir(m_program->places.folder() + u"/Backups"_s).removeRecursively();
        QFile inTheWay(m_program->places.folder() + u"/Backups"_s);
        QVERIFY(inTheWay.open(QIODevice::WriteOnly));
        showDay();

        controller().onDelete(0);

        QVERIFY(QFile::exists(audioPath("both")));
        QCOMPARE(storedSubjects().size(), 2);
        QCOMPARE(m_program->subjectsShown().size(), 2);
    }

    void theRowIsGoneFirstThenTheFileThenTheEntry()
    {
        QStringList order;
        const auto note = [&order, this] {
            order.append(u"%1 %2 %3"_s.arg(storedSubjects().size())
                             .arg(QFile::exists(audioPath("only")))
                             .arg(m_program->subjectsShown().size()));
        };
        store(aLecture().on("2024-03-05").named("Only").withAudio(audioPath("only")));
        showDay();
        RowChanges rows(*m_program->database.openDb(), [&order, this] {
            order.append(u"row %1"_s.arg(QFile::exists(audioPath("only"))));
        });
        connect(&controller(), &QAbstractItemModel::rowsAboutToBeRemoved, this, note);
        connect(&controller(), &QAbstractItemModel::rowsRemoved, this, note);

        controller().onDelete(0);

        QCOMPARE(order, QStringList({u"row 1"_s, u"0 0 1"_s, u"0 0 0"_s}));
    }

    void aLectureWithoutAudioTakesAllWithoutAudioFromTheStore()
    {
        store(aLecture().on("2024-03-05").named("Silent").withoutAudio());
        store(aLecture().on("2024-03-05").named("Quiet").withoutAudio());
        showDay();

        controller().onDelete(0);

        // The list shows the other one until it is built anew.
        QCOMPARE(m_program->subjectsShown(), QStringList{u"Silent"_s});
        QVERIFY(storedSubjects().isEmpty());
    }

    void aRowThatIsNotThereIsNotDeleted_data()
    {
        QTest::addColumn<int>("row");
        QTest::newRow("none yet") << -1;
        QTest::newRow("behind the last") << 3;
        QTest::newRow("far away") << 99999;
    }

    void aRowThatIsNotThereIsNotDeleted()
    {
        QFETCH(int, row);
        showThree();

        controller().onDelete(row);

        QCOMPARE(storedSubjects().size(), 3);
        QCOMPARE(m_program->subjectsShown().size(), 3);
    }

    void deletingAtOnceAsksNothingAndSlidesNothing()
    {
        showThree();

        controller().onDeleteItem(viewOf(1)->btnDelete());

        QCOMPARE(storedSubjects(), QStringList({u"First"_s, u"Third"_s}));
        QVERIFY(!QFile::exists(audioPath("second")));
        QCOMPARE(viewOf(1)->objectValue()->strSubject(), u"First"_s);
        QCOMPARE(viewOf(1)->y(), CustomTableCellView::RowHeight);
        QVERIFY(main().btnDeleteItem->isEnabled() && main().btnDeleteItem->isHidden());
    }

    void deletingTheLastAtOnceShowsThePanelAtOnce()
    {
        store(aLecture().on("2024-03-05").named("Only").withAudio(audioPath("only")));
        showDay();

        controller().onDeleteItem(viewOf(0)->btnDelete());

        QVERIFY(m_program->emptyDayPanel().isVisible());
        QVERIFY(!main().btnDeleteItem->isEnabled());
    }

    void deletingAtOnceFromElsewhereDeletesNothing()
    {
        showThree();

        controller().onDeleteItem(nullptr);
        controller().onDeleteItem(main().btnAddItem);

        QCOMPARE(storedSubjects().size(), 3);
    }

    void deletingAtOnceFromDeeperInsideARowDeletesNothing()
    {
        showThree();
        QWidget deeper(viewOf(1)->btnDelete());

        controller().onDeleteItem(&deeper);

        QCOMPARE(storedSubjects().size(), 3);
    }

    void theRowsDeleteButtonAsksUnderItself()
    {
        showThree();

        press(viewOf(1)->btnDelete());

        QVERIFY(controller().isConfirmDeleteShowing());
        QCOMPARE(popOver().edge(), Qt::BottomEdge);
        const ImageButton &sender = *viewOf(1)->btnDelete();
        QCOMPARE(popOver().geometry().top(), sender.mapToGlobal(QPoint(0, sender.height())).y());
        QCOMPARE(m_program->pendingRow, 1);
        QCOMPARE(storedSubjects().size(), 3);
    }

    void theKeyboardIsOnNoFirst()
    {
        showThree();

        press(viewOf(1)->btnDelete());

        QTRY_COMPARE(QApplication::focusWidget(), popovers().btnConfirmNo);
        QTest::keyClick(popovers().btnConfirmNo, Qt::Key_Return);
        QVERIFY(!controller().isConfirmDeleteShowing());
        QCOMPARE(storedSubjects().size(), 3);
    }

    void tabAndReturnConfirm()
    {
        showThree();
        press(viewOf(1)->btnDelete());
        QTRY_COMPARE(QApplication::focusWidget(), popovers().btnConfirmNo);

        QTest::keyClick(popovers().btnConfirmNo, Qt::Key_Tab);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);

        QCOMPARE(storedSubjects(), QStringList({u"First"_s, u"Third"_s}));
        QVERIFY(!controller().isConfirmDeleteShowing());
    }

    void escapeDeletesNothing()
    {
        showThree();
        press(viewOf(1)->btnDelete());

        QTest::keyClick(popovers().btnConfirmNo, Qt::Key_Escape);

        QVERIFY(!controller().isConfirmDeleteShowing());
        QCOMPARE(storedSubjects().size(), 3);
    }

    void noClosesThePopOverAndDeletesNothing()
    {
        showThree();
        press(viewOf(1)->btnDelete());

        popovers().btnConfirmNo->click();

        QVERIFY(!controller().isConfirmDeleteShowing());
        QCOMPARE(storedSubjects().size(), 3);
        QCOMPARE(m_program->subjectsShown().size(), 3);
    }

    void yesDeletesAndGoesBackToTheCalendar()
    {
        showThree();
        controller().onExpandView(nullptr);
        QCOMPARE(m_program->windows.mainWindow().frameWidth(), 1234);
        press(viewOf(1)->btnDelete());

        popovers().btnConfirmYes->click();

        QVERIFY(!controller().isConfirmDeleteShowing());
        QCOMPARE(storedSubjects(), QStringList({u"First"_s, u"Third"_s}));
        QCOMPARE(m_program->windows.mainWindow().frameWidth(), 833);
    }

    void noStaysWhereItIs()
    {
        showThree();
        controller().onExpandView(nullptr);
        press(viewOf(1)->btnDelete());

        popovers().btnConfirmNo->click();

        QCOMPARE(m_program->windows.mainWindow().frameWidth(), 1234);
    }

    void aSenderWithAnotherTagOnlyClosesThePopOver()
    {
        showThree();
        press(viewOf(1)->btnDelete());
        ImageButton other;
        other.setTag(2);

        controller().onConfirmOrCancelRecordDeletion(&other);

        QVERIFY(!controller().isConfirmDeleteShowing());
        QCOMPARE(storedSubjects().size(), 3);
    }

    void beforeTheFirstQuestionThereIsNoRowToConfirm()
    {
        showThree();
        QCOMPARE(m_program->pendingRow, -1);

        popovers().btnConfirmYes->click();

        QCOMPARE(storedSubjects().size(), 3);
    }

    void aSenderOutsideTheRowsIsAskedAboutButLeavesThePendingRow()
    {
        showThree();
        press(viewOf(2)->btnDelete());
        popovers().btnConfirmNo->click();

        controller().onRemoveNotesRecord(nullptr);
        QVERIFY(!controller().isConfirmDeleteShowing());
        controller().onRemoveNotesRecord(main().btnAddItem);

        QVERIFY(controller().isConfirmDeleteShowing());
        QCOMPARE(m_program->pendingRow, 2);
        popovers().btnConfirmYes->click();
        QCOMPARE(storedSubjects(), QStringList({u"Second"_s, u"Third"_s}));
    }

    void thePendingRowOutlivesItsDeletion()
    {
        showThree();
        press(viewOf(1)->btnDelete());
        popovers().btnConfirmYes->click();
        table().finishRemoval();
        QCOMPARE(m_program->pendingRow, 1);

        popovers().btnConfirmYes->click();

        QCOMPARE(storedSubjects(), QStringList{u"Third"_s});
    }

    void aPendingRowThatIsGoneIsNotDeleted()
    {
        showThree();
        press(viewOf(2)->btnDelete());
        controller().prepareViewForDate(theDay("2024-03-09"));
        popovers().btnConfirmYes->click();

        QCOMPARE(storedSubjects().size(), 3);
        QVERIFY(!controller().isConfirmDeleteShowing());
    }

    void theRowsKeepTheirLookWhileThePopOverShowsAndLoseItAfterwards()
    {
        showThree();
        m_program->windows.mainWindow().move(0, 0);
        QTest::mouseMove(viewOf(1), {5, 5});
        QTRY_VERIFY(viewOf(1)->btnInfo()->isVisible());
        press(viewOf(1)->btnDelete());

        QTest::mouseMove(viewOf(2), {5, 60});
        QCoreApplication::processEvents();
        QVERIFY(viewOf(1)->btnInfo()->isVisible());
        QVERIFY(viewOf(2)->btnInfo()->isHidden());

        popovers().btnConfirmNo->click();
        QTRY_VERIFY(viewOf(1)->btnInfo()->isHidden());
    }

    void theMenusDeleteAsksToo()
    {
        showThree();

        viewOf(2)->getMenu()->actions().at(1)->trigger();

        QVERIFY(controller().isConfirmDeleteShowing());
        QCOMPARE(m_program->pendingRow, 2);
    }

    void theDeleteKeyAsksAboutTheSelectedRow()
    {
        showThree();
        table().selectRow(2);

        QTest::keyClick(&table(), Qt::Key_Delete);

        QVERIFY(controller().isConfirmDeleteShowing());
        QCOMPARE(m_program->pendingRow, 2);
        QCOMPARE(storedSubjects().size(), 3);
    }

    void theLeadingEdgeOffersNothing()
    {
        showThree();

        QVERIFY(controller()
                    .tableViewRowActionsForRowEdge(&table(), 0, RowActionEdge::Leading)
                    .isEmpty());
    }

    void theTrailingEdgeOffersOneDestructiveAction()
    {
        showThree();

        const auto actions =
            controller().tableViewRowActionsForRowEdge(&table(), 0, RowActionEdge::Trailing);

        QCOMPARE(actions.size(), 1);
        QCOMPARE(actions.first().style, RowAction::Style::Destructive);
        QCOMPARE(actions.first().title, u"Delete"_s);
    }

    void theActionSelectsItsRowDeletesItAndGoesBackToTheCalendar()
    {
        showThree();
        controller().onExpandView(nullptr);
        table().selectRow(0);
        QSignalSpy selections(&table(), &LectureTable::selectionChanged);

        trailingAction().handler(1);

        // Added to the selection first, and out of it with the row.
        QCOMPARE(selections.first().first().value<QList<int>>(), QList<int>({0, 1}));
        QCOMPARE(m_program->pendingRow, 1);
        QCOMPARE(storedSubjects(), QStringList({u"First"_s, u"Third"_s}));
        QCOMPARE(m_program->windows.mainWindow().frameWidth(), 833);
    }

    void aSwipeAndAClickDelete()
    {
        showThree();
        const QPointF middle = viewOf(1)->geometry().center();
        QWheelEvent wheel(middle, table().viewport()->mapToGlobal(middle), {}, {0, -120},
                          Qt::NoButton, Qt::ShiftModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(table().viewport(), &wheel);
        auto *button = table().viewport()->findChild<RowActionButton *>();
        QTRY_COMPARE(button->width(), button->sizeHint().width());

        QTest::mouseClick(button, Qt::LeftButton);

        QCOMPARE(storedSubjects(), QStringList({u"First"_s, u"Third"_s}));
        QVERIFY(button->isHidden());
        QTRY_COMPARE(viewOf(1)->y(), CustomTableCellView::RowHeight);
        QCOMPARE(viewOf(1)->x(), 0);
    }

    void anActionThatOutlivesTheDeletionDoesNothing()
    {
        showThree();
        DeletionAlone alone(*m_program);
        const RowAction action =
            alone.deletion->tableViewRowActionsForRowEdge(&table(), 0, RowActionEdge::Trailing)
                .first();
        alone.deletion.reset();

        action.handler(0);

        QCOMPARE(table().selectedRow(), -1);
        QCOMPARE(alone.pendingRow, -1);
        QCOMPARE(storedSubjects().size(), 3);
    }

    void anActionThatOutlivesItsTableDoesNothing()
    {
        showThree();
        auto other = std::make_unique<LectureTable>();
        const RowAction action =
            controller()
                .tableViewRowActionsForRowEdge(other.get(), 0, RowActionEdge::Trailing)
                .first();
        other.reset();

        action.handler(0);

        QCOMPARE(m_program->pendingRow, -1);
        QCOMPARE(storedSubjects().size(), 3);
    }

    void aDeletionThatIsGoneWhileARowSlidesOutShowsNothingMore()
    {
        showThree();
        DeletionAlone alone(*m_program);
        main().btnDeleteItem->show();
        alone.deletion->onDelete(0);
        alone.deletion.reset();

        table().finishRemoval();

        QCOMPARE(storedSubjects().size(), 2);
        QVERIFY(!main().btnDeleteItem->isHidden());
    }

    void aRowThatSlidesOutCannotBeDeletedAgain()
    {
        showThree();
        QWidget *button = viewOf(2)->btnDelete();
        controller().onDelete(2);

        controller().onDeleteItem(button);

        QCOMPARE(storedSubjects(), QStringList({u"Second"_s, u"Third"_s}));
    }

    void theLectureThatPlaysCanBeDeleted()
    {
        showThree();
        controller().onPlayLecture(viewOf(1)->btnPlay());
        QVERIFY(m_program->engine.player);

        controller().onDelete(1);
        table().finishRemoval();
        m_program->clock.advance(2s);
        controller().onClosePlayAudioWindow(nullptr);
        m_program->clock.advance(2s);

        QCOMPARE(storedSubjects(), QStringList({u"First"_s, u"Third"_s}));
        QVERIFY(!m_program->engine.player || !m_program->engine.player->isPlaying());
    }

    void theLectureThatIsOpenBesideTheListCanBeDeleted()
    {
        showThree();
        controller().openPlayEditWindow(viewOf(1)->btnPlay());

        press(viewOf(1)->btnDelete());
        popovers().btnConfirmYes->click();
        table().finishRemoval();
        m_program->clock.advance(2s);
        // What is saved now finds no row.
        controller().onDoneLectureEdit(m_program->windows.lectureViewOutlets().btnDoneEditLecture);

        QCOMPARE(storedSubjects(), QStringList({u"First"_s, u"Third"_s}));
        QCOMPARE(m_program->subjectsShown(), QStringList({u"Third"_s, u"First"_s}));
    }

    void theLectureInTheEditWindowCanBeDeleted()
    {
        showThree();
        press(viewOf(1)->btnEdit());

        controller().onDeleteItem(viewOf(1)->btnDelete());
        controller().onDoneEdit(m_program->windows.editLectureOutlets().btnDoneEdit);

        QCOMPARE(storedSubjects(), QStringList({u"First"_s, u"Third"_s}));
    }

    void theSelectedLecturesAreThoseThatAreLeft()
    {
        showThree();
        table().selectRow(1);
        QCOMPARE(controller().selectedDownloads().front()->strSubject(), u"Second"_s);

        controller().onDelete(1);

        QCOMPARE(controller().selectedIndexes(), QList<int>{1});
        QCOMPARE(controller().selectedDownloads().front()->strSubject(), u"First"_s);
    }

private:
    void prepare() override
    {
        QCursor::setPos(790, 790);
        ProgramCase::prepare();
        m_host = std::make_unique<Host>(m_program->controller);
    }
    void finish() override
    {
        m_host.reset();
        ProgramCase::finish();
    }

    const MainWindowOutlets &main() const { return m_program->windows.mainOutlets(); }
    const PopoverOutlets &popovers() const { return m_program->windows.popoverOutlets(); }
    PopOver &popOver() const { return *popovers().popoverConfirmRecordDelete; }
    CustomTableCellView *viewOf(int row) const
    {
        return table().viewAtColumnRowMakeIfNecessary(0, row, false);
    }
    RowAction trailingAction()
    {
        return controller()
            .tableViewRowActionsForRowEdge(&table(), 0, RowActionEdge::Trailing)
            .first();
    }
    static void press(ImageButton *button) { button->click(); }

    QString audioPath(const char *name) const
    {
        return u"%1/Audio/%2.m4a"_s.arg(m_program->places.folder(), QString::fromLatin1(name));
    }
    // With a file for its audio.
    void store(const tarvelo::tests::LectureBuilder &lecture)
    {
        QDir().mkpath(m_program->places.folder() + u"/Audio"_s);
        lecture.insertInto(m_program->database);
        QFile file(lecture.arguments().at(6).toString());
        if (!file.fileName().isEmpty() && file.open(QIODevice::WriteOnly))
            file.write("sound");
    }
    void showDay()
    {
        m_program->showDay(m_program->today());
        QVERIFY(QTest::qWaitForWindowActive(&m_program->windows.mainWindow()));
    }
    // Today, from the top: third, second, first.
    void showThree()
    {
        for (const char *name : {"first", "second", "third"})
            store(aLecture().on("2024-03-05").named(name).withAudio(audioPath(name)));
        showDay();
    }
    QStringList storedSubjects()
    {
        QStringList subjects;
        for (const QVariantMap &row : m_program->storedRows()) {
            const QString subject = row.value(u"subject"_s).toString();
            subjects.append(subject.left(1).toUpper() + subject.mid(1));
        }
        return subjects;
    }
    // As those hear of them who do not see the marks.
    int daysWithLectures() const
    {
        int days = 0;
        for (const auto *cell : main().calendarView->findChildren<ImageButton *>())
            days += cell->isVisible() && !cell->accessibleDescription().isEmpty() ? 1 : 0;
        return days;
    }

    std::unique_ptr<Host> m_host;
};

QTEST_MAIN(LectureDeletionTest)
#include "LectureDeletionTest.moc"
