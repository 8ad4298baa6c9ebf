#include "lectures/NewLecture.h"

#include "lectures/ProgramCase.h"
#include "support/AnimationClock.h"
#include "support/FileContent.h"

#include <QDir>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using tarvelo::lectures::Lecture;
using tarvelo::tests::aLecture;
using tarvelo::tests::AnimationClock;
using tarvelo::tests::LectureProgram;
using tarvelo::tests::theDay;
using tarvelo::tests::writeContent;

class NewLectureTest final : public tarvelo::tests::ProgramCase
{
    Q_OBJECT

private Q_SLOTS:
    void addingOpensAnEmptyWindow()
    {
        subject().setText(u"left over"_s);
        notes().setPlainText(u"left over"_s);
        subject().hide();
        subject().setReadOnly(true);
        notes().setReadOnly(true);
        recording().lblRecordingDuration->setText(u"left over"_s);
        QVERIFY(!newNoteWindow().isVisible() && !controller().bIsOnRecordingView());

        controller().onAddItem(nullptr);

        QVERIFY(newNoteWindow().isVisible());
        QVERIFY(controller().bIsOnRecordingView());
        QCOMPARE(subject().text() + notes().toPlainText(), QString());
        QVERIFY(!subject().isHidden() && !subject().isReadOnly() && !notes().isReadOnly());
        QCOMPARE(recording().lblRecordingDuration->text(), QString());
    }

    void addingMakesTheControlsReadyForATake()
    {
        recording().btnStartRecord->hide();
        recording().btnPauseResumeRecording->show();
        m_program->windows.newLectureOutlets().BtnCancelAddNewLecture->hide();

        controller().onAddItem(nullptr);

        QVERIFY(!recording().btnStopRecord->isEnabled());
        QVERIFY(!recording().btnStartRecord->isHidden());
        QVERIFY(recording().btnPauseResumeRecording->isHidden());
        QVERIFY(!m_program->windows.newLectureOutlets().BtnCancelAddNewLecture->isHidden());
    }

    void addingPutsThePlayWindowsSubjectAway()
    {
        QLineEdit &played = *m_program->windows.playAudioOutlets().txtSubjectName;
        played.setText(u"left over"_s);
        played.setReadOnly(false);
        played.show();

        controller().onAddItem(nullptr);

        QCOMPARE(played.text(), QString());
        QVERIFY(played.isHidden() && played.isReadOnly());
    }

    void addingForgetsEarlierChanges()
    {
        controller().onAddItem(nullptr);
        QTest::keyClicks(&subject(), u"Optics"_s);
        QVERIFY(controller().bHasChangesInNote() && controller().bHasChangesInNoteTitle());
        finishLecture();

        controller().onAddItem(nullptr);

        QVERIFY(!controller().bHasChangesInNote());
        QVERIFY(!controller().bHasChangesInNoteTitle());
    }

    void emptyingTheNotesIsNoChangeEvenUnderTheKeyboard()
    {
        controller().onAddItem(nullptr);
        QVERIFY(QTest::qWaitForWindowActive(&newNoteWindow()));
        notes().setPlainText(u"Lenses"_s);
        notes().setFocus();
        QVERIFY(notes().hasFocus());
        // A button of another tag ends the lecture and leaves its window open.
        tarvelo::widgets::ImageButton other;
        other.setTag(2);
        controller().onDoneNewLectureOrCloseWindow(&other);

        controller().onAddItem(nullptr);

        QCOMPARE(notes().toPlainText(), QString());
        QVERIFY(!controller().bHasChangesInNote());
    }

    void aSecondLectureIsRefusedWhileOneIsOpen()
    {
        controller().onAddItem(nullptr);
        QTest::keyClicks(&subject(), u"Optics"_s);

        controller().onAddItem(nullptr);

        QCOMPARE(m_program->alerts.sheets.size(), 1);
        const auto &sheet = m_program->alerts.sheets[0];
        QCOMPARE(sheet.message, u"You have a Lecture that is not yet saved."_s);
        QCOMPARE(sheet.button, u"OK"_s);
        QCOMPARE(sheet.informativeText,
                 u"Save the current Lecture before starting a new record."_s);
        QCOMPARE(sheet.window, &m_program->windows.mainWindow());
        QVERIFY(!sheet.didEnd);
        QCOMPARE(subject().text(), u"Optics"_s);
        QVERIFY(controller().bHasChangesInNoteTitle());
    }

    void aTakeThatStillRunsIsDiscardedByTheNextLecture()
    {
        controller().onAddItem(nullptr);
        controller().startRecording(nullptr);
        pressClose();
        recording().audioLevelMeter->setFloatValue(0.5F);
        recording().lblRecordingDuration->setText(u"left over"_s);
        const QString take = controller().tempAudioSavePath();
        QVERIFY(QFile::exists(take));
        QVERIFY(m_program->controller.recordingControl().recording());

        controller().onAddItem(nullptr);

        QVERIFY(!controller().recordingControl().recording());
        QVERIFY(!QFile::exists(take));
        QCOMPARE(recording().audioLevelMeter->floatValue(), 0.0F);
        QCOMPARE(recording().lblRecordingDuration->text(), QString());
    }

    void aLectureWithoutATakeIsStoredWithoutAudio()
    {
        controller().onAddItem(nullptr);
        subject().setText(u"history of art"_s);
        notes().setPlainText(u"  Giotto\n"_s);

        finishLecture();

        const auto rows = m_program->storedRows();
        QCOMPARE(rows.size(), 1);
        QCOMPARE(rows[0]["subject"_L1], u"history of art"_s);
        QCOMPARE(rows[0]["course"_L1], u"test course"_s);
        QCOMPARE(rows[0]["notes"_L1], u"  Giotto\n"_s);
        QCOMPARE(rows[0]["recordingDate"_L1], u"2024-03-05"_s);
        QCOMPARE(rows[0]["lectureStartTime"_L1], u"10.00 AM"_s);
        QCOMPARE(rows[0]["lectureEndTime"_L1], u"11.30 AM"_s);
        QCOMPARE(rows[0]["audioFileFullPath"_L1], u""_s);
        QCOMPARE(rows[0]["recordDuration"_L1], u"No Audio"_s);
    }

    void aTakeIsMovedToItsPlaceAndItsWholeSecondsAreStored()
    {
        m_program->recordNewLecture(3725.9);

        finishLecture();

        const auto rows = m_program->storedRows();
        const QString path = rows.value(0)["audioFileFullPath"_L1].toString();
        QCOMPARE(path, controller().getAudioFolderPath() + u"/Audio - 20240305090001.m4a"_s);
        QVERIFY(QFile::exists(path));
        QVERIFY(!QFile::exists(controller().tempAudioSavePath()));
        QCOMPARE(rows[0]["recordDuration"_L1], u"01:02:05"_s);
        QCOMPARE(controller().recordingControl().floatRecordingDuration(), 0.0);
    }

    void theSubjectIsTrimmedAndNeverEmpty_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("stored");
        QTest::newRow("nothing") << QString() << u"Untitled"_s;
        QTest::newRow("spaces only") << u"   "_s << u"Untitled"_s;
        QTest::newRow("a tab and a space") << u"\t "_s << u"Untitled"_s;
        QTest::newRow("spaces around") << u"  wave  optics "_s << u"wave  optics"_s;
    }
    void theSubjectIsTrimmedAndNeverEmpty()
    {
        QFETCH(QString, typed);
        QFETCH(QString, stored);
        controller().onAddItem(nullptr);
        subject().setText(typed);

        finishLecture();

        QCOMPARE(m_program->storedRows().value(0)["subject"_L1].toString(), stored);
    }

    void everyLectureIsStoredUnderTheDayShown()
    {
        controller().prepareViewForDate(theDay("2024-12-31"));
        controller().onAddItem(nullptr);

        finishLecture();

        QCOMPARE(m_program->storedRows().value(0)["recordingDate"_L1], u"2024-12-31"_s);
    }

    void underAnotherCalendarTheLectureIsNotFoundUnderItsDay()
    {
        LectureProgram program("th_TH@calendar=buddhist");
        program.showDay(program.today());
        program.controller.onAddItem(nullptr);
        program.finishNewLecture();
        QCOMPARE(program.storedRows().value(0)["recordingDate"_L1], u"2567-03-05"_s);

        program.controller.prepareViewForDate(program.today());

        QCOMPARE(program.subjectsShown(), QStringList());
        program.controller.showList(nullptr);
        QCOMPARE(program.subjectsShown(), QStringList({u"Untitled"_s}));
    }

    void theNewLectureStandsLastUntilTheListIsBuiltAnew()
    {
        aLecture().named("earlier").insertInto(m_program->database);
        controller().prepareViewForDate(m_program->today());
        controller().onAddItem(nullptr);
        subject().setText(u"latest"_s);

        finishLecture();

        QCOMPARE(m_program->subjectsShown(), QStringList({u"Earlier"_s, u"Latest"_s}));
        controller().prepareViewForDate(m_program->today());
        QCOMPARE(m_program->subjectsShown(), QStringList({u"Latest"_s, u"Earlier"_s}));
    }

    void theNewLectureIsTheRowThatWasStored()
    {
        m_program->recordNewLecture(61);
        subject().setText(u"wave optics"_s);
        notes().setPlainText(u"Huygens"_s);

        finishLecture();

        const auto row = m_program->storedRows().value(0);
        const Lecture lecture = controller().arrangedObjects().at(0);
        QCOMPARE(lecture->strSubject(), u"Wave Optics"_s);
        QCOMPARE(lecture->strCourse(), u"test course"_s);
        QCOMPARE(lecture->strStartDuration() + lecture->strEndDuration(), u"10.00 AM11.30 AM"_s);
        QCOMPARE(lecture->strNotes(), u"Huygens"_s);
        QCOMPARE(lecture->strRecordingDuration(), u"00:01:01"_s);
        QCOMPARE(lecture->strLectureAudioPath(), row["audioFileFullPath"_L1].toString());
        QCOMPARE(lecture->getRecordUniqueID(), row["ID"_L1].toLongLong());
        QVERIFY(lecture->bChecked());
    }

    void savingScrollsToTheNewLecture()
    {
        for (int i = 0; i < 30; ++i)
            aLecture().insertInto(m_program->database);
        controller().prepareViewForDate(m_program->today());
        auto &table = *m_program->windows.mainOutlets().tblRecordSubjectList;
        QVERIFY(!table.viewAtColumnRowMakeIfNecessary(0, 29, false));
        controller().onAddItem(nullptr);

        finishLecture();

        QVERIFY(table.viewAtColumnRowMakeIfNecessary(0, 30, false));
    }

    void savingTidiesUp()
    {
        m_program->recordNewLecture(3);
        subject().setText(u"Optics"_s);
        notes().setPlainText(u"Lenses"_s);
        recording().btnTimeTag->show();
        QVERIFY(!m_program->emptyDayPanel().isHidden());

        finishLecture();

        QCOMPARE(subject().text() + notes().toPlainText(), QString());
        QVERIFY(recording().btnTimeTag->isHidden());
        QVERIFY(m_program->emptyDayPanel().isHidden());
        QVERIFY(m_program->windows.mainOutlets().btnDeleteItem->isEnabled());
    }

    void doneClosesTheWindowAtOnceAndSavesAMomentLater()
    {
        controller().onAddItem(nullptr);

        m_program->windows.newLectureOutlets().BtnDoneOrClose->click();

        QVERIFY(newNoteWindow().isHidden());
        QVERIFY(!controller().bIsOnRecordingView());
        QCOMPARE(m_program->application.recordingStates, QList<bool>({false}));
        m_program->clock.advance(199ms);
        QVERIFY(controller().arrangedObjects().empty());
        m_program->clock.advance(1ms);
        QCOMPARE(controller().arrangedObjects().size(), 1U);
    }

    void doneWhileRecordingStopsTheTakeFirst()
    {
        controller().onAddItem(nullptr);
        recording().btnStartRecord->click();
        recording().btnPauseResumeRecording->click();
        m_program->clock.advance(3s);
        recording().btnPauseResumeRecording->click();
        QCOMPARE(controller().recordingControl().durationPause(), 3);
        m_program->engine.recordedSeconds = 12;
        m_program->engine.takeAsked();
        recording().audioLevelMeter->setFloatValue(0.5F);

        m_program->windows.newLectureOutlets().BtnDoneOrClose->click();

        QCOMPARE(m_program->engine.takeAsked(), QStringList({u"recorder stop"_s}));
        QVERIFY(!controller().recordingControl().recording());
        QCOMPARE(recording().audioLevelMeter->floatValue(), 0.0F);
        m_program->clock.advance(200ms);
        QCOMPARE(m_program->storedRows().value(0)["recordDuration"_L1], u"00:00:12"_s);
        QCOMPARE(controller().recordingControl().durationPause(), 0);
    }

    void doneForgetsThatATakeWaitsOnlyAtTheNextCancel()
    {
        m_program->recordNewLecture(3);

        finishLecture();

        QVERIFY(controller().recordingControl().bIsRecordingSaved());
        controller().onCancelAddNewLecture(nullptr);
        QVERIFY(!controller().recordingControl().bIsRecordingSaved());
    }

    void closeStoresNothingAndLeavesTheTake()
    {
        m_program->recordNewLecture(3);
        notes().setPlainText(u"Lenses"_s);
        m_program->windows.lectureViewOutlets().tSubjectName->setText(u"Optics"_s);

        pressClose();
        m_program->clock.advance(1s);

        QVERIFY(QFile::exists(controller().tempAudioSavePath()));
        QVERIFY(controller().arrangedObjects().empty());
        QVERIFY(newNoteWindow().isHidden());
        QVERIFY(!controller().bIsOnRecordingView());
        QCOMPARE(notes().toPlainText(), QString());
        QCOMPARE(m_program->windows.lectureViewOutlets().tSubjectName->text(), QString());
        QVERIFY(m_program->application.recordingStates.isEmpty());
    }

    void closeStopsWhatPlaysAMomentLater()
    {
        m_program->recordNewLecture(3);
        recording().btnStopRecord->click();
        m_program->engine.takeAsked();

        pressClose();

        QVERIFY(m_program->engine.takeAsked().isEmpty());
        m_program->clock.advance(200ms);
        QCOMPARE(m_program->engine.takeAsked(), QStringList({u"player stop"_s}));
    }

    void aButtonOfAnotherTagOnlyResetsTheControls()
    {
        m_program->recordNewLecture(3);
        recording().btnStopRecord->click();
        tarvelo::widgets::ImageButton other;
        other.setTag(2);

        controller().onDoneNewLectureOrCloseWindow(&other);
        m_program->clock.advance(1s);

        expectControlsAsBeforeATake(u"stopH"_s);
        QVERIFY(newNoteWindow().isVisible());
        QVERIFY(!controller().bIsOnRecordingView());
        QVERIFY(controller().arrangedObjects().empty());
    }

    void doneAndCloseResetTheControls_data()
    {
        QTest::addColumn<bool>("done");
        QTest::newRow("Done") << true;
        QTest::newRow("Close") << false;
    }
    void doneAndCloseResetTheControls()
    {
        QFETCH(bool, done);
        m_program->recordNewLecture(3);
        recording().btnStopRecord->click();

        if (done)
            finishLecture();
        else
            pressClose();

        expectControlsAsBeforeATake(u"stopH"_s);
    }

    void cancelDiscardsTheTakeThatWaits()
    {
        m_program->recordNewLecture(3);
        subject().setText(u"Optics"_s);
        notes().setPlainText(u"Lenses"_s);

        controller().onCancelAddNewLecture(nullptr);

        QVERIFY(!QFile::exists(controller().tempAudioSavePath()));
        QVERIFY(newNoteWindow().isHidden());
        QVERIFY(!controller().bIsOnRecordingView());
        QVERIFY(!controller().recordingControl().bIsRecordingSaved());
        QCOMPARE(subject().text() + notes().toPlainText(), QString());
        QCOMPARE(recording().lblRecordingDuration->text(), QString());
    }

    void cancelResetsTheControlsWithoutAPressedImage()
    {
        m_program->recordNewLecture(3);
        recording().btnStopRecord->click();
        m_program->engine.takeAsked();

        controller().onCancelAddNewLecture(nullptr);

        expectControlsAsBeforeATake(QString());
        QVERIFY(m_program->engine.takeAsked().contains(u"player stop"_s));
    }

    void cancelLeavesATakeThatStillRunsToTheNextLecture()
    {
        controller().onAddItem(nullptr);
        recording().btnStartRecord->click();

        controller().onCancelAddNewLecture(nullptr);

        QVERIFY(controller().recordingControl().recording());
        QVERIFY(QFile::exists(controller().tempAudioSavePath()));
        controller().onAddItem(nullptr);
        QVERIFY(!QFile::exists(controller().tempAudioSavePath()));
    }

    void theLaterOfTwoSavesWithinOneSecondReplacesTheFile()
    {
        m_program->recordNewLecture(3);
        finishLecture();
        const QDateTime momentOfSaving = m_program->clock.now();
        const QString path = controller().arrangedObjects().at(0)->strLectureAudioPath();
        QVERIFY(writeContent(path, "the earlier take"));
        m_program->recordNewLecture(4);
        m_program->clock.set(momentOfSaving.addMSecs(-200));

        finishLecture();

        QCOMPARE(controller().arrangedObjects().size(), 2U);
        QCOMPARE(controller().arrangedObjects().at(1)->strLectureAudioPath(), path);
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), QByteArray("a take"));
    }

    void aSaveAfterTheClockWasSetBackKeepsTheEarlierFile()
    {
        const QDateTime moment = m_program->clock.now().addSecs(100);
        for (const int later : {0, 60, 0}) { // seconds
            m_program->recordNewLecture(3);
            m_program->clock.set(moment.addSecs(later).addMSecs(-200));
            finishLecture();
        }

        const QString path = controller().arrangedObjects().at(0)->strLectureAudioPath();
        QCOMPARE(controller().arrangedObjects().at(2)->strLectureAudioPath(), path);
        QVERIFY(QFile::exists(path));
        QString kept = path;
        kept.insert(path.lastIndexOf(u'.'), u" 2"_s);
        QVERIFY(QFile::exists(kept));
    }

    void aLectureThatIsSavedAfterMidnightStandsUnderTheDayShown()
    {
        m_program->recordNewLecture(3);
        m_program->clock.advance(15h);
        QVERIFY(m_program->clock.now().date() > m_program->today().date());

        finishLecture();

        QCOMPARE(m_program->storedRows().value(0)["recordingDate"_L1], u"2024-03-05"_s);
    }

    void aTakeIsNotFoundAfterTheFormatWasChanged()
    {
        m_program->recordNewLecture(3);
        const QString take = controller().tempAudioSavePath();
        m_program->defaults.setValue(u"fileFormat"_s, 0);
        controller().setTempAudioSavePathWithFormat();

        finishLecture();

        const auto row = m_program->storedRows().value(0);
        QCOMPARE(row["audioFileFullPath"_L1], u""_s);
        QCOMPARE(row["recordDuration"_L1], u"No Audio"_s);
        QVERIFY(QFile::exists(take));
    }

    void aTakeThatCannotBeMovedIsStoredWithItsNewPathAllTheSame()
    {
        m_program->recordNewLecture(3);
        // A file where the folder should be.
        QVERIFY(QDir(controller().getAudioFolderPath()).removeRecursively());
        QVERIFY(writeContent(m_program->places.folder() + u"/Audio"_s, "in the way"));

        finishLecture();

        const auto row = m_program->storedRows().value(0);
        QVERIFY(row["audioFileFullPath"_L1].toString().contains(u"/Audio - "_s));
        QCOMPARE(row["recordDuration"_L1], u"00:00:03"_s);
        QVERIFY(QFile::exists(controller().tempAudioSavePath()));
    }

    void aLectureThatWaitsForItsSaveIsSavedBeforeTheNextOneOpens()
    {
        m_program->recordNewLecture(3);
        subject().setText(u"Optics"_s);
        m_program->windows.newLectureOutlets().BtnDoneOrClose->click();
        m_program->clock.advance(100ms);

        controller().onAddItem(nullptr);

        QCOMPARE(m_program->subjectsShown(), QStringList({u"Optics"_s}));
        QVERIFY(QFile::exists(controller().arrangedObjects().at(0)->strLectureAudioPath()));
        subject().setText(u"Acoustics"_s);
        m_program->clock.advance(1s);
        QCOMPARE(m_program->subjectsShown(), QStringList({u"Optics"_s}));
        QCOMPARE(subject().text(), u"Acoustics"_s);
    }

    void aLectureThatWaitsForItsSaveIsSavedBeforeTheProgramLeaves()
    {
        m_program->recordNewLecture(3);
        m_program->windows.newLectureOutlets().BtnDoneOrClose->click();

        controller().saveWhatWaits();
        controller().saveWhatWaits();
        m_program->clock.advance(1s);

        QCOMPARE(m_program->storedRows().size(), 1);
    }

    void withoutADatabaseTheLectureStillShows()
    {
        const auto without = programWithoutDatabase();
        without->controller.onAddItem(nullptr);

        without->finishNewLecture();

        QCOMPARE(without->subjectsShown(), QStringList({u"Untitled"_s}));
        QVERIFY(!without->controller.arrangedObjects().at(0)->hasRow());
    }

    void closingTheLectureWindowByItselfDoesNothingElse()
    {
        m_program->recordNewLecture(3);

        controller().onCloseLectureWindow(nullptr);

        QVERIFY(newNoteWindow().isHidden());
        QVERIFY(controller().bIsOnRecordingView());
        QVERIFY(QFile::exists(controller().tempAudioSavePath()));
    }

    void theNoteViewSlidesOverTheList()
    {
        const auto &main = m_program->windows.mainOutlets();
        main.newNoteView->setGeometry(0, 0, 10, 10);
        AnimationClock clock;

        controller().onDone(nullptr);
        clock.pass(790ms);
        QVERIFY(main.newNoteView->size() != main.scrollTableView->size());

        clock.pass(10ms);
        QCOMPARE(main.newNoteView->size(), main.scrollTableView->size());
        QCOMPARE(main.newNoteView->x(), 0);
        QCOMPARE(main.newNoteView->geometry().bottom() + 1, main.tableListView->height());
    }

private:
    void prepare() override
    {
        ProgramCase::prepare();
        m_program->defaults.setValue(u"fileFormat"_s, 1);
        m_program->showDay(m_program->today());
    }

    // A program whose database file is a folder.
    static std::unique_ptr<LectureProgram> programWithoutDatabase()
    {
        auto program = std::make_unique<LectureProgram>();
        QDir().mkpath(program->places.databaseFile());
        program->showDay(program->today());
        return program;
    }

    void finishLecture() { m_program->finishNewLecture(); }
    void pressClose() { m_program->windows.newLectureOutlets().btnCloseNewLecture->click(); }
    void expectControlsAsBeforeATake(const QString &pressedImage)
    {
        QVERIFY(!recording().audioLevelMeter->isHidden());
        QVERIFY(!recording().imgLevelIndicatorBG->isHidden());
        QVERIFY(!recording().lblRecordingDuration->isHidden());
        QVERIFY(recording().sliderPlayProgress2->isHidden());
        QVERIFY(recording().lblElapsedTimeTemp->isHidden());
        QVERIFY(recording().lblRemainingTimeTemp->isHidden());
        QCOMPARE(recording().btnStopRecord->image().name(), u"stop"_s);
        QCOMPARE(recording().btnStopRecord->alternateImage().name(), pressedImage);
        QCOMPARE(recording().btnStopRecord->toolTip(), u"Stop"_s);
        QCOMPARE(recording().btnStopRecord->actionName(), QByteArray("stopRecording"));
    }

    const tarvelo::audio::RecordingOutlets &recording() const
    {
        return m_program->windows.recordingOutlets();
    }
    QWidget &newNoteWindow() const { return *m_program->windows.newLectureOutlets().newNoteWindow; }
    QLineEdit &subject() const
    {
        return *m_program->windows.newLectureOutlets().txtSubjectForNewNote;
    }
    QTextEdit &notes() const { return *m_program->windows.newLectureOutlets().txtView; }
};

QTEST_MAIN(NewLectureTest)
#include "NewLectureTest.moc"
