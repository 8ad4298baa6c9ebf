#include "lectures/MediaLinksArrayController.h"

#include "audio/RecordingOutlets.h"
#include "lectures/CustomTableCellView.h"
#include "lectures/LectureTable.h"
#include "lectures/LectureWindows.h"
#include "lectures/RowAction.h"
#include "widgets/ImageButton.h"
#include "widgets/SlidingWindow.h"

#include <functional>
#include <utility>

namespace tarvelo::lectures {

using widgets::ImageButton;

namespace {

void wire(ImageButton *button, const char *name, std::function<void(QWidget *)> run)
{
    button->setAction({name, std::move(run)});
}

} // namespace

void MediaLinksArrayController::connectControls()
{
    m_closeGuards.guard(m_windows.mainWindow());
    connectList();
    connectNewLecture();
    connectPopovers();
    connectPlayer();
    connectEditing();
    watchTexts();
}

void MediaLinksArrayController::connectList()
{
    const MainWindowOutlets &main = m_windows.mainOutlets();
    wire(main.btnShowAllList, "showList", [this](QWidget *sender) { showList(sender); });
    LectureTable &table = *main.tblRecordSubjectList;
    connect(&table, &LectureTable::rowViewMade, this,
            [this](CustomTableCellView *row) { wireRow(*row); });
    connect(&table, &LectureTable::selectionChanged, this,
            &MediaLinksArrayController::setSelectedIndexes);
    table.setRowActions([this, &table](int row, RowActionEdge edge) {
        return tableViewRowActionsForRowEdge(&table, row, edge);
    });
    table.setModel(this);
}

void MediaLinksArrayController::connectNewLecture()
{
    const auto add = [this](QWidget *sender) { onAddItem(sender); };
    wire(m_windows.mainOutlets().btnAddItem, "onAddItem", add);
    wire(m_windows.mainOutlets().btnAddNewLecture2, "onAddItem", add);

    const audio::RecordingOutlets &recording = m_windows.recordingOutlets();
    wire(recording.btnStartRecord, "startRecording",
         [this](QWidget *sender) { startRecording(sender); });
    wire(recording.btnStopRecord, "stopRecording",
         [this](QWidget *sender) { stopRecording(sender); });
    wire(recording.btnPauseResumeRecording, "pauseResumeRecording",
         [this](QWidget *sender) { pauseResumeRecording(sender); });
    wire(recording.btnStartStopRecording, "startStopRecording",
         [this](QWidget *sender) { startStopRecording(sender); });
    wire(recording.btnTimeTag, "onSetTimeTag", [this](QWidget *sender) { onSetTimeTag(sender); });

    const NewLectureOutlets &newLecture = m_windows.newLectureOutlets();
    const auto end = [this](QWidget *sender) { onDoneNewLectureOrCloseWindow(sender); };
    wire(newLecture.BtnDoneOrClose, "onDoneNewLectureOrCloseWindow", end);
    wire(newLecture.btnCloseNewLecture, "onDoneNewLectureOrCloseWindow", end);
    wire(newLecture.BtnCancelAddNewLecture, "onCancelAddNewLecture",
         [this](QWidget *sender) { onCancelAddNewLecture(sender); });
}

void MediaLinksArrayController::connectPopovers()
{
    const PopoverOutlets &popovers = m_windows.popoverOutlets();
    wire(popovers.btnClosePopover, "onClosePopoverConfirm",
         [this](QWidget *sender) { onClosePopoverConfirm(sender); });
    for (ImageButton *button : {popovers.btnConfirmNo, popovers.btnConfirmYes})
        wire(button, "onConfirmOrCancelRecordDeletion",
             [this](QWidget *sender) { onConfirmOrCancelRecordDeletion(sender); });
}

void MediaLinksArrayController::watchTexts()
{
    m_textActivity.watch(*m_windows.newLectureOutlets().txtSubjectForNewNote);
    m_textActivity.watch(*m_windows.newLectureOutlets().txtView);
    m_textActivity.watch(*m_windows.editLectureOutlets().txtSubjectForEdit);
    m_textActivity.watch(*m_windows.editLectureOutlets().txtViewNotesForEdit);
    m_textActivity.watch(*m_windows.lectureViewOutlets().tSubjectName);
    m_textActivity.watch(*m_windows.lectureViewOutlets().tViewNoteForEdit);
}

void MediaLinksArrayController::wireRow(CustomTableCellView &row)
{
    row.btnPlay()->setAction({"onPlayLecture", [this](QWidget *sender) { onPlayLecture(sender); }});
    wireEditing(row);
    row.btnBrowse()->setAction(
        {"openAudioFolderPath", [this](QWidget *sender) { openAudioFolderPath(sender); }});
    row.btnEmail()->setAction({"doSendMail", [this](QWidget *sender) { doSendMail(sender); }});
    row.btnExport()->setAction(
        {"onExportToiTunes", [this](QWidget *sender) { onExportToiTunes(sender); }});
    row.btnDelete()->setAction(
        {"onRemoveNotesRecord", [this](QWidget *sender) { onRemoveNotesRecord(sender); }});
}

} // namespace tarvelo::lectures
