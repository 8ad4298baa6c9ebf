#include "lectures/CloseGuards.h"

#include "lectures/CustomTableCellView.h"
#include "lectures/ProgramCase.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using tarvelo::tests::aLecture;
using tarvelo::tests::FakeAlerts;

class CloseGuardsTest final : public tarvelo::tests::ProgramCase
{
    Q_OBJECT

private Q_SLOTS:
    // What each window does when it is asked to close, for every combination of what may be
    // pending. "out": it is taken off the screen and closes; a sheet's message: it stays.
    void everyWindowAsksTheFlagsInAFixedOrder_data()
    {
        QTest::addColumn<bool>("recording");
        QTest::addColumn<bool>("saved");
        QTest::addColumn<bool>("open");
        QTest::addColumn<bool>("changed");
        QTest::addColumn<QStringList>("outcomes"); // main, new lecture, edit, play, any other

        const QString runs = u"Recording is on process!"_s;
        const QString waits = u"There is a record that needs to be saved!"_s;
        const QString edited = u"Lecture has been edited!"_s;
        const QString changed = u"Lecture has been changed!"_s;
        const QString out = u"out"_s;
        const QString closes = u"closes"_s;
        const QString stays = u"stays"_s;
        const auto row = [](const char *name, int flags, const QStringList &outcomes) {
            QTest::newRow(name) << bool(flags & 8) << bool(flags & 4) << bool(flags & 2)
                                << bool(flags & 1) << outcomes;
        };
        row("nothing", 0b0000, {out, out, out, closes, closes});
        row("changed", 0b0001, {closes, edited, changed, closes, stays});
        row("open", 0b0010, {closes, closes, stays, closes, stays});
        row("open, changed", 0b0011, {closes, edited, changed, closes, stays});
        row("saved", 0b0100, {out, out, out, closes, closes});
        row("saved, changed", 0b0101, {closes, waits, changed, closes, stays});
        row("saved, open", 0b0110, {closes, waits, stays, closes, stays});
        row("saved, open, changed", 0b0111, {closes, waits, changed, closes, stays});
        row("recording", 0b1000, {closes, runs, stays, closes, stays});
        row("recording, changed", 0b1001, {closes, runs, changed, closes, stays});
        row("recording, open", 0b1010, {closes, runs, stays, closes, stays});
        row("recording, open, changed", 0b1011, {closes, runs, changed, closes, stays});
        row("recording, saved", 0b1100, {closes, runs, stays, closes, stays});
        row("recording, saved, changed", 0b1101, {closes, runs, changed, closes, stays});
        row("recording, saved, open", 0b1110, {closes, runs, stays, closes, stays});
        row("all", 0b1111, {closes, runs, changed, closes, stays});
    }
    void everyWindowAsksTheFlagsInAFixedOrder()
    {
        QFETCH(bool, recording);
        QFETCH(bool, saved);
        QFETCH(bool, open);
        QFETCH(bool, changed);
        QFETCH(QStringList, outcomes);
        QWidget other;
        arrange(recording, saved, open, changed);

        const QList<QWidget *> windows{&mainWindow(), &newNoteWindow(), &windowEditLecture(),
                                       &playAudioWindow(), &other};
        for (qsizetype i = 0; i < windows.size(); ++i)
            QCOMPARE(outcomeOfClosing(*windows[i]), outcomes[i]);
    }

    void withNothingPendingTheMainWindowIsTakenOffTheScreenAndCloses()
    {
        mainWindow().show();

        QVERIFY(shouldClose(mainWindow()));

        QVERIFY(mainWindow().isHidden());
        QVERIFY(m_program->alerts.sheets.isEmpty());
    }

    void withNothingPendingTheSecondaryWindowsCloseToo()
    {
        newNoteWindow().show();
        windowEditLecture().show();
        playAudioWindow().show();

        QVERIFY(shouldClose(newNoteWindow()));
        QVERIFY(shouldClose(windowEditLecture()));
        QVERIFY(shouldClose(playAudioWindow()));

        QVERIFY(newNoteWindow().isHidden());
        QVERIFY(windowEditLecture().isHidden());
        // It goes only as it closes.
        QVERIFY(!playAudioWindow().isHidden());
    }

    void withNothingPendingAnyOtherWindowCloses()
    {
        QWidget other;
        other.show();

        QVERIFY(shouldClose(other));

        QVERIFY(other.isVisible());
    }

    void withANewLectureOpenTheMainWindowClosesAndIsNotTakenOffTheScreenHere()
    {
        mainWindow().show();
        m_program->controller.onAddItem(nullptr);

        QVERIFY(shouldClose(mainWindow()));

        QVERIFY(mainWindow().isVisible());
    }

    void anUntouchedNewLectureCloses()
    {
        m_program->controller.onAddItem(nullptr);

        QVERIFY(shouldClose(newNoteWindow()));

        QVERIFY(m_program->alerts.sheets.isEmpty());
    }

    void aRunningTakeKeepsTheNewLectureWindow()
    {
        m_program->controller.onAddItem(nullptr);
        m_program->controller.startRecording(nullptr);

        QVERIFY(!shouldClose(newNoteWindow()));

        QCOMPARE(m_program->alerts.sheets.size(), 1);
        const FakeAlerts::Sheet &sheet = m_program->alerts.sheets[0];
        QCOMPARE(sheet.message, u"Recording is on process!"_s);
        QCOMPARE(sheet.button, u"Ok"_s);
        QCOMPARE(sheet.informativeText, u"Please click Done to save or Cancel to exit."_s);
        QCOMPARE(sheet.window, &newNoteWindow());
    }

    void theEndOfAGuardsSheetChangesNothing()
    {
        m_program->recordNewLecture(3);
        QVERIFY(!shouldClose(newNoteWindow()));

        m_program->alerts.sheets[0].didEnd(1);

        QVERIFY(newNoteWindow().isVisible());
        QVERIFY(m_program->controller.bIsOnRecordingView());
    }

    void aTakeThatWaitsKeepsTheNewLectureWindow()
    {
        m_program->recordNewLecture(3);

        QVERIFY(!shouldClose(newNoteWindow()));

        QCOMPARE(m_program->alerts.lastMessage(), u"There is a record that needs to be saved!"_s);
    }

    void typedTextKeepsTheNewLectureWindow()
    {
        m_program->controller.onAddItem(nullptr);
        QTest::keyClicks(m_program->windows.newLectureOutlets().txtSubjectForNewNote, u"Optics"_s);

        QVERIFY(!shouldClose(newNoteWindow()));

        QCOMPARE(m_program->alerts.lastMessage(), u"Lecture has been edited!"_s);
    }

    void aRunningTakeIsNamedBeforeTypedText()
    {
        m_program->recordNewLecture(3);
        QTest::keyClicks(m_program->windows.newLectureOutlets().txtSubjectForNewNote, u"Optics"_s);
        QVERIFY(!shouldClose(newNoteWindow()));
        QCOMPARE(m_program->alerts.lastMessage(), u"There is a record that needs to be saved!"_s);

        m_program->controller.startRecording(nullptr);

        QVERIFY(!shouldClose(newNoteWindow()));
        QCOMPARE(m_program->alerts.lastMessage(), u"Recording is on process!"_s);
    }

    void typingInTheEditWindowKeepsIt()
    {
        windowEditLecture().show();
        QTest::keyClicks(m_program->windows.editLectureOutlets().txtSubjectForEdit, u"Optics"_s);

        QVERIFY(!shouldClose(windowEditLecture()));

        const FakeAlerts::Sheet &sheet = m_program->alerts.sheets.value(0);
        QCOMPARE(sheet.message, u"Lecture has been changed!"_s);
        QCOMPARE(sheet.button, u"Ok"_s);
        QCOMPARE(sheet.informativeText, u"Please click Done to save and exit."_s);
        QCOMPARE(sheet.window, &windowEditLecture());
        QVERIFY(windowEditLecture().isVisible());
    }

    void aTakeElsewhereKeepsAnUntouchedEditWindowWithoutAWord()
    {
        windowEditLecture().show();
        m_program->controller.onAddItem(nullptr);
        m_program->controller.startRecording(nullptr);

        QVERIFY(!shouldClose(windowEditLecture()));

        QVERIFY(windowEditLecture().isVisible());
        QVERIFY(m_program->alerts.sheets.isEmpty());
    }

    void thePlayWindowAlwaysCloses()
    {
        m_program->controller.onAddItem(nullptr);
        m_program->controller.startRecording(nullptr);

        QVERIFY(shouldClose(playAudioWindow()));

        QVERIFY(m_program->alerts.sheets.isEmpty());
    }

    void anyOtherWindowStaysWhileSomethingIsPending()
    {
        QWidget other;
        m_program->controller.onAddItem(nullptr);

        QVERIFY(!shouldClose(other));
    }

    void aNewLectureWindowThatClosesDiscardsItsTake()
    {
        m_program->recordNewLecture(3);
        const QString take = m_program->controller.tempAudioSavePath();
        QVERIFY(QFile::exists(take));

        m_program->controller.windowWillClose(&newNoteWindow());

        QVERIFY(!QFile::exists(take));
        QVERIFY(!m_program->controller.bIsOnRecordingView());
        QVERIFY(!m_program->controller.recordingControl().bIsRecordingSaved());
    }

    void anEditWindowThatClosesForgetsItsTexts()
    {
        windowEditLecture().show();
        QLineEdit &subject = *m_program->windows.editLectureOutlets().txtSubjectForEdit;
        QTest::keyClicks(&subject, u"Optics"_s);

        m_program->controller.windowWillClose(&windowEditLecture());

        QVERIFY(windowEditLecture().isHidden());
        QCOMPARE(subject.text(), QString());
        QVERIFY(!m_program->controller.bHasChangesInNote());
        QVERIFY(!m_program->controller.bHasChangesInNoteTitle());
    }

    void anEditWindowThatIsClosedFromItsTitleBarEndsTheEdit()
    {
        aLecture().insertInto(m_program->database);
        m_program->showDay(m_program->today());
        auto &table = *m_program->windows.mainOutlets().tblRecordSubjectList;
        m_program->controller.onEditLecture(
            table.viewAtColumnRowMakeIfNecessary(0, 0, true)->btnEdit());

        QVERIFY(windowEditLecture().close());

        QVERIFY(!m_program->controller.bIsEditingNow());
        QCOMPARE(m_program->windows.editLectureOutlets().txtViewNotesForEdit->toPlainText(),
                 QString());
    }

    void anIdlePlayWindowClosesFromItsTitleBar()
    {
        playAudioWindow().show();

        QVERIFY(playAudioWindow().close());

        QVERIFY(playAudioWindow().isHidden());
        QVERIFY(m_program->alerts.sheets.isEmpty());
    }

    void anyOtherWindowThatClosesCancelsNothing()
    {
        QWidget other;
        m_program->recordNewLecture(3);

        m_program->controller.windowWillClose(&other);
        m_program->controller.windowWillClose(nullptr);

        QVERIFY(m_program->controller.bIsOnRecordingView());
        QVERIFY(m_program->controller.recordingControl().bIsRecordingSaved());
    }

    void theEndOfASheetTakesItOffTheScreenWhateverItsCode()
    {
        for (const int code : {0, 1, -1}) {
            QWidget sheet;
            sheet.show();

            m_program->controller.sheetDidEndReturnCodeContextInfo(&sheet, code, nullptr);

            QVERIFY(sheet.isHidden());
        }
        m_program->controller.sheetDidEndReturnCodeContextInfo(nullptr, 1, nullptr);
    }

    void whetherARecordingPreventsQuittingIsKeptForWhoAsks()
    {
        QVERIFY(!m_program->controller.bIsRecordingNeedPreventingQuit());

        m_program->controller.setBIsRecordingNeedPreventingQuit(true);

        QVERIFY(m_program->controller.bIsRecordingNeedPreventingQuit());
    }

    void aPlayWindowThatClosesStopsWhatPlaysAMomentLater()
    {
        m_program->recordNewLecture(3);
        m_program->windows.recordingOutlets().btnStopRecord->click();
        m_program->engine.takeAsked();

        m_program->controller.windowWillClose(&playAudioWindow());

        QVERIFY(m_program->engine.takeAsked().isEmpty());
        m_program->clock.advance(200ms);
        QCOMPARE(m_program->engine.takeAsked(), QStringList({u"player stop"_s}));
    }

    void theMainWindowClosesWithoutCancellingAnything()
    {
        m_program->recordNewLecture(3);

        m_program->controller.windowWillClose(&mainWindow());

        QVERIFY(m_program->controller.bIsOnRecordingView());
        QVERIFY(QFile::exists(m_program->controller.tempAudioSavePath()));
    }

    void closingFromTheTitleBarAsksFirst()
    {
        m_program->recordNewLecture(3);

        QVERIFY(!newNoteWindow().close());

        QVERIFY(newNoteWindow().isVisible());
        QCOMPARE(m_program->alerts.sheets.size(), 1);
    }

    void closingFromTheTitleBarCancels()
    {
        m_program->controller.onAddItem(nullptr);

        QVERIFY(newNoteWindow().close());

        QVERIFY(newNoteWindow().isHidden());
        QVERIFY(!m_program->controller.bIsOnRecordingView());
    }

private:
    void prepare() override
    {
        ProgramCase::prepare();
        m_program->start();
    }

    // Sets exactly these flags.
    void arrange(bool recording, bool saved, bool open, bool changed)
    {
        auto &controller = m_program->controller;
        if (open)
            controller.onAddItem(nullptr);
        if (saved) {
            controller.startRecording(nullptr);
            m_program->engine.recordedSeconds = 3;
            controller.stopRecording(nullptr);
            m_program->clock.advance(500ms);
        }
        if (recording)
            controller.startRecording(nullptr);
        if (changed)
            controller.textDidChange(nullptr);
        QCOMPARE(controller.recordingControl().recording(), recording);
        QCOMPARE(controller.recordingControl().bIsRecordingSaved(), saved);
        QCOMPARE(controller.bIsOnRecordingView(), open);
        QCOMPARE(controller.bHasChangesInNoteTitle(), changed);
    }
    QString outcomeOfClosing(QWidget &window)
    {
        window.show();
        m_program->alerts.sheets.clear();
        const bool closes = shouldClose(window);
        if (!m_program->alerts.sheets.isEmpty())
            return closes ? u"a sheet on a window that closes"_s : m_program->alerts.lastMessage();
        if (window.isHidden())
            return closes ? u"out"_s : u"hidden and kept"_s;
        return closes ? u"closes"_s : u"stays"_s;
    }

    bool shouldClose(QWidget &window) const
    {
        return m_program->controller.windowShouldClose(&window);
    }
    QWidget &mainWindow() const { return m_program->windows.mainWindow(); }
    QWidget &newNoteWindow() const { return *m_program->windows.newLectureOutlets().newNoteWindow; }
    QWidget &windowEditLecture() const
    {
        return *m_program->windows.editLectureOutlets().windowEditLecture;
    }
    QWidget &playAudioWindow() const
    {
        return *m_program->windows.playAudioOutlets().playAudioWindow;
    }
};

QTEST_MAIN(CloseGuardsTest)
#include "CloseGuardsTest.moc"
