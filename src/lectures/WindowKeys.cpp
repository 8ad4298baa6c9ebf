#include "lectures/WindowKeys.h"

#include "lectures/EditingKeys.h"
#include "lectures/LectureWindows.h"
#include "widgets/MouseDownTextField.h"

#include <Qt>

namespace tarvelo::lectures {

void connectEditingKeys(const LectureWindows &windows)
{
    const NewLectureOutlets &newLecture = windows.newLectureOutlets();
    recordWithKeys(windows.recordingOutlets());
    doneWithControlReturn(*newLecture.newNoteWindow, *newLecture.BtnDoneOrClose);
    returnGoesOnToNotes(*newLecture.txtSubjectForNewNote, *newLecture.txtView);
    escapeCloses(*newLecture.newNoteWindow);

    const EditLectureOutlets &edit = windows.editLectureOutlets();
    doneWithControlReturn(*edit.windowEditLecture, *edit.btnDoneEdit);
    returnGoesOnToNotes(*edit.txtSubjectForEdit, *edit.txtViewNotesForEdit);
    escapeCloses(*edit.windowEditLecture);

    const LectureViewOutlets &view = windows.lectureViewOutlets();
    QWidget &pane = *windows.mainOutlets().editPlayView;
    doneWithControlReturn(pane, *view.btnDoneEditLecture);
    returnGoesOnToNotes(*view.tSubjectName, *view.tViewNoteForEdit);
    const audio::EditPlayerOutlets &player = windows.editPlayerOutlets();
    playAndPauseWithF8(pane, *player.bPlay, *player.bPause);
}

void connectPlayingKeys(const audio::LecturePlayerOutlets &player)
{
    QWidget &window = *player.playAudioWindow;
    playAndPauseWithF8(window, *player.btnPlayLecture, *player.btnPauseLecture, {Qt::Key_Space});
    escapeCloses(window);
}

} // namespace tarvelo::lectures
