#include "lectures/LectureEditing.h"

#include "lectures/CustomTableCellView.h"
#include "lectures/ProgramCase.h"
#include "widgets/PopOver.h"

#include <QMenu>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using tarvelo::tests::aLecture;
using tarvelo::tests::FakeAlerts;
using tarvelo::tests::theDay;

using Controller = tarvelo::lectures::MediaLinksArrayController;
using Answer = void (Controller::*)(QWidget *);

class LectureEditingTest final : public tarvelo::tests::ProgramCase
{
    Q_OBJECT

private Q_SLOTS:
    // -- Change flags

    void nothingIsChangedAtFirst()
    {
        QVERIFY(!controller().bHasChangesInNote());
        QVERIFY(!controller().bHasChangesInNoteTitle());
        QVERIFY(!controller().bIsEditingNow());
        QCOMPARE(controller().itemEditingNow(), nullptr);
    }

    void everyAnswerAboutATextSetsBothFlags_data()
    {
        QTest::addColumn<Answer>("answer");
        QTest::newRow("begin") << &Controller::textDidBeginEditing;
        QTest::newRow("change") << &Controller::textDidChange;
        QTest::newRow("end") << &Controller::textDidEndEditing;
    }
    void everyAnswerAboutATextSetsBothFlags()
    {
        QFETCH(Answer, answer);

        (controller().*answer)(&viewNotes());

        QVERIFY(controller().bHasChangesInNote());
        QVERIFY(controller().bHasChangesInNoteTitle());
    }

    void theEndOfAFieldsEditSetsNothing()
    {
        controller().controlTextDidEndEditing(&windowSubject());

        QVERIFY(!controller().bHasChangesInNote());
        QVERIFY(!controller().bHasChangesInNoteTitle());
    }

    void everyEditMayBeginAndEnd()
    {
        QVERIFY(controller().textShouldBeginEditing(&viewNotes()));
        QVERIFY(controller().textShouldEndEditing(&viewNotes()));
        QVERIFY(controller().controlTextShouldBeginEditing(&windowSubject(), nullptr));
        QVERIFY(controller().controlTextShouldEndEditing(&windowSubject(), nullptr));
    }

    void everyTextOfTheProgramIsWatched()
    {
        const QList<QWidget *> texts{&windowSubject(), &windowNotes(), &viewNotes(), newSubject(),
                                     newNotes()};
        for (QWidget *text : texts) {
            controller().onCancelLectureEdit(nullptr);
            text->setFocus();

            QTest::keyClicks(text, u"x"_s);

            QVERIFY2(controller().bHasChangesInNote(), qPrintable(text->objectName()));
        }
    }

    void leavingNotesWithoutTypingMarksTheLectureAsChanged()
    {
        showLecturesAndEdit();
        QTest::mouseClick(windowNotes().viewport(), Qt::LeftButton);
        QVERIFY(!controller().bHasChangesInNote());

        QTest::keyClick(&windowNotes(), Qt::Key_Tab);

        QVERIFY(controller().bHasChangesInNote());
        QVERIFY(controller().bHasChangesInNoteTitle());
    }

    void aWindowThatIsOpenedAndLeftUntouchedClosesWithoutAWord()
    {
        showLecturesAndEdit();

        QVERIFY(editWindow().close());

        QVERIFY(m_program->alerts.sheets.isEmpty());
        QVERIFY(editWindow().isHidden());
    }

    void notesThatHaveTheKeyboardAndNothingMoreCloseWithoutAWord()
    {
        showLecturesAndEdit();
        QTest::mouseClick(windowNotes().viewport(), Qt::LeftButton);

        QVERIFY(editWindow().close());
        QCoreApplication::processEvents();

        QVERIFY(m_program->alerts.sheets.isEmpty());
        QVERIFY(!controller().bHasChangesInNote());
    }

    // -- The edit window: opening

    void editingShowsSubjectAndNotesInFront()
    {
        showLectures();

        row(1)->btnEdit()->click();

        QVERIFY(editWindow().isVisible());
        QCOMPARE(windowSubject().text(), u"Optics"_s);
        QCOMPARE(windowNotes().toPlainText(), u"Lenses and mirrors"_s);
        QCOMPARE(controller().itemEditingNow(), controller().arrangedObjects()[1]);
        QVERIFY(controller().bIsEditingNow());
    }

    void editingPutsTheInsertionPointBeforeTheSubject()
    {
        showLecturesAndEdit();

        QTRY_VERIFY(windowSubject().hasFocus());
        QCOMPARE(windowSubject().cursorPosition(), 0);
        QVERIFY(!windowSubject().hasSelectedText());
    }

    void editingSelectsExactlyItsRow()
    {
        showLectures();
        table().selectRow(0);

        controller().onEditLecture(row(1)->btnEdit());

        QCOMPARE(table().selectedRowIndexes(), QList<int>({1}));
    }

    void editingForgetsEarlierChanges()
    {
        showLectures();
        controller().textDidChange(&viewNotes());

        controller().onEditLecture(row(0)->btnEdit());

        QVERIFY(!controller().bHasChangesInNote());
        QVERIFY(!controller().bHasChangesInNoteTitle());
    }

    void aLectureWithoutNotesIsEditedWithEmptyOnes()
    {
        aLecture().withNotes("").insertInto(m_program->database);
        m_program->showDay(m_program->today());
        windowNotes().setPlainText(u"of the one before"_s);

        controller().onEditLecture(row(0)->btnEdit());

        QCOMPARE(windowNotes().toPlainText(), QString());
    }

    void aSenderOutsideTheRowsOpensNothing()
    {
        showLectures();
        QWidget loose;

        const QList<QWidget *> senders{nullptr, &loose, row(0),
                                       m_program->windows.mainOutlets().btnAddItem};
        for (QWidget *sender : senders) {
            controller().onEditLecture(sender);
            controller().openPlayEditWindow(sender);
            controller().onClickInfo(sender);
        }

        QVERIFY(editWindow().isHidden());
        QCOMPARE(window().frameWidth(), 833);
        QCOMPARE(controller().itemEditingNow(), nullptr);
        QVERIFY(!controller().bIsEditingNow());
    }

    void aListThatWasEmptiedMeanwhileOpensNothing()
    {
        showLectures();
        QWidget *edit = row(0)->btnEdit();
        controller().prepareViewForDate(theDay("2024-03-06"));

        controller().onEditLecture(edit);
        controller().openPlayEditWindow(edit);
        controller().onClickInfo(edit);

        QVERIFY(editWindow().isHidden());
        QCOMPARE(controller().itemEditingNow(), nullptr);
    }

    // -- The edit window: saving and leaving

    void doneSavesSubjectAndNotesOfTheLecture()
    {
        showLecturesAndEdit();
        windowSubject().setText(u"Acoustics"_s);
        windowNotes().setPlainText(u"Pipes\nand strings"_s);

        doneButton().click();

        const auto stored = m_program->storedRows().value(0);
        QCOMPARE(stored["subject"_L1].toString(), u"Acoustics"_s);
        QCOMPARE(stored["notes"_L1].toString(), u"Pipes\nand strings"_s);
        QCOMPARE(m_program->storedRows().value(1)["subject"_L1].toString(), u"Waves"_s);
        QCOMPARE(m_program->subjectsShown(), QStringList({u"Waves"_s, u"Acoustics"_s}));
        QCOMPARE(controller().arrangedObjects()[1]->strNotes(), u"Pipes\nand strings"_s);
    }

    void doneShowsTheNewTextsInTheRowAndTakesTheWindowAway()
    {
        showLecturesAndEdit();
        windowSubject().setText(u"Acoustics"_s);

        doneButton().click();

        QCOMPARE(row(1)->findChild<QLabel *>(u"lblSubject"_s)->text(), u"Acoustics"_s);
        QVERIFY(editWindow().isHidden());
        QCOMPARE(windowSubject().text() + windowNotes().toPlainText(), QString());
    }

    void doneLeavesTheFlagsAsTheyAre()
    {
        showLecturesAndEdit();
        QTest::keyClicks(&windowSubject(), u"O"_s);

        controller().onDoneEdit(&doneButton());

        QVERIFY(controller().bIsEditingNow());
        QVERIFY(controller().bHasChangesInNote());
        QVERIFY(controller().bHasChangesInNoteTitle());
    }

    void blanksAroundTheSubjectAreSaved()
    {
        showLecturesAndEdit();
        windowSubject().setText(u"  Acoustics "_s);

        doneButton().click();

        QCOMPARE(m_program->storedRows().value(0)["subject"_L1].toString(), u"  Acoustics "_s);
    }

    void aBlankSubjectIsRefused_data()
    {
        QTest::addColumn<QString>("subject");
        QTest::newRow("none") << QString();
        QTest::newRow("blanks") << u"   "_s;
        QTest::newRow("other white space") << u"\t\u00a0\u2003"_s;
    }
    void aBlankSubjectIsRefused()
    {
        QFETCH(QString, subject);
        showLecturesAndEdit();
        windowSubject().setText(subject);

        doneButton().click();

        expectBlankSubjectSheet(editWindow());
        QVERIFY(editWindow().isVisible());
        QCOMPARE(m_program->storedRows().value(0)["subject"_L1].toString(), u"Optics"_s);
    }

    void doneAfterTheDayChangedSavesTheLectureAllTheSame()
    {
        showLecturesAndEdit();
        controller().prepareViewForDate(theDay("2024-03-06"));
        windowSubject().setText(u"Acoustics"_s);

        doneButton().click();

        QCOMPARE(m_program->storedRows().value(0)["subject"_L1].toString(), u"Acoustics"_s);
    }

    void doneAfterTheListWasBuiltAnewShowsTheNewSubject()
    {
        showLecturesAndEdit();
        controller().prepareViewForDate(m_program->today());
        windowSubject().setText(u"Acoustics"_s);

        doneButton().click();

        QCOMPARE(m_program->subjectsShown(), QStringList({u"Waves"_s, u"Acoustics"_s}));
    }

    void doneAfterTheLectureWasDeletedIsHarmless()
    {
        showLecturesAndEdit();
        controller().onDeleteItem(row(1)->btnDelete());
        windowSubject().setText(u"Acoustics"_s);

        doneButton().click();

        QVERIFY(editWindow().isHidden());
        QCOMPARE(m_program->storedRows().size(), 1);
        QCOMPARE(m_program->storedRows().value(0)["subject"_L1].toString(), u"Waves"_s);
    }

    // The file gives the ID of the last row again after that row was deleted.
    void doneForADeletedLectureNeverChangesTheOneThatGotItsId()
    {
        showLectures();
        controller().onEditLecture(row(0)->btnEdit());
        controller().onDeleteItem(row(0)->btnDelete());
        aLecture().named("Statics").withoutAudio().insertInto(m_program->database);
        windowSubject().setText(u"Acoustics"_s);

        doneButton().click();

        QCOMPARE(m_program->storedRows().size(), 2);
        QCOMPARE(m_program->storedRows().value(1)["subject"_L1].toString(), u"Statics"_s);
    }

    void whatTheDatabaseCannotTakeNowIsSavedLaterAndStaysInTheLecture()
    {
        showLecturesAndEdit();
        windowSubject().setText(u"Acoustics"_s);
        windowNotes().setPlainText(u"Pipes"_s);
        {
            tarvelo::store::Sqlite other(m_program->places.databaseFile());
            QVERIFY(other.beginTransaction());
            doneButton().click();
            QVERIFY(other.rollback());
        }
        controller().prepareViewForDate(m_program->today());

        controller().onEditLecture(row(1)->btnEdit());
        QCOMPARE(windowSubject().text() + windowNotes().toPlainText(), u"AcousticsPipes"_s);
        m_program->clock.advance(10s);

        QCOMPARE(m_program->storedRows().value(0)["subject"_L1].toString(), u"Acoustics"_s);
        QCOMPARE(m_program->storedRows().value(0)["notes"_L1].toString(), u"Pipes"_s);
        QCOMPARE(m_program->storedRows().value(1)["subject"_L1].toString(), u"Waves"_s);
    }

    void doneBeforeAnyLectureWasOpenedIsHarmless()
    {
        showLectures();
        windowSubject().setText(u"Acoustics"_s);

        controller().onDoneEdit(nullptr);
        controller().onDoneLectureEdit(nullptr);

        QCOMPARE(m_program->storedRows().value(0)["subject"_L1].toString(), u"Optics"_s);
        QCOMPARE(m_program->storedRows().value(1)["subject"_L1].toString(), u"Waves"_s);
    }

    void cancelForgetsTheTextsAndTheChanges()
    {
        showLecturesAndEdit();
        QTest::keyClicks(&windowSubject(), u"O"_s);

        m_program->windows.editLectureOutlets().btnCancelEdit->click();

        QVERIFY(editWindow().isHidden());
        QCOMPARE(windowSubject().text() + windowNotes().toPlainText(), QString());
        QVERIFY(!controller().bIsEditingNow());
        QVERIFY(!controller().bHasChangesInNote());
        QVERIFY(!controller().bHasChangesInNoteTitle());
        QCOMPARE(m_program->storedRows().value(0)["subject"_L1].toString(), u"Optics"_s);
    }

    // -- The lecture view: opening

    void openingShowsTheLectureBesideTheList()
    {
        showLectures();
        table().selectRow(0);

        controller().openPlayEditWindow(row(1)->btnPlay());

        QCOMPARE(window().frameWidth(), 1234);
        QTRY_COMPARE(window().width(), 1234);
        QCOMPARE(viewSubject().text(), u"Optics"_s);
        QCOMPARE(viewSubject().cursorPosition(), 0);
        QCOMPARE(viewNotes().toPlainText(), u"Lenses and mirrors"_s);
        QCOMPARE(table().selectedRowIndexes(), QList<int>({1}));
        QCOMPARE(controller().itemEditingNow(), controller().arrangedObjects()[1]);
    }

    void openingKeepsOriginAndHeightOfTheWindow()
    {
        showLectures();
        window().move(30, 40);
        const QPoint origin = window().pos();
        const int height = window().height();

        controller().openPlayEditWindow(row(0)->btnPlay());

        QTRY_COMPARE(window().width(), 1234);
        QCOMPARE(window().pos(), origin);
        QCOMPARE(window().height(), height);
    }

    void openingBeginsAnEdit()
    {
        showLectures();
        controller().textDidChange(&viewNotes());

        controller().openPlayEditWindow(row(0)->btnPlay());

        QVERIFY(controller().bIsEditingNow());
        QVERIFY(!controller().bHasChangesInNote());
        QVERIFY(!controller().bHasChangesInNoteTitle());
    }

    void openingOffersTheSingleViewAlsoWhenThereIsNoSuchRow()
    {
        showLectures();
        controller().viewEditView(nullptr);
        const auto &view = m_program->windows.lectureViewOutlets();

        controller().openPlayEditWindow(nullptr);

        QVERIFY(!controller().bIsInSingleEditView());
        QVERIFY(view.btnSlideToListView->isHidden());
        QVERIFY(!view.btnSlidetoView->isHidden());
    }

    void aDoubleClickOnARowOpensIt()
    {
        showLectures();

        Q_EMIT table().rowOpened(1);

        QCOMPARE(viewSubject().text(), u"Optics"_s);
        QCOMPARE(window().frameWidth(), 1234);
    }

    void openingMakesThePlayerOfTheView()
    {
        showLectureWithFile();
        m_program->engine.playerDuration = 65;
        player().bPause->setEnabled(true);
        m_program->engine.takeAsked();

        controller().openPlayEditWindow(row(0)->btnPlay());

        QCOMPARE(m_program->engine.playerBytes, QByteArray("sound"));
        QVERIFY(!m_program->engine.takeAsked().contains(u"player play"_s));
        QVERIFY(player().bPlay->isEnabled());
        QVERIFY(!player().bPause->isEnabled());
        QVERIFY(player().sliderEditProgress->isEnabled());
    }

    void openingAnotherLectureForgetsThePlayerOfTheOneBefore()
    {
        showLectureWithFile();
        controller().openPlayEditWindow(row(0)->btnPlay());
        m_program->engine.takeAsked();

        controller().openPlayEditWindow(nullptr);

        QCOMPARE(m_program->engine.takeAsked(), QStringList({u"player stop"_s, u"player gone"_s}));
    }

    void aLectureWhoseFileIsGoneOpensWithNothingToPlay()
    {
        showLectures();

        controller().openPlayEditWindow(row(0)->btnPlay());

        QVERIFY(!m_program->engine.player);
        QVERIFY(player().bPlay->isEnabled());
        QVERIFY(!player().bPause->isEnabled());
        QVERIFY(player().sliderEditProgress->isEnabled());
        QCOMPARE(window().frameWidth(), 1234);
        QVERIFY(controller().bIsEditingNow());
    }

    void aLectureWithoutAudioSaysSo()
    {
        aLecture().withoutAudio().insertInto(m_program->database);
        m_program->showDay(m_program->today());
        window().setFrameWidth(1234, false);
        const auto &popovers = m_program->windows.popoverOutlets();
        QVERIFY(!popovers.popoverAudioConfirmClose->isVisible());
        for (QLabel *time : {player().tElapsedTime, player().tRemainingTime})
            time->setText(u"left over"_s);
        for (QWidget *control : controlsOfPlayer())
            control->setEnabled(true);

        controller().openPlayEditWindow(row(0)->btnPlay());

        QVERIFY(popovers.popoverAudioConfirmClose->isVisible());
        QVERIFY(popovers.lblPopoverNoAudio->isVisible());
        QCOMPARE(player().tElapsedTime->text(), u"0:00:00"_s);
        QCOMPARE(player().tRemainingTime->text(), u"0:00:00"_s);
        for (const QWidget *control : controlsOfPlayer())
            QVERIFY(!control->isEnabled());
        QCOMPARE(window().frameWidth(), 833);
    }

    void aLectureWithoutAudioIsShownAndLeavesTheFlagsAsTheyAre()
    {
        aLecture().withoutAudio().insertInto(m_program->database);
        m_program->showDay(m_program->today());
        controller().textDidChange(&viewNotes());

        controller().openPlayEditWindow(row(0)->btnPlay());

        QCOMPARE(viewSubject().text(), u"Optics"_s);
        QCOMPARE(viewNotes().toPlainText(), u"Lenses and mirrors"_s);
        QVERIFY(!controller().bIsEditingNow());
        QVERIFY(controller().bHasChangesInNote());
        QVERIFY(controller().bHasChangesInNoteTitle());
    }

    // -- The lecture view: the heading

    void theSubjectIsAHeadingAtFirst()
    {
        QVERIFY(!viewSubject().isEditable());
        QVERIFY(!viewSubject().isBordered());
        QVERIFY(!viewSubject().drawsBackground());
    }

    void aClickOnTheHeadingOpensItForWriting()
    {
        showLecturesAndOpen();
        QVERIFY(QTest::qWaitForWindowActive(&window()));
        viewNotes().setFocus();

        QTest::mouseClick(&viewSubject(), Qt::LeftButton);

        QVERIFY(viewSubject().isEditable());
        QVERIFY(viewSubject().isBordered());
        QVERIFY(viewSubject().drawsBackground());
        QVERIFY(viewSubject().hasFocus());
        QCOMPARE(window().focusWidget(), &viewSubject());
    }

    void typingInTheOpenHeadingIsAChange()
    {
        showLecturesAndOpen();
        QTest::mouseClick(&viewSubject(), Qt::LeftButton);
        QVERIFY(!controller().bHasChangesInNote());

        QTest::keyClicks(&viewSubject(), u"x"_s);

        QVERIFY(controller().bHasChangesInNote());
        QVERIFY(controller().bHasChangesInNoteTitle());
    }

    // -- The lecture view: saving

    void doneInTheLectureViewSavesAndShowsTheListAlone()
    {
        showLecturesAndOpen();
        viewSubject().setText(u" Acoustics"_s);
        viewNotes().setPlainText(u"Pipes"_s);

        viewDoneButton().click();

        const auto stored = m_program->storedRows().value(0);
        QCOMPARE(stored["subject"_L1].toString(), u" Acoustics"_s);
        QCOMPARE(stored["notes"_L1].toString(), u"Pipes"_s);
        QCOMPARE(controller().arrangedObjects()[1]->strNotes(), u"Pipes"_s);
        QCOMPARE(row(1)->findChild<QLabel *>(u"lblSubject"_s)->text(),
                 controller().arrangedObjects()[1]->strSubject());
        QCOMPARE(window().frameWidth(), 833);
        QTRY_COMPARE(window().width(), 833);
    }

    void doneInTheLectureViewEndsTheEditAndKeepsTheChangeFlags()
    {
        showLecturesAndOpen();
        viewNotes().setFocus();
        QTest::keyClicks(&viewNotes(), u"x"_s);

        controller().onDoneLectureEdit(&viewDoneButton());

        QVERIFY(!controller().bIsEditingNow());
        QVERIFY(controller().bHasChangesInNote());
        QVERIFY(controller().bHasChangesInNoteTitle());
    }

    void doneInTheLectureViewMarksNothingThatWasNotTouched()
    {
        showLecturesAndOpen();
        viewNotes().setFocus();

        controller().onDoneLectureEdit(&viewDoneButton());

        QVERIFY(!controller().bHasChangesInNote());
        QCOMPARE(window().focusWidget(), &table());
    }

    void doneInTheLectureViewDoesNothingWhileAllIsListed()
    {
        showLectures();
        controller().showList(nullptr);
        controller().openPlayEditWindow(row(0)->btnPlay());
        viewSubject().setText(QString());

        viewDoneButton().click();

        QVERIFY(m_program->alerts.sheets.isEmpty());
        QVERIFY(controller().bIsEditingNow());
        QCOMPARE(window().frameWidth(), 1234);
        QCOMPARE(m_program->storedRows().value(0)["subject"_L1].toString(), u"Optics"_s);
    }

    void aBlankSubjectIsRefusedInTheLectureViewToo()
    {
        showLecturesAndOpen();
        viewSubject().setText(u" "_s);

        viewDoneButton().click();

        expectBlankSubjectSheet(window());
        QCOMPARE(window().frameWidth(), 1234);
        QVERIFY(controller().bIsEditingNow());
        QCOMPARE(m_program->storedRows().value(0)["subject"_L1].toString(), u"Optics"_s);
    }

    void doneAfterTheSingleViewBringsCalendarAndListBack()
    {
        showLecturesAndOpen();
        controller().viewEditView(nullptr);

        viewDoneButton().click();

        const auto &main = m_program->windows.mainOutlets();
        QVERIFY(!controller().bIsInSingleEditView());
        QVERIFY(controller().bIsInEditView());
        QVERIFY(!main.calendarView->isHidden() && !main.tableListView->isHidden());
        QCOMPARE(window().frameWidth(), 833);
    }

    void eachPlaceSavesTheLectureThatItShows()
    {
        showLectures();
        controller().openPlayEditWindow(row(1)->btnPlay());
        controller().onEditLecture(row(0)->btnEdit());
        viewSubject().setText(u"Acoustics"_s);

        viewDoneButton().click();
        doneButton().click();

        QCOMPARE(m_program->storedRows().value(0)["subject"_L1].toString(), u"Acoustics"_s);
        QCOMPARE(m_program->storedRows().value(1)["subject"_L1].toString(), u"Waves"_s);
    }

    void theLectureViewFollowsWhatWasSavedInTheEditWindow()
    {
        showLecturesAndOpen();
        controller().onEditLecture(row(1)->btnEdit());
        windowSubject().setText(u"Acoustics"_s);

        doneButton().click();

        QCOMPARE(viewSubject().text(), u"Acoustics"_s);
    }

    void blanksAtWhichNoLineBreaksAreKeptInNotes()
    {
        showLecturesAndOpen();
        viewNotes().setPlainText(u"5\u00a0km"_s);

        controller().onDoneLectureEdit(&doneButton());

        QVERIFY(std::ranges::any_of(m_program->storedRows(), [](const auto &row) {
            return row["notes"_L1].toString() == u"5\u00a0km"_s;
        }));
    }

    // From before there was a limit to what can be typed.
    void aSubjectThatIsLongerThanCanBeTypedIsShownAndSavedWhole()
    {
        const QString subject = u"X"_s + QString(39999, u'x');
        aLecture().named(subject).insertInto(m_program->database);
        m_program->showDay(m_program->today());
        controller().openPlayEditWindow(row(0)->btnPlay());
        controller().onEditLecture(row(0)->btnEdit());
        QCOMPARE(windowSubject().text(), subject);
        QCOMPARE(viewSubject().text(), subject);

        windowNotes().setPlainText(u"Mirrors"_s);
        doneButton().click();

        QCOMPARE(m_program->storedRows()[0]["subject"_L1], subject);
        QCOMPARE(m_program->storedRows()[0]["notes"_L1], u"Mirrors"_s);
    }

    void aSubjectThatIsLongerThanCanBeTypedGivesWayToAShorterOne()
    {
        aLecture().named(QString(300, u'x')).insertInto(m_program->database);
        m_program->showDay(m_program->today());
        controller().onEditLecture(row(0)->btnEdit());

        QTest::keyClicks(&windowSubject(), u"y"_s);
        QCOMPARE(windowSubject().text().size(), 300);
        windowSubject().selectAll();
        QTest::keyClicks(&windowSubject(), u"Waves"_s);
        doneButton().click();

        QCOMPARE(m_program->storedRows()[0]["subject"_L1], u"Waves"_s);
    }

    void aRefusedLetterMarksNothing()
    {
        aLecture().named(QString(255, u'x')).insertInto(m_program->database);
        m_program->showDay(m_program->today());
        controller().onEditLecture(row(0)->btnEdit());

        QTest::keyClicks(&windowSubject(), u"y"_s);

        QVERIFY(!controller().bHasChangesInNoteTitle());
    }

    void whatIsBeingWrittenInTheLectureViewIsNotTakenAway()
    {
        showLecturesAndOpen();
        viewNotes().setPlainText(u"Half a sentence"_s);
        controller().onEditLecture(row(1)->btnEdit());
        windowSubject().setText(u"Acoustics"_s);

        doneButton().click();

        QCOMPARE(viewNotes().toPlainText(), u"Half a sentence"_s);
    }

    // -- The row's menu

    void theInfoButtonOpensTheRowsMenuUnderItsLowerLeftCorner()
    {
        showLectures();
        // The menu has room on the screen.
        window().move(-400, 0);
        QWidget &info = *row(1)->btnInfo();
        info.show();

        controller().onClickInfo(&info);

        auto *menu = row(1)->findChild<QMenu *>();
        QVERIFY(menu && menu->isVisible());
        QCOMPARE(menu->title(), u"Contextual Menu"_s);
        QCOMPARE(menu->pos(), info.mapToGlobal(QPoint(0, info.height())));
        menu->close();
    }

    // -- The buttons that slide the views

    void theButtonsOfTheLectureViewChangeTheViews()
    {
        showLecturesAndOpen();
        const auto &view = m_program->windows.lectureViewOutlets();

        view.btnSlidetoView->click();
        QCOMPARE(window().frameWidth(), 400);
        QVERIFY(controller().bIsInSingleEditView());
        view.btnSlideToListView->click();
        QCOMPARE(window().frameWidth(), 1234);
        QVERIFY(!controller().bIsInSingleEditView());
        view.btnCloseLectureView->click();

        QCOMPARE(window().frameWidth(), 833);
        QCOMPARE(m_program->storedRows().value(0)["subject"_L1].toString(), u"Optics"_s);
    }

private:
    // "Waves" stands above "Optics".
    void showLectures()
    {
        aLecture().insertInto(m_program->database);
        aLecture().named("Waves").withAudio(u"/music/waves.aac"_s).insertInto(m_program->database);
        m_program->showDay(m_program->today());
    }
    void showLectureWithFile()
    {
        QFile file(m_program->places.folder() + u".aac"_s);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QVERIFY(file.write("sound") == 5);
        aLecture().withAudio(file.fileName()).insertInto(m_program->database);
        m_program->showDay(m_program->today());
    }
    void showLecturesAndEdit()
    {
        showLectures();
        controller().onEditLecture(row(1)->btnEdit());
        QVERIFY(QTest::qWaitForWindowActive(&editWindow()));
    }
    void showLecturesAndOpen()
    {
        showLectures();
        controller().openPlayEditWindow(row(1)->btnPlay());
    }
    void expectBlankSubjectSheet(const QWidget &on) const
    {
        QCOMPARE(m_program->alerts.sheets.size(), 1);
        const FakeAlerts::Sheet &sheet = m_program->alerts.sheets[0];
        QCOMPARE(sheet.message, u"Subject name is blank"_s);
        QCOMPARE(sheet.button, u"Close"_s);
        QCOMPARE(sheet.informativeText, u"Please provide subject name."_s);
        QCOMPARE(sheet.window, &on);
        QVERIFY(!sheet.didEnd);
    }

    const tarvelo::audio::EditPlayerOutlets &player() const
    {
        return m_program->windows.editPlayerOutlets();
    }
    QList<QWidget *> controlsOfPlayer() const
    {
        return {player().bPlay, player().bPause, player().sliderEditProgress};
    }
    QWidget &editWindow() const
    {
        return *m_program->windows.editLectureOutlets().windowEditLecture;
    }
    QLineEdit &windowSubject() const
    {
        return *m_program->windows.editLectureOutlets().txtSubjectForEdit;
    }
    QTextEdit &windowNotes() const
    {
        return *m_program->windows.editLectureOutlets().txtViewNotesForEdit;
    }
    QAbstractButton &doneButton() const
    {
        return *m_program->windows.editLectureOutlets().btnDoneEdit;
    }
    tarvelo::widgets::MouseDownTextField &viewSubject() const
    {
        return *m_program->windows.lectureViewOutlets().tSubjectName;
    }
    QTextEdit &viewNotes() const
    {
        return *m_program->windows.lectureViewOutlets().tViewNoteForEdit;
    }
    QAbstractButton &viewDoneButton() const
    {
        return *m_program->windows.lectureViewOutlets().btnDoneEditLecture;
    }
    QLineEdit *newSubject() const
    {
        return m_program->windows.newLectureOutlets().txtSubjectForNewNote;
    }
    QTextEdit *newNotes() const { return m_program->windows.newLectureOutlets().txtView; }
};

QTEST_MAIN(LectureEditingTest)
#include "LectureEditingTest.moc"
