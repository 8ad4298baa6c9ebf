#include "lectures/MediaLinksArrayController.h"

#include "audio/RecordingOutlets.h"
#include "calendar/CKCalendarView.h"
#include "lectures/LectureOutlets.h"
#include "lectures/LectureTable.h"
#include "lectures/LectureWindows.h"
#include "platform/Fonts.h"
#include "platform/Texts.h"
#include "platform/WindowLevel.h"
#include "widgets/ImageButton.h"
#include "widgets/InsertionPoint.h"
#include "widgets/SlidingWindow.h"

#include <QColor>
#include <QFont>
#include <QLabel>
#include <QPalette>
#include <QTextEdit>
#include <QWidget>

#include <chrono>
#include <initializer_list>

using namespace std::chrono_literals;

namespace tarvelo::lectures {

using platform::text;
using widgets::ImageButton;

namespace {

constexpr auto PathAfterStart = 500ms;

// There is no such number on Linux; it stands for a system on which everything is there.
constexpr qint32 SystemVersion = 0x1080;

const QColor Accent(252, 39, 52);

QColor labelColor(const QWidget &view)
{
    return view.palette().color(QPalette::WindowText);
}

QColor disabledControlTextColor(const QWidget &view)
{
    return view.palette().color(QPalette::Disabled, QPalette::Text);
}

void recolourTitle(ImageButton &button)
{
    QPalette palette = button.palette();
    palette.setColor(QPalette::ButtonText, Accent);
    button.setPalette(palette);
}

} // namespace

// One line a step: later ones build on earlier ones, as the folders on the emptied path.
void MediaLinksArrayController::awakeFromNib()
{
    if (m_services.isAwake)
        return;
    m_services.isAwake = true;

    m_recordingControl.resetPauses();
    m_locations.clearTempAudioSavePath();
    m_version = SystemVersion;
    m_viewChanges.reset();
    platform::setWindowLevel(m_windows.mainWindow(), platform::NormalWindowLevel);
    setBackgroundColors();
    becomeDelegateOfWindows();
    dressPlayAudioWindow();
    setLabels();
    m_selectedIndexes = {};
    m_windows.mainOutlets().tblRecordSubjectList->setSelectionHighlightStyle(
        LectureTable::SelectionHighlightStyle::None);
    setTypingAttributes();
    m_locations.createFolders();
    m_journal.start();
    if (m_journal.ownsUsualPlace())
        m_locations.removeReserveLeft();
    setInsertionPointColors();
    m_windows.recordingOutlets().lblRecordingDuration->setText(QString());
    m_recordingControl.showTimeOfDay();
    m_recordingControl.startDisplayTimer();
    m_recordingControl.showDate();
    m_windows.mainOutlets().calendarView->layoutSubviews();
    tagConfirmButtons();
    m_playback.resetRate();
    setButtonTitleColor();
    m_setTemporaryPath.schedule(PathAfterStart);
}

std::array<QWidget *, 3> MediaLinksArrayController::secondaryWindows() const
{
    return {m_windows.newLectureOutlets().newNoteWindow,
            m_windows.editLectureOutlets().windowEditLecture,
            m_windows.playAudioOutlets().playAudioWindow};
}

void MediaLinksArrayController::setBackgroundColors()
{
    for (QWidget *window : secondaryWindows()) {
        QPalette palette = window->palette();
        palette.setColor(QPalette::Window, Qt::white);
        window->setPalette(palette);
        window->setAutoFillBackground(true);
    }
}

void MediaLinksArrayController::becomeDelegateOfWindows()
{
    for (QWidget *window : secondaryWindows())
        m_closeGuards.guard(*window);
}

void MediaLinksArrayController::dressPlayAudioWindow()
{
    QWidget &window = *m_windows.playAudioOutlets().playAudioWindow;
    window.setAttribute(Qt::WA_TranslucentBackground);
    platform::setWindowFlagInPlace(window, Qt::CustomizeWindowHint, true);
    platform::setWindowFlagInPlace(window, Qt::WindowMinMaxButtonsHint, false);
}

void MediaLinksArrayController::setLabels()
{
    const PopoverOutlets &popovers = m_windows.popoverOutlets();
    m_windows.newLectureOutlets().lblNotesForAdd->setText(text("LABEL_NOTES"));
    m_windows.lectureViewOutlets().lblNotesForView->setText(text("LABEL_NOTES"));
    popovers.lblRecordDeleteConfirmation->setText(text("LABEL_CONFIRM_RECORDDELETE"));
    popovers.lblPopoverNoAudio->setText(text("MSG_NO_AUDIO_FOR_LECTURE"));
}

// Typing goes on in these colours, whatever colour the text before it has.
void MediaLinksArrayController::setTypingAttributes()
{
    QTextEdit &notes = *m_windows.newLectureOutlets().txtView;
    notes.setTextColor(disabledControlTextColor(notes));
    for (QTextEdit *view : {m_windows.editLectureOutlets().txtViewNotesForEdit,
                            m_windows.lectureViewOutlets().tViewNoteForEdit})
        view->setTextColor(labelColor(*view));
}

void MediaLinksArrayController::setInsertionPointColors()
{
    const PlayAudioOutlets &play = m_windows.playAudioOutlets();
    for (QLineEdit *field : std::initializer_list<QLineEdit *>{
             play.txtSubjectName, play.txtCourseName,
             m_windows.editLectureOutlets().txtSubjectForEdit,
             m_windows.newLectureOutlets().txtSubjectForNewNote, play.txtFieldForAudio,
             m_windows.lectureViewOutlets().tSubjectName})
        widgets::setInsertionPointColor(*field, Qt::lightGray);
    widgets::setInsertionPointColor(*m_windows.newLectureOutlets().txtView, Qt::lightGray);
    for (QTextEdit *view : {m_windows.editLectureOutlets().txtViewNotesForEdit,
                            m_windows.lectureViewOutlets().tViewNoteForEdit})
        widgets::setInsertionPointColor(*view, labelColor(*view));
}

void MediaLinksArrayController::tagConfirmButtons()
{
    m_windows.popoverOutlets().btnConfirmNo->setTag(PopoverOutlets::TagNo);
    m_windows.popoverOutlets().btnConfirmYes->setTag(PopoverOutlets::TagYes);
}

void MediaLinksArrayController::setButtonTitleColor()
{
    const QFont font = platform::fontNamed(QStringLiteral("Helvetica Neue Medium"), 15);
    for (QTextEdit *view :
         {m_windows.newLectureOutlets().txtView, m_windows.lectureViewOutlets().tViewNoteForEdit,
          m_windows.editLectureOutlets().txtViewNotesForEdit}) {
        view->setFont(font);
        view->setTextColor(labelColor(*view));
    }
    const LectureViewOutlets &lectureView = m_windows.lectureViewOutlets();
    for (ImageButton *button :
         {m_windows.newLectureOutlets().BtnDoneOrClose, m_windows.editLectureOutlets().btnDoneEdit,
          lectureView.btnDoneEditLecture, lectureView.btnSlidetoView,
          lectureView.btnSlideToListView, m_windows.newLectureOutlets().BtnCancelAddNewLecture})
        recolourTitle(*button);
}

} // namespace tarvelo::lectures
