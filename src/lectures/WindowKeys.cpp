#include "lectures/WindowKeys.h"

#include "audio/PlaybackOutlets.h"
#include "audio/RecordingOutlets.h"
#include "lectures/EditingKeys.h"
#include "lectures/LectureOutlets.h"
#include "lectures/LectureWindows.h"
#include "widgets/ImageButton.h"
#include "widgets/MouseDownTextField.h"

#include <QObject>
#include <QShortcut>
#include <QTextEdit>
#include <QWidget>

namespace tarvelo::lectures {

namespace {

void pressInTurn(widgets::ImageButton &play, widgets::ImageButton &pause)
{
    (play.isEnabled() ? play : pause).performClick(nullptr);
}

} // namespace

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
    QWidget *window = player.playAudioWindow;
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_F8})
        QObject::connect(new QShortcut(key, window), &QShortcut::activated, window, [player] {
            pressInTurn(*player.btnPlayLecture, *player.btnPauseLecture);
        });
    escapeCloses(*window);
}

} // namespace tarvelo::lectures
