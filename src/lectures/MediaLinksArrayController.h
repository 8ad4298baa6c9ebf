#pragma once

#include "audio/AudioFileLocations.h"
#include "audio/LeftLectures.h"
#include "audio/Playback.h"
#include "audio/RecordingControl.h"
#include "audio/RecordingWatch.h"
#include "audio/SharingAndExport.h"
#include "lectures/CloseGuards.h"
#include "lectures/DayList.h"
#include "lectures/LectureDeletion.h"
#include "lectures/LectureEditing.h"
#include "lectures/LectureJournalKeeper.h"
#include "lectures/LectureList.h"
#include "lectures/NewLecture.h"
#include "lectures/RowAction.h"
#include "lectures/TextActivity.h"
#include "lectures/TextDelegate.h"
#include "lectures/ViewChanges.h"
#include "platform/DelayedCall.h"
#include "platform/Places.h"
#include "widgets/MouseDownTextField.h"

#include <QAbstractTableModel>
#include <QVariant>
#include <QVariantList>

class QDateTime;
class QModelIndex;
class QWidget;

namespace tarvelo::engine {
class AudioEngine;
}
namespace tarvelo::platform {
class Alerts;
class Dates;
class MailComposer;
class SleepInhibitor;
class UserDefaults;
class Workspace;
} // namespace tarvelo::platform
namespace tarvelo::store {
struct GoneLectures;
class LectureDatabase;
class LectureInfoItem;
struct LecturesBack;
class Sqlite;
} // namespace tarvelo::store

namespace tarvelo::lectures {

class CustomTableCellView;
class LectureApplication;
class LectureRowHost;
class LectureTable;
class LectureWindows;
class OwedLectures;

// What the controller and its workflows work with. All of it outlives the controller.
struct LectureServices
{
    platform::Dates &dates;
    platform::Places places;
    const platform::UserDefaults &defaults;
    store::LectureDatabase &database;
    engine::AudioEngine &engine;
    platform::Alerts &alerts;
    platform::Workspace &workspace;
    platform::MailComposer &mail;
    platform::SleepInhibitor &sleep;
    // Whether the one start-up of this process has been done; whoever runs the process keeps it.
    bool &isAwake;
    // The row that a confirmation of a deletion is about, -1 at first; kept in the same way.
    int &pendingRow;
};

// The one face of the lecture windows, and the model of the lecture table, whose rows are the
// arranged objects. It owns the workflows and hands every operation on to the one whose work it is;
// it sequences what crosses several of them.
//
// - start-up: awakeFromNib, setButtonTitleColor
// - store: openDb, insertIntoDb..., updateToDoData..., deleteVoiceData
// - lists: prepareViewForDate, showList, selection, table data
// - view changes: onExpandView, goToCalendarView, viewEditView, animateRecordView
// - audio files: setTempAudioSavePathWithFormat, getAudio..., browseRecordingFolder,
//   openAudioFolderPath
// - sharing: isSupportedIniTunes, doSendMail, onExportToiTunes
// - recording: startRecording ... updateTimeDisplay
// - playing: onPlayLecture ... audioDidEndPlayingEdit
// - new lecture: onAddItem ... onClosePopoverConfirm
// - deleting: onDelete ... tableViewRowActionsForRowEdge
// - viewing and editing: onEditLecture ... controlTextDidEndEditing
// - closing: windowShouldClose ... onClosePlayAudioWindow
class MediaLinksArrayController final : public QAbstractTableModel,
                                        public TextDelegate,
                                        public widgets::MouseDownTextFieldDelegate
{
    Q_OBJECT

public:
    // `windows` must outlive the controller.
    MediaLinksArrayController(const LectureServices &services, const LectureWindows &windows);
    ~MediaLinksArrayController() override;

    // The application around the controller; none is allowed.
    void setApplication(LectureApplication *application);
    void setRowHost(LectureRowHost *host);

    // -- Start-up. The work is done once in a process; a second call does nothing. It opens no
    // database and shows no list: the first list is that of the day selected at launch.
    void awakeFromNib();
    void setButtonTitleColor();

    // -- Store
    store::Sqlite *openDb();
    void insertIntoDbwithSqlStatementWithArguments(const QString &sql,
                                                   const QVariantList &arguments);
    void updateToDoDatawithSqlStatementWithArguments(const QString &sql,
                                                     const QVariantList &arguments);
    void deleteVoiceData(const store::LectureInfoItem &lecture);

    // -- Lists. Rows count from 0.
    const LectureList &arrangedObjects() const { return m_dayList.arrangedObjects(); }
    const QDateTime &dateOfButtonClicked() const { return m_dayList.dateOfButtonClicked(); }
    // Whether the day shown takes new lectures.
    bool isDayOpen() const { return m_dayList.isDayOpen(dateOfButtonClicked()); }
    qint32 version() const { return m_version; }
    const QList<int> &selectedIndexes() const { return m_selectedIndexes; }
    const LectureList &selectedDownloads() const { return m_selectedDownloads; }
    int numberOfRowsInTableView() const { return rowCount(); }
    // None for a row that is not there.
    Lecture tableViewObjectValueForTableColumnRow(int, int row) const
    {
        return m_dayList.lectureAt(row);
    }
    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    void prepareViewForDate(const QDateTime &date);
    void showList(QWidget *sender);
    // Lectures came that nobody made just now: the marks of the days and the list that shows, a
    // day's or all, are made anew.
    void showStoredLectures();
    void setSelectedIndexes(const QList<int> &indexes);
    void setSelectedDownloads(const LectureList &lectures);

    // -- View changes
    bool bIsInEditView() const { return m_viewChanges.bIsInEditView(); }
    bool bIsInSingleEditView() const { return m_viewChanges.bIsInSingleEditView(); }
    void onExpandView(QWidget *sender);
    void goToCalendarView(QWidget *sender);
    void viewEditView(QWidget *sender);
    void animateRecordView();

    // -- Audio files
    QString getAudioFolderPath() const { return m_locations.getAudioFolderPath(); }
    QString getAudioSavePath() const { return m_locations.getAudioSavePath(); }
    const QString &tempAudioSavePath() const { return m_locations.tempAudioSavePath(); }
    void setTempAudioSavePathWithFormat() { m_locations.setTempAudioSavePathWithFormat(); }
    void browseRecordingFolder(QWidget *sender);
    // `sender` is a control in a row; from anywhere else nothing happens.
    void openAudioFolderPath(QWidget *sender);

    // -- Sharing
    bool isSupportedIniTunes(QWidget *cell) const;
    // `sender` is a control in a row; from anywhere else nothing happens.
    void doSendMail(QWidget *sender);
    void onExportToiTunes(QWidget *sender);

    // -- Recording
    const audio::RecordingControl &recordingControl() const { return m_recordingControl; }
    bool isRecordingNow() const { return m_recordingControl.isRecordingNow(); }
    void startRecording(QWidget *sender) { m_recordingControl.startRecording(sender); }
    void stopRecording(QWidget *sender) { m_recordingControl.stopRecording(sender); }
    void pauseResumeRecording(QWidget *sender) { m_recordingControl.pauseResumeRecording(sender); }
    void startStopRecording(QWidget *sender) { m_recordingControl.startStopRecording(sender); }
    void closeTake() { m_recordingControl.closeTake(); }
    void postRecordingFinished() { m_recordingControl.postRecordingFinished(); }
    void onMaxRecordingTimeReached() { m_recordingControl.onMaxRecordingTimeReached(); }
    void onSetTimeTag(QWidget *sender) { m_recordingControl.onSetTimeTag(sender); }
    void updateTimeDisplay() { m_recordingControl.updateTimeDisplay(); }

    // -- Playing
    const audio::Playback &playback() const { return m_playback; }
    // `sender` is a control in a row; from anywhere else nothing is played. A lecture without audio
    // says so in a pop-over.
    void onPlayLecture(QWidget *sender);
    void onPlayPauseLecture(QWidget *sender) { m_playback.onPlayPauseLecture(sender); }
    void onPlayPauseLectureEdit(QWidget *sender) { m_playback.onPlayPauseLectureEdit(sender); }
    void onPlaySpeedChanged(QWidget *sender) { m_playback.onPlaySpeedChanged(sender); }
    void onSetForwardOrBackward(QWidget *sender) { m_playback.onSetForwardOrBackward(sender); }
    void onSetForwardOrBackwardEdit(QWidget *sender)
    {
        m_playback.onSetForwardOrBackwardEdit(sender);
    }
    void setRemainingAndElapsedTime() { m_playback.setRemainingAndElapsedTime(); }
    void setRemainingAndElapsedTime2() { m_playback.setRemainingAndElapsedTime2(); }
    void setRemainingAndElapsedTimeEdit() { m_playback.setRemainingAndElapsedTimeEdit(); }
    void playRecordTemp(QWidget *sender) { m_playback.playRecordTemp(sender); }
    void pauseResumeRecordTemp(QWidget *sender) { m_playback.pauseResumeRecordTemp(sender); }
    void stopPlaying(QWidget *sender) { m_playback.stopPlaying(sender); }
    void stopSoundPlay() { m_playback.stopSoundPlay(); }
    void stopSoundPlayEdit() { m_playback.stopSoundPlayEdit(); }
    void updatePlayAudioLevels(QWidget *sender) { m_playback.updatePlayAudioLevels(sender); }
    void updatePlayAudioLevels2(QWidget *sender) { m_playback.updatePlayAudioLevels2(sender); }
    void updateEditAudioLevels(QWidget *sender) { m_playback.updateEditAudioLevels(sender); }
    void audioDidEndPlaying(QWidget *sender) { m_playback.audioDidEndPlaying(sender); }
    void audioDidEndPlaying2(QWidget *sender) { m_playback.audioDidEndPlaying2(sender); }
    void audioDidEndPlayingEdit(QWidget *sender) { m_playback.audioDidEndPlayingEdit(sender); }

    // -- New lecture
    bool bIsOnRecordingView() const { return m_newLecture.bIsOnRecordingView(); }
    void onAddItem(QWidget *sender) { m_newLecture.onAddItem(sender); }
    void onDoneNewLectureOrCloseWindow(QWidget *sender);
    void doSaveNewAudioInfos() { m_newLecture.doSaveNewAudioInfos(); }
    void saveWhatWaits();
    LectureJournalKeeper &journal() { return m_journal; }
    // Those of the lectures that could not be stored yet.
    OwedLectures &owedLectures() { return m_journal.owed(); }
    // What new lectures of processes that died left behind.
    audio::LeftLectures &leftLectures() { return m_left; }
    // From a copy, into the table.
    void lecturesCameBack(const store::LecturesBack &back);
    engine::AudioEngine &audioEngine() const { return m_services.engine; }
    void onCancelAddNewLecture(QWidget *sender) { m_newLecture.onCancelAddNewLecture(sender); }
    void onCloseLectureWindow(QWidget *sender) { m_newLecture.onCloseLectureWindow(sender); }
    void onDone(QWidget *sender) { m_newLecture.onDone(sender); }
    void onClosePopoverConfirm(QWidget *sender);

    // -- Deleting
    void onDelete(int row) { m_deletion.onDelete(row); }
    void onDeleteItem(QWidget *sender) { m_deletion.onDeleteItem(sender); }
    void onRemoveNotesRecord(QWidget *sender) { m_deletion.onRemoveNotesRecord(sender); }
    void onConfirmOrCancelRecordDeletion(QWidget *sender);
    QList<RowAction> tableViewRowActionsForRowEdge(LectureTable *table, int row,
                                                   RowActionEdge edge);
    bool isConfirmDeleteShowing() const { return m_deletion.isConfirmDeleteShowing(); }

    // -- Viewing and editing a stored lecture. What opens one takes a control in a row.
    const Lecture &itemEditingNow() const { return m_editing.itemEditingNow(); }
    bool bIsEditingNow() const { return m_editing.bIsEditingNow(); }
    bool bHasChangesInNote() const { return m_editing.bHasChangesInNote(); }
    bool bHasChangesInNoteTitle() const { return m_editing.bHasChangesInNoteTitle(); }
    void onEditLecture(QWidget *sender) { m_editing.onEditLecture(sender); }
    void onDoneEdit(QWidget *sender) { m_editing.onDoneEdit(sender); }
    void onCancelLectureEdit(QWidget *sender) { m_editing.onCancelLectureEdit(sender); }
    void openPlayEditWindow(QWidget *sender) { m_editing.openPlayEditWindow(sender); }
    void onDoneLectureEdit(QWidget *sender) { m_editing.onDoneLectureEdit(sender); }
    // The menu opens under the lower left corner of the sender.
    void onClickInfo(QWidget *sender);
    void mouseDownTextFieldClicked(widgets::MouseDownTextField &field) override;
    // The delegate of every text. Any edit may begin and end.
    void textDidBeginEditing(QWidget *view) override { m_editing.textDidBeginEditing(view); }
    void textDidChange(QWidget *view) override { m_editing.textDidChange(view); }
    void textDidEndEditing(QWidget *view) override { m_editing.textDidEndEditing(view); }
    bool textShouldBeginEditing(QWidget *) const { return true; }
    bool textShouldEndEditing(QWidget *) const { return true; }
    bool controlTextShouldBeginEditing(QWidget *, QWidget *) const { return true; }
    bool controlTextShouldEndEditing(QWidget *, QWidget *) const { return true; }
    void controlTextDidEndEditing(QWidget *) override {}

    // -- Closing
    bool bIsRecordingNeedPreventingQuit() const
    {
        return m_recordingControl.bIsRecordingNeedPreventingQuit();
    }
    void setBIsRecordingNeedPreventingQuit(bool need)
    {
        m_recordingControl.setBIsRecordingNeedPreventingQuit(need);
    }
    bool windowShouldClose(QWidget *window) { return m_closeGuards.windowShouldClose(window); }
    void windowWillClose(QWidget *window) { m_closeGuards.windowWillClose(window); }
    void onClosePlayAudioWindow(QWidget *sender);
    // The ends of sheets: the one takes the sheet off the screen; the other, that of the close
    // guards, does nothing, and its name is wanted as it is.
    void sheetDidEndReturnCodeContextInfo(QWidget *sheet, int returnCode, void *contextInfo);
    void alerDeletedDidEndReturnCodeContextInfo(QWidget *, int, void *) {}

private:
    void connectControls();
    void connectList();
    void connectNewLecture();
    void connectPopovers();
    void connectPlayer();
    void watchTexts();
    void wireRow(CustomTableCellView &row);
    void connectEditing();
    void wireEditing(CustomTableCellView &row);
    void becomeDelegateOfWindows();
    void tagConfirmButtons();
    void reloadData();
    void lecturesStored(bool doesListLackOne);
    void removeArrangedObject(int row);
    void lecturesHaveGone(const store::GoneLectures &gone);

    LectureServices m_services;
    const LectureWindows &m_windows;
    LectureApplication *m_application = nullptr;
    qint32 m_version = 0;
    QList<int> m_selectedIndexes;
    LectureList m_selectedDownloads;

    audio::AudioFileLocations m_locations;
    audio::Playback m_playback;
    audio::RecordingControl m_recordingControl;
    audio::RecordingWatch m_recordingWatch;
    audio::SharingAndExport m_sharing;
    DayList m_dayList;
    ViewChanges m_viewChanges;
    LectureEditing m_editing;
    TextActivity m_textActivity{*this};
    LectureDeletion m_deletion;
    audio::LeftLectures m_left;
    LectureJournalKeeper m_journal;
    NewLecture m_newLecture;
    CloseGuards m_closeGuards;
    platform::DelayedCall m_setTemporaryPath;
    platform::DelayedCall m_stopSoundPlayEdit;
    platform::DelayedCall m_stopSoundPlay;
};

} // namespace tarvelo::lectures
