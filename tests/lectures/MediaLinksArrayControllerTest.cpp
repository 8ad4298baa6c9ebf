#include "lectures/MediaLinksArrayController.h"

#include "lectures/CustomTableCellView.h"
#include "lectures/ProgramCase.h"
#include "platform/FolderLock.h"
#include "platform/PrivateFiles.h"
#include "platform/WindowLevel.h"
#include "store/LectureInfoItem.h"
#include "widgets/LayerView.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using tarvelo::tests::aLecture;
using tarvelo::tests::theDay;

class MediaLinksArrayControllerTest final : public tarvelo::tests::ProgramCase
{
    Q_OBJECT

private Q_SLOTS:
    // -- Start-up

    void startingOpensNoDatabaseAndShowsNoList()
    {
        m_program->start();

        QVERIFY(!m_program->database.connection());
        QVERIFY(!QFileInfo::exists(m_program->places.databaseFile()));
        QCOMPARE(controller().numberOfRowsInTableView(), 0);
        QVERIFY(!controller().dateOfButtonClicked().isValid());
    }

    void startingAgainDoesNothing()
    {
        m_program->start();
        const int calls = m_program->clock.pendingCount();
        QVERIFY(QDir(m_program->places.folder()).removeRecursively());
        m_program->windows.newLectureOutlets().lblNotesForAdd->setText(u"changed"_s);

        controller().awakeFromNib();

        QCOMPARE(m_program->clock.pendingCount(), calls);
        QVERIFY(!QFileInfo::exists(m_program->places.folder()));
        QCOMPARE(m_program->windows.newLectureOutlets().lblNotesForAdd->text(), u"changed"_s);
    }

    void aSecondControllerOfTheProcessIsNotStarted()
    {
        m_program->isAwake = true;

        controller().awakeFromNib();

        QVERIFY(!QFileInfo::exists(m_program->places.folder()));
        QCOMPARE(controller().version(), 0);
    }

    void startingMakesTheFolders()
    {
        controller().awakeFromNib();

        QVERIFY(QFileInfo(m_program->places.folder() + u"/temp"_s).isDir());
        QVERIFY(QFileInfo(m_program->places.folder() + u"/Audio"_s).isDir());
    }

    void startingGivesBackTheRoomThatADeadProcessHeld()
    {
        const QString held = m_program->places.folder() + u"/temp/.tempAudioFile.reserve"_s;
        tarvelo::platform::createFolderIfMissing(QFileInfo(held).path());
        tarvelo::platform::createFileIfMissing(held);

        controller().awakeFromNib();

        QVERIFY(!QFileInfo::exists(held));
    }

    void theRoomThatALivingProcessHoldsIsLeftToIt()
    {
        const QString held = m_program->places.folder() + u"/temp/.tempAudioFile.reserve"_s;
        tarvelo::platform::createFolderIfMissing(QFileInfo(held).path());
        tarvelo::platform::createFileIfMissing(held);
        tarvelo::platform::FolderLock other;
        QVERIFY(other.own(QFileInfo(held).path()));

        controller().awakeFromNib();

        QVERIFY(QFileInfo::exists(held));
    }

    void thePathOfTheTakeIsKnownHalfASecondLater()
    {
        controller().awakeFromNib();
        m_program->clock.advance(499ms);
        QCOMPARE(controller().tempAudioSavePath(), QString());

        m_program->clock.advance(1ms);

        QCOMPARE(controller().tempAudioSavePath(),
                 m_program->places.folder() + u"/temp/tempAudioFile.aac"_s);
    }

    void startingSetsTheArrangementAndTheVersion()
    {
        controller().viewEditView(nullptr);
        QVERIFY(controller().bIsInEditView() && controller().bIsInSingleEditView());
        QCOMPARE(controller().version(), 0);

        controller().awakeFromNib();

        QVERIFY(!controller().bIsInEditView());
        QVERIFY(!controller().bIsInSingleEditView());
        QCOMPARE(controller().version(), 0x1080);
    }

    void startingForgetsEarlierPauses()
    {
        m_program->start();
        controller().onAddItem(nullptr);
        controller().startRecording(nullptr);
        auto *pause = m_program->windows.recordingOutlets().btnPauseResumeRecording;
        pause->click();
        m_program->clock.advance(10s);
        pause->click();
        QCOMPARE(controller().recordingControl().durationPause(), 10);
        m_program->isAwake = false;

        controller().awakeFromNib();

        QCOMPARE(controller().recordingControl().durationPause(), 0);
    }

    void startingPutsTheMainWindowAmongTheOthers()
    {
        tarvelo::platform::setWindowLevel(m_program->windows.mainWindow(), 1);

        controller().awakeFromNib();

        QCOMPARE(tarvelo::platform::windowLevel(m_program->windows.mainWindow()), 0);
    }

    void startingGuardsTheSecondaryWindowsFromThenOn()
    {
        QWidget &edit = *m_program->windows.editLectureOutlets().windowEditLecture;
        edit.show();
        QTest::keyClicks(m_program->windows.editLectureOutlets().txtSubjectForEdit, u"Optics"_s);

        controller().awakeFromNib();

        QVERIFY(!edit.close());
        QVERIFY(edit.isVisible());
    }

    void selectedRowsAreNotHighlighted()
    {
        aLecture().insertInto(m_program->database);
        m_program->showDay(m_program->today());
        table().clearFocus();
        const QImage plain = table().grab().toImage();

        table().selectRow(0);

        QCOMPARE(table().selectedRow(), 0);
        QCOMPARE(table().grab().toImage(), plain);
    }

    void theClockLabelsShowTimeAndDateOfTheStart()
    {
        controller().awakeFromNib();

        const auto clock = m_program->windows.clockOutlets();
        for (const QLabel *label : {clock.textTime, clock.textEditTime, clock.tEditTime})
            QVERIFY(label->text().startsWith(u"9:00"_s));
        for (const QLabel *label : {clock.textDate, clock.textEditDate, clock.tEditDate})
            QCOMPARE(label->text(), u"Mar 5, 2024"_s);
    }

    void theClockGoesOnEverySecond()
    {
        controller().awakeFromNib();
        m_program->clock.advance(60s);

        QVERIFY(m_program->windows.clockOutlets().textTime->text().startsWith(u"9:01"_s));
    }

    void theConfirmationsButtonsHaveTheirTags()
    {
        m_program->windows.popoverOutlets().btnConfirmNo->setTag(9);

        controller().awakeFromNib();

        QCOMPARE(m_program->windows.popoverOutlets().btnConfirmNo->tag(), 0);
        QCOMPARE(m_program->windows.popoverOutlets().btnConfirmYes->tag(), 1);
    }

    // -- Lists

    void theTableShowsTheLecturesOfTheDay()
    {
        aLecture().named("optics").insertInto(m_program->database);
        aLecture().named("acoustics").insertInto(m_program->database);

        m_program->showDay(m_program->today());

        QCOMPARE(table().rowCount(), 2);
        QCOMPARE(controller().numberOfRowsInTableView(), 2);
        QCOMPARE(controller().tableViewObjectValueForTableColumnRow(0, 0)->strSubject(),
                 u"Acoustics"_s);
        QCOMPARE(controller().tableViewObjectValueForTableColumnRow(7, 1)->strSubject(),
                 u"Optics"_s);
        QVERIFY(!controller().tableViewObjectValueForTableColumnRow(0, 2));
        QVERIFY(!controller().tableViewObjectValueForTableColumnRow(0, -1));
        QCOMPARE(controller().index(0, 0).data().toString(), u"Acoustics"_s);
    }

    void aDayKnowsWhetherItIsOpen()
    {
        m_program->showDay(m_program->today());
        QVERIFY(controller().isDayOpen());

        controller().prepareViewForDate(theDay("2024-03-04"));
        QVERIFY(!controller().isDayOpen());
        QCOMPARE(controller().dateOfButtonClicked(), theDay("2024-03-04"));
    }

    void allListShowsTheMonthThatTheApplicationIsAt()
    {
        aLecture().named("march").on("2019-03-31").insertInto(m_program->database);
        aLecture().named("may").on("2024-05-01").insertInto(m_program->database);
        m_program->showDay(m_program->today());
        m_program->application.currentDate = theDay("2031-05-20");

        m_program->windows.mainOutlets().btnShowAllList->click();

        QCOMPARE(m_program->subjectsShown(), QStringList({u"May"_s}));
    }

    void tenThousandLecturesOpenWithAHandfulOfRows()
    {
        aLecture().insertInto(m_program->database);
        QVERIFY(m_program->database.connection()->executeNonQuery(
            u"WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 9999) "
            "INSERT INTO audioData (subject, recordingDate, audioFileFullPath, recordDuration) "
            "SELECT 'Lecture ' || i, '2024-03-05', '', 'No Audio' FROM n"_s));

        m_program->showDay(m_program->today());

        QCOMPARE(table().rowCount(), 10000);
        QVERIFY(table().viewCount() < 12);
    }

    void selectingARowSelectsItsLecture()
    {
        aLecture().named("optics").insertInto(m_program->database);
        m_program->showDay(m_program->today());
        QVERIFY(controller().selectedIndexes().isEmpty());

        table().selectRow(0);

        QCOMPARE(controller().selectedIndexes(), QList<int>({0}));
        QCOMPARE(controller().selectedDownloads().size(), 1U);
        QCOMPARE(controller().selectedDownloads()[0], controller().arrangedObjects()[0]);
    }

    void theSameRowsOfAnotherDayAreOtherLectures()
    {
        aLecture().named("optics").insertInto(m_program->database);
        aLecture().named("acoustics").on("2024-03-06").insertInto(m_program->database);
        m_program->showDay(m_program->today());
        controller().setSelectedIndexes({0});
        controller().prepareViewForDate(theDay("2024-03-06"));
        QCOMPARE(controller().selectedDownloads().at(0)->strSubject(), u"Optics"_s);

        controller().setSelectedIndexes({0});

        QCOMPARE(controller().selectedDownloads().at(0)->strSubject(), u"Acoustics"_s);
    }

    void theVerySameIndexesChangeNothing()
    {
        aLecture().named("optics").insertInto(m_program->database);
        m_program->showDay(m_program->today());
        controller().setSelectedIndexes({0});
        controller().setSelectedDownloads({});

        controller().setSelectedIndexes(controller().selectedIndexes());

        QVERIFY(controller().selectedDownloads().empty());
        QCOMPARE(controller().selectedIndexes(), QList<int>({0}));
    }

    void rowsThatAreNotThereSelectNothing()
    {
        m_program->showDay(m_program->today());

        controller().setSelectedIndexes({0, 5});

        QVERIFY(controller().selectedDownloads().empty());
    }

    // -- View changes

    void theViewChangesEndAtTheirWidths()
    {
        m_program->showDay(m_program->today());

        controller().onExpandView(nullptr);
        QCOMPARE(m_program->windows.mainWindow().frameWidth(), 1234);
        controller().viewEditView(nullptr);
        QCOMPARE(m_program->windows.mainWindow().frameWidth(), 400);
        controller().goToCalendarView(nullptr);
        QCOMPARE(m_program->windows.mainWindow().frameWidth(), 833);
        QTRY_COMPARE(m_program->windows.mainWindow().width(), 833);
    }

    void theAnimationHasALayerExactlyWhileRecording()
    {
        const auto &view = *m_program->windows.newLectureOutlets().recordAnimationView;
        m_program->start();
        controller().animateRecordView();
        QVERIFY(!view.wantsLayer());

        controller().startRecording(nullptr);
        controller().animateRecordView();
        QVERIFY(view.wantsLayer());

        controller().stopRecording(nullptr);
        controller().animateRecordView();
        QVERIFY(!view.wantsLayer());
    }

    // -- Audio files

    void theRecordingFolderIsShownInTheFileManager()
    {
        controller().browseRecordingFolder(nullptr);

        const QString folder = m_program->places.folder() + u"/Audio/"_s;
        QCOMPARE(m_program->workspace.shown, QList<QList<QUrl>>({{QUrl::fromLocalFile(folder)}}));
        QVERIFY(QFileInfo(folder).isDir());
    }

    void aRowShowsItsFileInTheFileManager()
    {
        aLecture().named("lower").withAudio(u"/music//a.aac"_s).insertInto(m_program->database);
        aLecture().named("upper").withAudio(u"/music//b.aac"_s).insertInto(m_program->database);
        m_program->showDay(m_program->today());

        table().viewAtColumnRowMakeIfNecessary(0, 1, false)->btnBrowse()->click();

        QCOMPARE(m_program->workspace.shown,
                 QList<QList<QUrl>>({{QUrl::fromLocalFile(u"/music//a.aac"_s)}}));
    }

    void aControlOutsideTheRowsShowsNoFile()
    {
        aLecture().insertInto(m_program->database);
        m_program->showDay(m_program->today());

        controller().openAudioFolderPath(m_program->windows.mainOutlets().btnAddItem);
        controller().openAudioFolderPath(nullptr);
        controller().openAudioFolderPath(table().viewAtColumnRowMakeIfNecessary(0, 0, false));

        QVERIFY(m_program->workspace.shown.isEmpty());
    }

    void anEmptyListShowsNoFile()
    {
        aLecture().insertInto(m_program->database);
        m_program->showDay(m_program->today());
        QWidget *browse = table().viewAtColumnRowMakeIfNecessary(0, 0, false)->btnBrowse();
        controller().prepareViewForDate(theDay("2024-03-06"));
        const int views = table().viewCount();

        controller().openAudioFolderPath(browse);

        QVERIFY(m_program->workspace.shown.isEmpty());
        QCOMPARE(table().viewCount(), views);
        QCOMPARE(table().selectedRow(), -1);
    }

    // -- Store

    void storeOperationsReachTheOneDatabase()
    {
        const auto connection = controller().openDb();
        QCOMPARE(connection, m_program->database.connection());

        controller().insertIntoDbwithSqlStatementWithArguments(
            tarvelo::store::statements::Insert, aLecture().withoutAudio().arguments());
        controller().updateToDoDatawithSqlStatementWithArguments(
            tarvelo::store::statements::Update, {u"Waves"_s, u"Huygens"_s, u"1"_s});
        QCOMPARE(m_program->storedRows().value(0)["subject"_L1], u"Waves"_s);

        controller().prepareViewForDate(m_program->today());
        controller().deleteVoiceData(*controller().arrangedObjects().at(0));
        QVERIFY(m_program->storedRows().isEmpty());
    }

    // -- New lecture and closing

    void bothAddButtonsOpenANewLecture()
    {
        m_program->showDay(m_program->today());

        m_program->windows.mainOutlets().btnAddItem->click();
        QVERIFY(controller().bIsOnRecordingView());
        QVERIFY(controller().isRecordingNow());
        m_program->windows.newLectureOutlets().BtnCancelAddNewLecture->click();
        QVERIFY(!controller().bIsOnRecordingView());

        m_program->windows.mainOutlets().btnAddNewLecture2->click();
        QVERIFY(controller().bIsOnRecordingView());
    }

    void aLectureGoesFromItsRecordingToItsRow()
    {
        m_program->showDay(m_program->today());
        m_program->recordNewLecture(90);
        QTest::keyClicks(m_program->windows.newLectureOutlets().txtSubjectForNewNote, u"optics"_s);

        m_program->finishNewLecture();

        const auto *row = table().viewAtColumnRowMakeIfNecessary(0, 0, false);
        QVERIFY(row);
        QCOMPARE(row->findChild<QLabel *>(u"lblSubject"_s)->text(), u"Optics"_s);
        QCOMPARE(row->findChild<QLabel *>(u"lblDuration"_s)->text(), u"00:01:30"_s);
    }

    void theNoAudioPopoverCanBeClosed()
    {
        QWidget &popover = *m_program->windows.popoverOutlets().lblPopoverNoAudio->window();
        popover.show();

        controller().onClosePopoverConfirm(nullptr);
        QVERIFY(popover.isHidden());

        popover.show();
        m_program->windows.popoverOutlets().btnClosePopover->click();
        QVERIFY(popover.isHidden());
    }

    void theConfirmationShowsWhileItsWindowDoes()
    {
        QVERIFY(!controller().isConfirmDeleteShowing());

        m_program->windows.popoverOutlets().btnConfirmYes->window()->show();

        QVERIFY(controller().isConfirmDeleteShowing());
    }

    void theEndOfASheetTakesItOffTheScreen()
    {
        QWidget sheet;
        sheet.show();

        controller().alerDeletedDidEndReturnCodeContextInfo(&sheet, 1, nullptr);
        QVERIFY(sheet.isVisible());
        controller().sheetDidEndReturnCodeContextInfo(&sheet, 0, nullptr);
        QVERIFY(sheet.isHidden());
    }

    void closingThePlayWindowLeavesTheMainWindowAlone()
    {
        QWidget &play = *m_program->windows.playAudioOutlets().playAudioWindow;
        play.show();
        m_program->windows.mainWindow().show();

        controller().onClosePlayAudioWindow(m_program->windows.mainOutlets().btnAddItem);
        controller().onClosePlayAudioWindow(m_program->windows.playAudioOutlets().txtSubjectName);

        QVERIFY(play.isHidden());
        QVERIFY(m_program->windows.mainWindow().isVisible());
    }

    void theNeedToPreventQuittingIsOnlyKept()
    {
        QVERIFY(!controller().bIsRecordingNeedPreventingQuit());

        controller().setBIsRecordingNeedPreventingQuit(true);

        QVERIFY(controller().bIsRecordingNeedPreventingQuit());
    }
};

QTEST_MAIN(MediaLinksArrayControllerTest)
#include "MediaLinksArrayControllerTest.moc"
