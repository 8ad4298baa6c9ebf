#include "lectures/MediaLinksArrayController.h"

#include "calendar/CKCalendarView.h"
#include "lectures/LectureApplication.h"
#include "lectures/LectureTable.h"
#include "lectures/LectureWindows.h"
#include "lectures/OwedLectures.h"
#include "lectures/RowLookup.h"
#include "platform/Dates.h"
#include "platform/DiskRoom.h"
#include "platform/Workspace.h"
#include "store/LectureDatabase.h"
#include "store/LectureInfoItem.h"
#include "widgets/LayerView.h"
#include "widgets/PopOver.h"
#include "widgets/SlidingWindow.h"

#include <QDateTime>
#include <QModelIndex>
#include <QUrl>
#include <QWidget>

#include <chrono>

using namespace std::chrono_literals;

namespace tarvelo::lectures {

namespace {

constexpr auto StopAfterChange = 200ms;

} // namespace

MediaLinksArrayController::MediaLinksArrayController(const LectureServices &services,
                                                     const LectureWindows &windows)
    : m_services(services)
    , m_windows(windows)
    , m_locations(services.places, services.defaults, services.dates)
    , m_playback(
          services.engine, m_locations,
          {windows.recordingOutlets(), windows.lecturePlayerOutlets(), windows.editPlayerOutlets()})
    , m_recordingControl(services.engine, m_locations, services.dates, m_playback, services.sleep,
                         windows.recordingOutlets(), windows.clockOutlets())
    , m_recordingWatch(
          services.dates.clock(), m_recordingControl, windows.recordingOutlets(),
          [this] { return m_locations.temporaryBasePath(); }, platform::roomOnDisk)
    , m_sharing(services.places.music, services.mail, services.workspace)
    , m_dayList(services.dates, services.database, windows.mainOutlets(), [this] { reloadData(); })
    , m_viewChanges(windows.mainOutlets(), windows.lectureViewOutlets())
    , m_editing(
          {services.dates.clock(), m_playback, m_dayList, m_viewChanges, services.alerts},
          {services.dates.clock(), services.database,
           [this](const store::LectureInfoItem &lecture, const QString &subject,
                  const QString &notes) { m_journal.owed().change(lecture, subject, notes); },
           [this](const store::LectureInfoItem &lecture) { return m_journal.owed().has(lecture); }},
          {windows.mainOutlets(), windows.editLectureOutlets(), windows.lectureViewOutlets(),
           windows.editPlayerOutlets(), windows.popoverOutlets()})
    , m_deletion({services.database, m_dayList,
                  [this](const store::LectureInfoItem &lecture) {
                      m_journal.owed().remove(lecture);
                      m_editing.forgetUnsavedTexts(lecture);
                  },
                  [this](int row) { removeArrangedObject(row); }, [this] { reloadData(); },
                  [this] { goToCalendarView(nullptr); }, services.pendingRow},
                 windows.mainOutlets(), windows.popoverOutlets())
    , m_left(m_locations, services.dates, services.database)
    , m_journal({services.dates, m_locations, m_recordingControl, m_dayList, m_left,
                 [this](bool doesListLackOne) { lecturesStored(doesListLackOne); }},
                windows.newLectureOutlets())
    , m_newLecture({services.dates, services.database, m_locations, m_recordingControl, m_playback,
                    m_dayList, m_editing, m_journal, services.alerts},
                   {windows.mainOutlets(), windows.newLectureOutlets(), windows.recordingOutlets(),
                    windows.playAudioOutlets(), windows.lectureViewOutlets()})
    , m_closeGuards(
          {m_recordingControl, m_newLecture, m_editing, services.alerts,
           [this](QWidget *sender) { onClosePlayAudioWindow(sender); },
           [this](int code) { alerDeletedDidEndReturnCodeContextInfo(nullptr, code, nullptr); }},
          {&windows.mainWindow(), windows.newLectureOutlets().newNoteWindow,
           windows.editLectureOutlets().windowEditLecture,
           windows.playAudioOutlets().playAudioWindow})
    , m_setTemporaryPath(services.dates.clock(), [this] { setTempAudioSavePathWithFormat(); })
    , m_stopSoundPlayEdit(services.dates.clock(), [this] { m_playback.stopSoundPlayEdit(); })
    , m_stopSoundPlay(services.dates.clock(), [this] { m_playback.stopSoundPlay(); })
{
    connectControls();
    m_services.database.setLecturesGone(
        [this](const store::GoneLectures &gone) { lecturesHaveGone(gone); });
}

MediaLinksArrayController::~MediaLinksArrayController()
{
    m_services.database.setLecturesGone({});
    LectureTable &table = *m_windows.mainOutlets().tblRecordSubjectList;
    table.setRowActions(nullptr);
    table.setModel(nullptr);
}

void MediaLinksArrayController::setApplication(LectureApplication *application)
{
    m_application = application;
    m_newLecture.setApplication(application);
}

void MediaLinksArrayController::setRowHost(LectureRowHost *host)
{
    m_windows.mainOutlets().tblRecordSubjectList->setRowHost(host);
}

store::Sqlite *MediaLinksArrayController::openDb()
{
    return m_services.database.openDb();
}

void MediaLinksArrayController::insertIntoDbwithSqlStatementWithArguments(
    const QString &sql, const QVariantList &arguments)
{
    m_services.database.insertIntoDbwithSqlStatementWithArguments(sql, arguments);
}

void MediaLinksArrayController::updateToDoDatawithSqlStatementWithArguments(
    const QString &sql, const QVariantList &arguments)
{
    m_services.database.updateToDoDatawithSqlStatementWithArguments(sql, arguments);
}

void MediaLinksArrayController::deleteVoiceData(const store::LectureInfoItem &lecture)
{
    m_services.database.deleteVoiceData(lecture);
}

int MediaLinksArrayController::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(arrangedObjects().size());
}

int MediaLinksArrayController::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : 1;
}

QVariant MediaLinksArrayController::data(const QModelIndex &index, int role) const
{
    const Lecture lecture = tableViewObjectValueForTableColumnRow(index.column(), index.row());
    if (!lecture)
        return {};
    if (role == LectureTable::LectureRole)
        return QVariant::fromValue(lecture);
    return role == Qt::DisplayRole ? QVariant(lecture->strSubject()) : QVariant();
}

void MediaLinksArrayController::prepareViewForDate(const QDateTime &date)
{
    m_stopSoundPlayEdit.schedule(StopAfterChange);
    // A row that still slides out belongs to the list shown until now.
    m_windows.mainOutlets().tblRecordSubjectList->finishRemoval();
    m_dayList.prepareViewForDate(date);
}

void MediaLinksArrayController::showList(QWidget *)
{
    m_windows.mainOutlets().tblRecordSubjectList->finishRemoval();
    m_dayList.showAllList(m_application ? m_application->getCurrentDate() : QDateTime());
}

void MediaLinksArrayController::setSelectedIndexes(const QList<int> &indexes)
{
    // The very same set is no change. An equal one may be: the lectures at those rows can be others
    // by now.
    if (&indexes == &m_selectedIndexes)
        return;
    m_selectedIndexes = indexes;
    LectureList lectures;
    for (const int index : indexes) {
        if (const Lecture lecture = tableViewObjectValueForTableColumnRow(0, index))
            lectures.push_back(lecture);
    }
    setSelectedDownloads(lectures);
}

void MediaLinksArrayController::setSelectedDownloads(const LectureList &lectures)
{
    if (lectures != m_selectedDownloads)
        m_selectedDownloads = lectures;
}

void MediaLinksArrayController::onExpandView(QWidget *)
{
    m_viewChanges.onExpandView();
}

void MediaLinksArrayController::goToCalendarView(QWidget *)
{
    m_stopSoundPlayEdit.schedule(StopAfterChange);
    m_viewChanges.goToCalendarView();
}

void MediaLinksArrayController::viewEditView(QWidget *)
{
    m_viewChanges.viewEditView();
}

void MediaLinksArrayController::animateRecordView()
{
    m_windows.newLectureOutlets().recordAnimationView->setWantsLayer(
        m_recordingControl.recording());
}

void MediaLinksArrayController::browseRecordingFolder(QWidget *)
{
    m_services.workspace.activateFileViewerSelectingURLs(
        {QUrl::fromLocalFile(getAudioFolderPath())});
}

void MediaLinksArrayController::openAudioFolderPath(QWidget *sender)
{
    const Lecture lecture = tableViewObjectValueForTableColumnRow(
        0, rowOfSender(*m_windows.mainOutlets().tblRecordSubjectList, sender));
    if (lecture)
        m_services.workspace.activateFileViewerSelectingURLs(
            {QUrl::fromLocalFile(lecture->getLectureAudioPath())});
}

void MediaLinksArrayController::onDoneNewLectureOrCloseWindow(QWidget *sender)
{
    m_newLecture.onDoneNewLectureOrCloseWindow(sender);
}

void MediaLinksArrayController::saveWhatWaits()
{
    m_newLecture.saveWhatWaits();
    m_journal.programEnds();
}

void MediaLinksArrayController::onClosePopoverConfirm(QWidget *)
{
    m_windows.popoverOutlets().popoverAudioConfirmClose->close();
}

void MediaLinksArrayController::sheetDidEndReturnCodeContextInfo(QWidget *sheet, int, void *)
{
    if (sheet)
        sheet->hide();
}

void MediaLinksArrayController::onConfirmOrCancelRecordDeletion(QWidget *sender)
{
    m_deletion.onConfirmOrCancelRecordDeletion(sender);
}

QList<RowAction> MediaLinksArrayController::tableViewRowActionsForRowEdge(LectureTable *table,
                                                                          int row,
                                                                          RowActionEdge edge)
{
    return m_deletion.tableViewRowActionsForRowEdge(table, row, edge);
}

void MediaLinksArrayController::onClosePlayAudioWindow(QWidget *sender)
{
    m_stopSoundPlay.schedule(StopAfterChange);
    if (sender && sender->window() != &m_windows.mainWindow())
        sender->window()->hide();
}

void MediaLinksArrayController::showStoredLectures()
{
    m_windows.mainOutlets().calendarView->layoutSubviews();
    m_windows.mainOutlets().tblRecordSubjectList->finishRemoval();
    m_dayList.showAgain();
}

// Nobody asked for it just now: what is done to a row, or is about to be, stays with its lecture.
void MediaLinksArrayController::lecturesStored(bool doesListLackOne)
{
    m_windows.mainOutlets().calendarView->layoutSubviews();
    if (doesListLackOne)
        m_dayList.appendNewcomers();
}

void MediaLinksArrayController::reloadData()
{
    beginResetModel();
    endResetModel();
}

void MediaLinksArrayController::removeArrangedObject(int row)
{
    beginRemoveRows({}, row, row);
    m_dayList.removeObject(row);
    endRemoveRows();
    m_editing.closeWhatIsNotStored();
}

void MediaLinksArrayController::lecturesHaveGone(const store::GoneLectures &gone)
{
    m_dayList.lecturesHaveGone(gone);
    m_left.lecturesHaveGone(gone);
    m_editing.lecturesHaveGone(gone);
}

void MediaLinksArrayController::lecturesCameBack(const store::LecturesBack &back)
{
    m_dayList.lecturesCameBack(back);
    m_editing.lecturesCameBack(back);
}

} // namespace tarvelo::lectures
