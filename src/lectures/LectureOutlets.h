#pragma once

class QLabel;
class QLineEdit;
class QTextEdit;
class QWidget;

namespace tarvelo::calendar {
class CKCalendarView;
}
namespace tarvelo::widgets {
class ImageButton;
class LayerView;
class MouseDownTextField;
class PopOver;
class SlidingWindow;
} // namespace tarvelo::widgets

namespace tarvelo::lectures {

class LectureTable;

// The controls of each window, under the names that they have in its layout. All of them exist.

struct MainWindowOutlets
{
    widgets::SlidingWindow *mainWindow = nullptr;
    calendar::CKCalendarView *calendarView = nullptr;
    LectureTable *tblRecordSubjectList = nullptr;
    QWidget *tableListView = nullptr;
    QWidget *scrollTableView = nullptr;
    QWidget *newNoteView = nullptr;
    QWidget *editPlayView = nullptr;
    QWidget *weekDayView = nullptr;
    QWidget *topHorizontalLine = nullptr;
    QLabel *lblTarvelo = nullptr;
    QLabel *lblDateDisplay = nullptr;
    widgets::ImageButton *btnMainMenu = nullptr;
    widgets::ImageButton *btnAddItem = nullptr;
    widgets::ImageButton *btnDeleteItem = nullptr;
    widgets::ImageButton *btnAddNewLecture2 = nullptr;
    widgets::ImageButton *btnShowAllList = nullptr;
    widgets::ImageButton *btnFoldUpList = nullptr;
};

struct LectureViewOutlets
{
    widgets::MouseDownTextField *tSubjectName = nullptr;
    QTextEdit *tViewNoteForEdit = nullptr;
    QLabel *lblNotesForView = nullptr;
    QLabel *tEditTime = nullptr;
    QLabel *tEditDate = nullptr;
    widgets::ImageButton *btnSlidetoView = nullptr;
    widgets::ImageButton *btnSlideToListView = nullptr;
    widgets::ImageButton *btnDoneEditLecture = nullptr;
    // Takes the lecture view away without saving.
    widgets::ImageButton *btnCloseLectureView = nullptr;
};

struct NewLectureOutlets
{
    // The tags under which its buttons say how the window is left.
    static constexpr int TagDone = 0;
    static constexpr int TagClose = 1;

    QWidget *newNoteWindow = nullptr;
    QLineEdit *txtSubjectForNewNote = nullptr;
    QTextEdit *txtView = nullptr;
    QLabel *lblNotesForAdd = nullptr;
    QLabel *textTime = nullptr;
    QLabel *textDate = nullptr;
    widgets::ImageButton *BtnDoneOrClose = nullptr;
    widgets::ImageButton *btnCloseNewLecture = nullptr;
    widgets::ImageButton *BtnCancelAddNewLecture = nullptr;
    // Lies under the level meter, and has a layer of its own while a take is recorded.
    widgets::LayerView *recordAnimationView = nullptr;
};

struct EditLectureOutlets
{
    QWidget *windowEditLecture = nullptr;
    QLineEdit *txtSubjectForEdit = nullptr;
    QTextEdit *txtViewNotesForEdit = nullptr;
    QLabel *textEditTime = nullptr;
    QLabel *textEditDate = nullptr;
    widgets::ImageButton *btnDoneEdit = nullptr;
    widgets::ImageButton *btnCancelEdit = nullptr;
};

// What the play window has besides the controls of its player.
struct PlayAudioOutlets
{
    QWidget *playAudioWindow = nullptr;
    QLineEdit *txtSubjectName = nullptr;
    QLineEdit *txtCourseName = nullptr;
    QLineEdit *txtFieldForAudio = nullptr;
    widgets::ImageButton *btnClosePlayAudio = nullptr;
};

// The two pop-overs and what they show.
struct PopoverOutlets
{
    // The tags of the answers to the question whether to delete.
    static constexpr int TagNo = 0;
    static constexpr int TagYes = 1;

    widgets::PopOver *popoverAudioConfirmClose = nullptr;
    widgets::PopOver *popoverConfirmRecordDelete = nullptr;
    QLabel *lblRecordDeleteConfirmation = nullptr;
    QLabel *lblPopoverNoAudio = nullptr;
    widgets::ImageButton *btnConfirmNo = nullptr;
    widgets::ImageButton *btnConfirmYes = nullptr;
    // Closes the pop-over about a lecture without audio.
    widgets::ImageButton *btnClosePopover = nullptr;
};

} // namespace tarvelo::lectures
