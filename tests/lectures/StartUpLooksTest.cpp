#include "lectures/StartUpLooks.h"

#include "lectures/ProgramCase.h"
#include "platform/WindowLevel.h"
#include "widgets/InsertionPoint.h"
#include "widgets/MouseDownTextField.h"

using namespace Qt::StringLiterals;
using tarvelo::widgets::insertionPointColor;

// As the start-up of the controller leaves the windows.
class StartUpLooksTest final : public tarvelo::tests::ProgramCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { tarvelo::platform::installTexts(); }

    void startingWhitensTheSecondaryWindows()
    {
        for (QWidget *window : tarvelo::lectures::secondaryWindows(m_program->windows)) {
            window->setPalette(QPalette(Qt::blue));
            window->setAutoFillBackground(false);
        }

        controller().awakeFromNib();

        for (const QWidget *window : tarvelo::lectures::secondaryWindows(m_program->windows)) {
            QCOMPARE(window->palette().color(QPalette::Window), QColor(255, 255, 255));
            QVERIFY(window->autoFillBackground());
        }
    }

    void thePlayWindowIsNotOpaqueAndCanBeNeitherMinimisedNorZoomed()
    {
        QWidget &window = *m_program->windows.playAudioOutlets().playAudioWindow;
        window.setAttribute(Qt::WA_TranslucentBackground, false);
        tarvelo::platform::setWindowFlagInPlace(window, Qt::WindowMinMaxButtonsHint, true);
        tarvelo::platform::setWindowFlagInPlace(window, Qt::CustomizeWindowHint, false);

        controller().awakeFromNib();

        QVERIFY(window.windowFlags() & Qt::CustomizeWindowHint);
        QVERIFY(window.testAttribute(Qt::WA_TranslucentBackground));
        QVERIFY(!(window.windowFlags() & Qt::WindowMinMaxButtonsHint));
        QVERIFY(window.windowFlags() & Qt::WindowCloseButtonHint);
    }

    void startingWritesTheLabels()
    {
        const auto &popovers = m_program->windows.popoverOutlets();
        for (QLabel *label : {m_program->windows.newLectureOutlets().lblNotesForAdd,
                              m_program->windows.lectureViewOutlets().lblNotesForView,
                              popovers.lblRecordDeleteConfirmation, popovers.lblPopoverNoAudio,
                              m_program->windows.recordingOutlets().lblRecordingDuration})
            label->setText(u"left over"_s);

        controller().awakeFromNib();

        const QString notes = tarvelo::platform::text("LABEL_NOTES");
        QCOMPARE(m_program->windows.newLectureOutlets().lblNotesForAdd->text(), notes);
        QCOMPARE(m_program->windows.lectureViewOutlets().lblNotesForView->text(), notes);
        QCOMPARE(popovers.lblRecordDeleteConfirmation->text(),
                 tarvelo::platform::text("LABEL_CONFIRM_RECORDDELETE"));
        QCOMPARE(popovers.lblPopoverNoAudio->text(),
                 tarvelo::platform::text("MSG_NO_AUDIO_FOR_LECTURE"));
        QCOMPARE(m_program->windows.recordingOutlets().lblRecordingDuration->text(), QString());
    }

    void theInsertionPointsHaveTheirColours()
    {
        controller().awakeFromNib();

        const auto &windows = m_program->windows;
        for (const QLineEdit *field : std::initializer_list<const QLineEdit *>{
                 windows.playAudioOutlets().txtSubjectName,
                 windows.playAudioOutlets().txtCourseName,
                 windows.playAudioOutlets().txtFieldForAudio,
                 windows.editLectureOutlets().txtSubjectForEdit,
                 windows.newLectureOutlets().txtSubjectForNewNote,
                 windows.lectureViewOutlets().tSubjectName})
            QCOMPARE(insertionPointColor(*field), QColor(Qt::lightGray));
        QCOMPARE(insertionPointColor(*windows.newLectureOutlets().txtView), QColor(Qt::lightGray));
        for (const QTextEdit *view : {windows.editLectureOutlets().txtViewNotesForEdit,
                                      windows.lectureViewOutlets().tViewNoteForEdit})
            QCOMPARE(insertionPointColor(*view), view->palette().color(QPalette::WindowText));
    }

    void titlesAreRedAndNotesAreWrittenInFifteenPoints()
    {
        controller().awakeFromNib();

        const auto &windows = m_program->windows;
        for (const QWidget *button :
             {windows.newLectureOutlets().BtnDoneOrClose, windows.editLectureOutlets().btnDoneEdit,
              windows.lectureViewOutlets().btnDoneEditLecture,
              windows.lectureViewOutlets().btnSlidetoView,
              windows.lectureViewOutlets().btnSlideToListView,
              windows.newLectureOutlets().BtnCancelAddNewLecture})
            QCOMPARE(button->palette().color(QPalette::ButtonText), QColor(252, 39, 52));
        for (const QTextEdit *view :
             {windows.newLectureOutlets().txtView, windows.lectureViewOutlets().tViewNoteForEdit,
              windows.editLectureOutlets().txtViewNotesForEdit}) {
            QCOMPARE(view->font().pixelSize(), 15);
            QCOMPARE(view->textColor(), view->palette().color(QPalette::WindowText));
        }
    }
};

QTEST_MAIN(StartUpLooksTest)
#include "StartUpLooksTest.moc"
