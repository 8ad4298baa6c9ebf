#include "app/Application.h"
#include "app/TaskbarEntry.h"
#include "app/WindowHints.h"
#include "calendar/DateButton.h"
#include "lectures/CustomTableCellView.h"
#include "lectures/LectureTable.h"
#include "platform/Texts.h"
#include "platform/WindowLevel.h"
#include "support/LectureBuilder.h"
#include "support/TestCase.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QDialog>
#include <QPushButton>
#include <QSignalSpy>

using namespace tarvelo;
using namespace std::chrono_literals;
using tests::Application;
using tests::noonOf;

namespace {

// Something else that the user has in front.
class OtherWindow final : public QWidget
{
public:
    bool comesToTheFront()
    {
        show();
        activateWindow();
        return QTest::qWaitForWindowActive(this);
    }
};

} // namespace

class AppDelegateTest final : public tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { platform::installTexts(); }

    void aDayThatIsNoneIsToday()
    {
        Application program;
        program.launch();

        program.delegate.calendarDidSelectDate(nullptr, QDateTime());

        QCOMPARE(program.delegate.getSelectedDate(), program.clock.now());
        QCOMPARE(program.controller.dateOfButtonClicked(), program.clock.now());
        QVERIFY(!program.header().isEmpty());
    }

    // -- Set-up

    void theSetUpShowsTheListWidthAndTodaysHeader()
    {
        Application program;
        program.window().setFrameWidth(452, false);
        program.window().show();

        program.delegate.awakeFromNib();

        QVERIFY(!program.window().isSliding());
        QCOMPARE(program.window().frameWidth(), 833);
        QCOMPARE(program.window().width(), 833);
        QCOMPARE(program.header(), QStringLiteral("5th March 2024"));
        QVERIFY(app::hasFullSizeContent(program.window()));
        QCOMPARE(program.windows.mainOutlets().calendarView->delegate(), &program.delegate);
    }

    void theSetUpFillsTheLabels()
    {
        Application program;

        program.delegate.awakeFromNib();

        const app::DayPopover &popover = program.delegate.dayPopover();
        QCOMPARE(program.windows.mainOutlets().lblTarvelo->text(), QStringLiteral("Tarvelo"));
        QCOMPARE(popover.btnViewFromPopover()->text(), QStringLiteral("View"));
        QCOMPARE(popover.btnRecordFromPopover()->text(), QStringLiteral("Record"));
        QVERIFY(popover.lblDateDisplayOnPopover());
        QCOMPARE(program.delegate.preferences()
                     .preferrenceWindow()
                     ->findChild<QLabel *>(QStringLiteral("lblOpenAtLogin"))
                     ->text(),
                 QStringLiteral("Open at login"));
    }

    void aSecondSetUpChangesNothing()
    {
        Application program;
        program.delegate.awakeFromNib();
        program.window().setFrameWidth(452, false);
        program.windows.mainOutlets().lblTarvelo->setText(QStringLiteral("kept"));
        program.clock.set(program.clock.now().addDays(1));

        program.delegate.awakeFromNib();

        QCOMPARE(program.window().frameWidth(), 452);
        QCOMPARE(program.windows.mainOutlets().lblTarvelo->text(), QStringLiteral("kept"));
        QCOMPARE(program.header(), QStringLiteral("5th March 2024"));
    }

    void aStoredZeroOfWindowOnTopRaisesTheWindowOnlyAtTheStart()
    {
        Application program;
        program.store("windowOnTop", 0);

        program.launch();
        QCOMPARE(platform::windowLevel(program.window()), 1);

        program.delegate.setWindowOnTop(nullptr);
        QCOMPARE(platform::windowLevel(program.window()), 0);
    }

    // -- Launch and activation

    void theWindowShowsFourTenthsOfASecondAfterTheLaunch()
    {
        Application program;
        program.launch();

        program.clock.advance(399ms);
        QVERIFY(!program.window().isVisible());

        program.clock.advance(1ms);
        QVERIFY(program.window().isVisible());
    }

    // A window that comes is in front on most screens; one that was there already tells.
    void theLaunchBringsTheWindowToTheFront()
    {
        Application program;
        program.launch();
        program.window().show();
        OtherWindow other;
        QVERIFY(other.comesToTheFront());

        program.clock.advance(400ms);

        QTRY_VERIFY(program.window().isActiveWindow());
    }

    void aWindowThatIsNotWantedComesOnlyAtALaterActivation()
    {
        Application program;
        program.store("showWindowAtLogin", 0);
        program.launch();
        program.clock.advance(10s);
        QVERIFY(!program.window().isVisible());

        program.delegate.applicationWillBecomeActive(nullptr);
        QVERIFY(!program.window().isVisible());

        program.delegate.applicationWillBecomeActive(nullptr);
        QVERIFY(program.window().isVisible());
    }

    void onlyAOneShowsTheWindowAtTheLaunch()
    {
        Application program;
        program.store("showWindowAtLogin", 2);

        program.launch();
        program.clock.advance(10s);

        QVERIFY(!program.window().isVisible());
    }

    void aMinimisedWindowComesBackAtAnActivation()
    {
        Application program;
        program.flags.firstActivationSeen = true;
        program.window().showMinimized();
        OtherWindow other;
        QVERIFY(other.comesToTheFront());

        program.delegate.applicationWillBecomeActive(nullptr);

        QVERIFY(!program.window().isMinimized());
        QTRY_VERIFY(program.window().isActiveWindow());
    }

    void openingAgainBringsAHiddenWindowToTheFront()
    {
        Application program;
        OtherWindow other;
        QVERIFY(other.comesToTheFront());

        QVERIFY(!program.delegate.applicationShouldHandleReopenHasVisibleWindows(nullptr, false));

        QVERIFY(program.window().isVisible());
        QTRY_VERIFY(program.window().isActiveWindow());
    }

    void openingAgainLeavesAWindowThatShowsAlone()
    {
        Application program;
        program.window().show();
        OtherWindow other;
        QVERIFY(other.comesToTheFront());

        QVERIFY(!program.delegate.applicationShouldHandleReopenHasVisibleWindows(nullptr, true));
        QCoreApplication::processEvents();
        QVERIFY(program.window().isVisible());
        QVERIFY(other.isActiveWindow());

        // Whoever asks for it gets it.
        program.delegate.onOpenWindow(nullptr);
        QTRY_VERIFY(program.window().isActiveWindow());
    }

    void aSecondStartReopensTheFirst()
    {
        Application program;

        program.delegate.perform(app::Request::Reopen);

        QVERIFY(program.window().isVisible());
    }

    void aRequestForANewLectureOpensOne()
    {
        Application program;
        program.launch();
        program.clock.advance(1s);

        program.delegate.perform(app::Request::NewLecture);

        QVERIFY(program.window().isVisible());
        QVERIFY(program.controller.bIsOnRecordingView());
    }

    void aRequestForThePreferencesShowsThem()
    {
        Application program;
        program.launch();
        program.clock.advance(1s);

        program.delegate.perform(app::Request::ShowPreferences);

        QVERIFY(platform::hasAttachedSheet(program.window()));
    }

    void closingTheWindowOnlyHidesIt()
    {
        Application program;
        QSignalSpy ends(&program.delegate, &app::AppDelegate::terminationAllowed);
        program.launch();
        program.clock.advance(1s);

        program.window().close();
        QVERIFY(!program.window().isVisible());
        QCOMPARE(ends.size(), 0);

        program.delegate.onOpenWindow(nullptr);
        QVERIFY(program.window().isVisible());
    }

    // -- Quitting

    void quittingEndsTheProgramAtOnce()
    {
        Application program;
        QSignalSpy ends(&program.delegate, &app::AppDelegate::terminationAllowed);

        program.delegate.terminate(nullptr);

        QCOMPARE(ends.size(), 1);
        QVERIFY(program.alerts.sheets.isEmpty());
    }

    void quittingWhileRecordingShowsASheetAndGoesOn()
    {
        Application program;
        QSignalSpy ends(&program.delegate, &app::AppDelegate::terminationAllowed);
        program.startRecording();

        program.delegate.terminate(nullptr);

        QCOMPARE(ends.size(), 0);
        QCOMPARE(program.alerts.sheets.size(), 1);
        const tests::FakeAlerts::Sheet &sheet = program.alerts.sheets.first();
        QCOMPARE(sheet.message, QStringLiteral("Recording is on process!"));
        QCOMPARE(sheet.button, QStringLiteral("Ok"));
        QCOMPARE(sheet.informativeText,
                 QStringLiteral("Please click Done to save or Cancel to exit."));
        QCOMPARE(sheet.window, &program.window());
        QVERIFY(sheet.didEnd);
    }

    void alsoUnderAnotherSheetItIsSaidWhyItDoesNotQuit()
    {
        Application program;
        program.launch();
        program.startRecording();
        program.delegate.openSettingPanel(nullptr);

        QCOMPARE(program.delegate.applicationShouldTerminate(nullptr), app::TerminateReply::Cancel);

        QCOMPARE(program.alerts.sheets.size(), 1);
    }

    void quittingIsNotTriedAgainWhenTheSheetEnds()
    {
        Application program;
        QSignalSpy ends(&program.delegate, &app::AppDelegate::terminationAllowed);
        program.startRecording();
        program.delegate.terminate(nullptr);

        program.windows.newLectureOutlets().newNoteWindow->hide();
        program.alerts.sheets.first().didEnd(1);

        QCOMPARE(ends.size(), 0);
        QCOMPARE(program.delegate.applicationShouldTerminate(nullptr), app::TerminateReply::Now);
    }

    void theSheetGoesWhenItsButtonWasPressed()
    {
        Application program;
        QWidget alertWindow;
        alertWindow.show();

        program.delegate.alerDeletedDidEndReturnCodeContextInfo(&alertWindow, 0, nullptr);
        QVERIFY(alertWindow.isVisible());

        program.delegate.alerDeletedDidEndReturnCodeContextInfo(&alertWindow, 1, nullptr);
        QVERIFY(!alertWindow.isVisible());
    }

    // -- The day

    void choosingADayShowsItsHeaderAndItsListAndUnfoldsTheWindow()
    {
        Application program;
        program.launch();
        program.window().setFrameWidth(452, false);
        program.window().show();
        const QDateTime day = noonOf(2024, 3, 22);

        program.delegate.calendarDidSelectDate(nullptr, day);

        QCOMPARE(program.delegate.getSelectedDate(), day);
        QCOMPARE(program.delegate.getCurrentDate(), day);
        QCOMPARE(program.header(), QStringLiteral("22nd March 2024"));
        QCOMPARE(program.controller.dateOfButtonClicked(), day);
        QCOMPARE(program.window().frameWidth(), 833);
        QVERIFY(program.window().isSliding());
        QTRY_COMPARE(program.window().width(), 833);
    }

    void theFirstDayIsChosenByTheCalendarAndOpensTheDatabase()
    {
        Application program;

        program.launch();
        program.clock.advance(499ms);
        QVERIFY(!program.delegate.getSelectedDate().isValid());
        QVERIFY(!QFile::exists(program.home.databaseFile()));

        program.clock.advance(1ms);
        QCOMPARE(program.delegate.getSelectedDate().date(), QDate(2024, 3, 5));
        QVERIFY(QFile::exists(program.home.databaseFile()));
    }

    void aFinishedLectureWritesTheHeaderOfTheDayAnew()
    {
        Application program;
        program.delegate.calendarDidSelectDate(nullptr, noonOf(2024, 3, 22));
        program.windows.mainOutlets().lblDateDisplay->setText(QStringLiteral("All List"));

        program.delegate.setRecordingStateForButton(false);

        QVERIFY(program.windows.mainOutlets().lblDateDisplay->text().contains(
            QStringLiteral("March 2024")));
    }

    void theImageOfADayCellNeverChangesWithRecording_data()
    {
        QTest::addColumn<QDateTime>("day");
        QTest::newRow("the same moment") << Application().clock.now();
        QTest::newRow("another moment of the day") << Application().clock.now().addSecs(60);
        QTest::newRow("another day") << noonOf(2024, 3, 22);
    }

    void theImageOfADayCellNeverChangesWithRecording()
    {
        QFETCH(QDateTime, day);
        Application program;
        widgets::ImageButton cell;
        program.delegate.setBtnDateButtonClickedNow(&cell);
        program.delegate.calendarDidSelectDate(nullptr, day);

        program.delegate.setRecordingStateForButton(true);
        program.delegate.setRecordingStateForButton(false);

        QVERIFY(cell.image().isNull());
        QVERIFY(!program.delegate.btnDateButtonForRecording());
    }

    // -- Questions

    void onlyAWindowOfTheListsWidthShowsTheList()
    {
        Application program;

        program.window().setFrameWidth(833, false);
        QVERIFY(program.delegate.isTarveloViewShowing());

        program.window().setFrameWidth(832, false);
        QVERIFY(!program.delegate.isTarveloViewShowing());
    }

    void theControllerAnswersWhetherARecordingRuns()
    {
        Application program;
        QVERIFY(!program.delegate.isRecordingNow());

        program.startRecording();

        QVERIFY(program.delegate.isRecordingNow());
    }

    void theControllerAnswersWhetherAConfirmationShows()
    {
        Application program;
        QVERIFY(!program.delegate.isConfirmDeleteShowing());

        program.windows.popoverOutlets().btnConfirmYes->window()->show();

        QVERIFY(program.delegate.isConfirmDeleteShowing());
    }

    void theControllerAnswersWhatTheMusicLibraryTakes()
    {
        Application program;
        program.launch();
        tests::aLecture()
            .withAudio(QStringLiteral("/music//Audio - 1.m4a"))
            .insertInto(program.database);
        program.controller.prepareViewForDate(program.clock.now());
        auto &table = *program.windows.mainOutlets().tblRecordSubjectList;

        QVERIFY(
            program.delegate.isSupportedIniTunes(table.viewAtColumnRowMakeIfNecessary(0, 0, true)));
        QVERIFY(!program.delegate.isSupportedIniTunes(nullptr));
    }

    void theDatabaseIsTheOneThatAllShare()
    {
        Application program;

        QVERIFY(program.delegate.getTheDB());
        QCOMPARE(program.delegate.getTheDB(), program.database.connection());
    }

    void aTableThatAsksTheDelegateGetsTenEmptyRows()
    {
        Application program;

        QCOMPARE(program.delegate.numberOfRowsInTableView(), 10);
        for (int row = 0; row < 10; ++row)
            QCOMPARE(program.delegate.tableViewObjectValueForTableColumnRow(0, row), QString());
        program.delegate.tableViewWillDisplayCellForTableColumnRow(nullptr, 0, 0);
    }

    // -- Widths

    void foldingLeavesTheCalendarAlone()
    {
        Application program;
        program.delegate.awakeFromNib();
        const int height = program.window().height();

        program.delegate.foldupList();

        QCOMPARE(program.window().frameWidth(), 452);
        QCOMPARE(program.window().height(), height);
    }

    void aDelayedFoldComesAfterHalfAMinute()
    {
        Application program;
        program.delegate.awakeFromNib();
        program.delegate.delayFoldupList();

        program.clock.advance(29999ms);
        QCOMPARE(program.window().frameWidth(), 833);

        program.clock.advance(1ms);
        QCOMPARE(program.window().frameWidth(), 452);
    }

    void cancellingTakesBackEveryDelayedFold()
    {
        Application program;
        program.delegate.awakeFromNib();
        program.delegate.delayFoldupList();
        program.clock.advance(10s);
        program.delegate.delayFoldupList();

        program.delegate.cancelPreviousFoldingAction();
        program.clock.advance(5min);

        QCOMPARE(program.window().frameWidth(), 833);
    }

    void foldingByItsButtonSelectsNoDay()
    {
        Application program;
        program.launch();
        program.clock.advance(1s);
        QVERIFY(selectedCells(program) > 0);

        program.windows.mainOutlets().btnFoldUpList->click();

        QCOMPARE(program.window().frameWidth(), 452);
        QCOMPARE(selectedCells(program), 0);
    }

    void slidingTakesFourHundredPointsOff()
    {
        Application program;
        program.delegate.awakeFromNib();
        program.window().show();

        program.delegate.onSlideWindow(nullptr);

        QCOMPARE(program.window().frameWidth(), 433);
        QVERIFY(program.window().isSliding());
        QTRY_COMPARE(program.window().width(), 433);
    }

    void theWindowSlidesToItsWidthAndKeepsItsPlace()
    {
        Application program;
        program.delegate.awakeFromNib();
        program.window().move(40, 30);
        program.window().show();

        program.delegate.foldupList();

        QVERIFY(program.window().isSliding());
        QTRY_COMPARE(program.window().width(), 452);
        QCOMPARE(program.window().pos(), QPoint(40, 30));
    }

    // -- Windows and the status item

    void bringingTheWindowToTheFrontShowsIt()
    {
        Application program;

        program.delegate.openAtFront(nullptr);
        QVERIFY(program.window().isVisible());

        OtherWindow other;
        QVERIFY(other.comesToTheFront());
        program.delegate.openAtFront(nullptr);
        QTRY_VERIFY(program.window().isActiveWindow());
    }

    void theStatusBarCheckboxMakesAndRemovesTheItem()
    {
        Application program;
        program.launch();
        auto *box = program.delegate.preferences().preferrenceWindow()->findChild<QCheckBox *>(
            QStringLiteral("BtnStatusBar"));

        box->click();
        QVERIFY(program.delegate.myStatusItem().exists());
        QCOMPARE(program.delegate.myStatusItem().item()->contextMenu(),
                 &program.delegate.menus().statusMenu());
        QVERIFY(program.settings().contains("StatusBar=1"));

        box->click();
        QVERIFY(!program.delegate.myStatusItem().exists());
        QVERIFY(program.settings().contains("StatusBar=0"));
    }

    void aStoredStatusBarIsThereAtTheLaunch()
    {
        Application program;
        program.store("StatusBar", 1);

        program.launch();

        QVERIFY(program.delegate.myStatusItem().exists());
    }

    void nobodyWhoNeverAskedHasAStatusItem()
    {
        Application program;

        program.launch();

        QVERIFY(!program.delegate.myStatusItem().exists());
        QVERIFY(!program.settings().contains("StatusBar"));
    }

    void aStoredDockIconDecidesAboutTheTaskbarAtTheLaunch_data()
    {
        QTest::addColumn<QVariant>("stored");
        QTest::addColumn<bool>("wanted");
        QTest::newRow("never chosen") << QVariant() << true;
        QTest::newRow("on") << QVariant(true) << true;
        QTest::newRow("off") << QVariant(false) << false;
    }

    void aStoredDockIconDecidesAboutTheTaskbarAtTheLaunch()
    {
        QFETCH(QVariant, stored);
        QFETCH(bool, wanted);
        Application program;
        if (stored.isValid())
            program.store("DockIcon", stored);

        program.launch();
        program.clock.advance(1s);

        QCOMPARE(program.delegate.dockIcon().entries().size(), std::size_t(4));
        for (const app::TaskbarEntry *entry : program.delegate.dockIcon().entries())
            QCOMPARE(entry->isWanted(), wanted);
    }

    void theCloseMenuIsKept()
    {
        Application program;
        QObject menu;

        program.delegate.setClosemenu(&menu);

        QCOMPARE(program.delegate.closemenu(), &menu);
    }

    // -- Preferences

    void theNextRecordingHasTheFormatThatWasChosen()
    {
        Application program;
        program.launch();
        auto *matrix =
            program.delegate.preferences().preferrenceWindow()->findChild<QButtonGroup *>(
                QStringLiteral("matrixFileFormat"));

        matrix->button(0)->click();
        QVERIFY(program.controller.tempAudioSavePath().endsWith(QStringLiteral(".aac")));

        matrix->button(1)->click();
        QVERIFY(program.controller.tempAudioSavePath().endsWith(QStringLiteral(".m4a")));
    }

    void thePreferencesAreASheetOfTheMainWindow()
    {
        Application program;
        program.launch();
        program.clock.advance(1s);

        program.delegate.onShowPreferences(nullptr);
        QVERIFY(platform::hasAttachedSheet(program.window()));
        QVERIFY(!app::isMinimiseButtonEnabled(program.window()));

        program.delegate.onClosePreferences(nullptr);
        QVERIFY(!platform::hasAttachedSheet(program.window()));
        QVERIFY(app::isMinimiseButtonEnabled(program.window()));
    }

    void thePreferencesFromTheStatusMenuLeaveTheMinimiseButtonAlone()
    {
        Application program;
        program.launch();

        program.delegate.openSettingPanel(nullptr);
        QVERIFY(platform::hasAttachedSheet(program.window()));
        QVERIFY(app::isMinimiseButtonEnabled(program.window()));

        program.delegate.onCloseSettingPanel(nullptr);
        QVERIFY(!platform::hasAttachedSheet(program.window()));
    }

    void thePreferencesAreReachedThroughTheDelegate()
    {
        Application program;
        program.launch();
        QDialog *sheet = program.delegate.preferences().preferrenceWindow();
        QCheckBox off;
        QButtonGroup formats;
        QCheckBox first;
        formats.addButton(&first, 0);
        first.setChecked(true);
        QCheckBox other;
        formats.addButton(&other, 1);

        program.delegate.setStatusForHideMainWindowOnStart(&off);
        program.delegate.setLogoAtMenubarOrDockPanel(&off);
        program.delegate.onChangeFormatChoice(&formats);
        sheet->open();
        program.delegate.sheetDidEndReturnCodeContextInfo(sheet, 0, nullptr);

        QVERIFY(program.settings().contains("showWindowAtLogin=0"));
        QVERIFY(program.settings().contains("DockIcon=false"));
        QVERIFY(program.controller.tempAudioSavePath().endsWith(QStringLiteral(".aac")));
        QVERIFY(!sheet->isVisible());
    }

private:
    static qsizetype selectedCells(const Application &program)
    {
        const auto &cells = program.windows.mainOutlets().calendarView->dateButtons();
        return std::count_if(cells.cbegin(), cells.cend(),
                             [](const auto *cell) { return cell->isSelected(); });
    }
};

QTEST_MAIN(AppDelegateTest)
#include "AppDelegateTest.moc"
