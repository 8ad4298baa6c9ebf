#include "lectures/StartUpLooks.h"

#include "lectures/Dressing.h"
#include "lectures/LectureWindows.h"
#include "platform/Texts.h"
#include "platform/WindowLevel.h"
#include "widgets/Colours.h"
#include "widgets/Faces.h"
#include "widgets/ImageButton.h"
#include "widgets/InsertionPoint.h"
#include "widgets/MouseDownTextField.h"

#include <QColor>
#include <QFont>
#include <QLabel>
#include <QPalette>
#include <QTextEdit>
#include <QWidget>

#include <initializer_list>

namespace tarvelo::lectures {

using platform::text;
using widgets::ImageButton;

namespace {

QColor labelColor(const QWidget &view)
{
    return view.palette().color(QPalette::WindowText);
}

QColor disabledControlTextColor(const QWidget &view)
{
    return view.palette().color(QPalette::Disabled, QPalette::Text);
}

} // namespace

std::array<QWidget *, 3> secondaryWindows(const LectureWindows &windows)
{
    return {windows.newLectureOutlets().newNoteWindow,
            windows.editLectureOutlets().windowEditLecture,
            windows.playAudioOutlets().playAudioWindow};
}

void setBackgroundColors(const LectureWindows &windows)
{
    for (QWidget *window : secondaryWindows(windows))
        fill(*window, Qt::white);
}

void dressPlayAudioWindow(const LectureWindows &windows)
{
    QWidget &window = *windows.playAudioOutlets().playAudioWindow;
    window.setAttribute(Qt::WA_TranslucentBackground);
    platform::setWindowFlagInPlace(window, Qt::CustomizeWindowHint, true);
    platform::setWindowFlagInPlace(window, Qt::WindowMinMaxButtonsHint, false);
}

void setLabels(const LectureWindows &windows)
{
    const PopoverOutlets &popovers = windows.popoverOutlets();
    windows.newLectureOutlets().lblNotesForAdd->setText(text("LABEL_NOTES"));
    windows.lectureViewOutlets().lblNotesForView->setText(text("LABEL_NOTES"));
    popovers.lblRecordDeleteConfirmation->setText(text("LABEL_CONFIRM_RECORDDELETE"));
    popovers.lblPopoverNoAudio->setText(text("MSG_NO_AUDIO_FOR_LECTURE"));
}

// Typing goes on in these colours, whatever colour the text before it has.
void setTypingAttributes(const LectureWindows &windows)
{
    QTextEdit &notes = *windows.newLectureOutlets().txtView;
    notes.setTextColor(disabledControlTextColor(notes));
    for (QTextEdit *view : {windows.editLectureOutlets().txtViewNotesForEdit,
                            windows.lectureViewOutlets().tViewNoteForEdit})
        view->setTextColor(labelColor(*view));
}

void setInsertionPointColors(const LectureWindows &windows)
{
    const PlayAudioOutlets &play = windows.playAudioOutlets();
    for (QLineEdit *field : std::initializer_list<QLineEdit *>{
             play.txtSubjectName, play.txtCourseName,
             windows.editLectureOutlets().txtSubjectForEdit,
             windows.newLectureOutlets().txtSubjectForNewNote, play.txtFieldForAudio,
             windows.lectureViewOutlets().tSubjectName})
        widgets::setInsertionPointColor(*field, Qt::lightGray);
    widgets::setInsertionPointColor(*windows.newLectureOutlets().txtView, Qt::lightGray);
    for (QTextEdit *view : {windows.editLectureOutlets().txtViewNotesForEdit,
                            windows.lectureViewOutlets().tViewNoteForEdit})
        widgets::setInsertionPointColor(*view, labelColor(*view));
}

void setButtonTitleColor(const LectureWindows &windows)
{
    const QFont font = widgets::fixedFace(15);
    for (QTextEdit *view :
         {windows.newLectureOutlets().txtView, windows.lectureViewOutlets().tViewNoteForEdit,
          windows.editLectureOutlets().txtViewNotesForEdit}) {
        view->setFont(font);
        view->setTextColor(labelColor(*view));
    }
    const LectureViewOutlets &lectureView = windows.lectureViewOutlets();
    for (ImageButton *button :
         {windows.newLectureOutlets().BtnDoneOrClose, windows.editLectureOutlets().btnDoneEdit,
          lectureView.btnDoneEditLecture, lectureView.btnSlidetoView,
          lectureView.btnSlideToListView, windows.newLectureOutlets().BtnCancelAddNewLecture})
        widgets::setColour(*button, QPalette::ButtonText, widgets::Red);
}

} // namespace tarvelo::lectures
