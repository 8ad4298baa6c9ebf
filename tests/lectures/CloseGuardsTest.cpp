#include "lectures/CloseGuards.h"

#include "support/LectureProgram.h"
#include "support/TestCase.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using tarvelo::tests::FakeAlerts;
using tarvelo::tests::LectureProgram;

class CloseGuardsTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
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
        m_program = std::make_unique<LectureProgram>();
        m_program->start();
    }
    void finish() override { m_program.reset(); }

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

    std::unique_ptr<LectureProgram> m_program;
};

QTEST_MAIN(CloseGuardsTest)
#include "CloseGuardsTest.moc"
