#include "lectures/NewLecture.h"

#include "audio/AudioFileLocations.h"
#include "audio/DurationText.h"
#include "audio/Playback.h"
#include "audio/RecordingControl.h"
#include "audio/RecordingDisplay.h"
#include "audio/StopButton.h"
#include "calendar/CKCalendarView.h"
#include "lectures/DayList.h"
#include "lectures/LectureApplication.h"
#include "lectures/LectureEditing.h"
#include "lectures/LectureJournalKeeper.h"
#include "lectures/LectureTable.h"
#include "lectures/Slides.h"
#include "platform/Alerts.h"
#include "platform/Announcer.h"
#include "platform/Dates.h"
#include "platform/DurableMove.h"
#include "platform/Texts.h"
#include "platform/WindowLevel.h"
#include "store/LectureDatabase.h"
#include "store/LectureInfoItem.h"
#include "store/LectureJournal.h"
#include "store/Sqlite.h"
#include "store/Statements.h"
#include "widgets/ImageButton.h"
#include "widgets/LevelIndicator.h"
#include "widgets/MouseDownTextField.h"
#include "widgets/SlidingWindow.h"
#include "widgets/WholeText.h"

#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QObject>
#include <QPointF>
#include <QRectF>
#include <QTextEdit>
#include <QWidget>

#include <chrono>
#include <functional>
#include <memory>
#include <utility>

using namespace std::chrono_literals;

namespace tarvelo::lectures {

namespace {

constexpr auto AfterDone = 200ms;
constexpr auto NoteViewSlide = 800ms;

const platform::Alert AlreadyOpen{
    QStringLiteral("You have a Lecture that is not yet saved."), QStringLiteral("OK"),
    QStringLiteral("Save the current Lecture before starting a new record.")};

} // namespace

NewLecture::NewLecture(const Collaborators &collaborators, const Outlets &outlets)
    : m_with(collaborators)
    , m_outlets(outlets)
    , m_save(collaborators.dates.clock(), [this] { doSaveNewAudioInfos(); })
    , m_stopSoundPlay(collaborators.dates.clock(), [this] { m_with.playback.stopSoundPlay(); })
{
}

void NewLecture::onAddItem(QWidget *)
{
    if (m_bIsOnRecordingView) {
        m_with.alerts.beginSheet(AlreadyOpen, *m_outlets.main.mainWindow, {});
        return;
    }
    // The new one would empty the fields of a lecture that waits for its save, and delete its take.
    saveWhatWaits();
    if (m_with.recording.recording())
        m_with.recording.discardTake();

    m_bIsOnRecordingView = true;
    m_with.editing.clearChanges();

    const audio::RecordingOutlets &controls = m_outlets.recording;
    controls.btnStopRecord->setEnabled(false);
    m_outlets.window.BtnCancelAddNewLecture->show();
    controls.btnStartRecord->show();
    controls.btnPauseResumeRecording->hide();

    m_outlets.playAudio.txtSubjectName->clear();
    m_outlets.window.txtSubjectForNewNote->clear();
    m_outlets.window.txtView->clear();
    m_outlets.playAudio.txtSubjectName->setReadOnly(true);
    m_outlets.playAudio.txtSubjectName->hide();
    m_outlets.window.txtSubjectForNewNote->show();
    m_outlets.window.txtSubjectForNewNote->setReadOnly(false);
    m_outlets.window.txtView->setReadOnly(false);

    controls.lblRecordingDuration->clear();
    m_outlets.window.txtSubjectForNewNote->setFocus(Qt::NoFocusReason);
    platform::centreOver(*m_outlets.window.newNoteWindow, *m_outlets.main.mainWindow);
    platform::makeKeyAndOrderFront(*m_outlets.window.newNoteWindow);
    m_with.journal.lectureOpened();
}

void NewLecture::saveWhatWaits()
{
    if (m_save.pendingCount() == 0)
        return;
    m_save.cancel();
    doSaveNewAudioInfos();
}

NewLecture::Audio NewLecture::takeAudioToItsPlace()
{
    const QString taken = m_with.locations.tempAudioSavePath();
    if (!QFile::exists(taken)) {
        m_with.journal.recordingMoves({}, store::NoAudio);
        return {QString(), store::NoAudio};
    }
    QString path = m_with.locations.getAudioSavePath();
    if (!m_with.locations.makeWayAt(path))
        path = m_with.locations.freeAudioSavePath();
    QString duration =
        audio::getDuration(audio::wholeSeconds(m_with.recording.floatRecordingDuration()));
    m_with.journal.recordingMoves(path, duration);
    // Two saves within one second share a path; the later one replaces the earlier file.
    const bool isInPlace = platform::moveDurably(taken, path);
    return {path, std::move(duration), isInPlace};
}

void NewLecture::doSaveNewAudioInfos()
{
    const Audio audio = takeAudioToItsPlace();
    m_with.recording.takeWasSaved();

    const QString day = m_with.dates.storedDay(m_with.dayList.dateOfButtonClicked());
    const QString subject = store::subjectToStore(m_outlets.window.txtSubjectForNewNote->text());
    const QString notes = widgets::wholeText(*m_outlets.window.txtView);
    const bool isStored = m_with.database.insertIntoDbwithSqlStatementWithArguments(
        store::statements::Insert,
        store::newLectureRow(subject, notes, day, audio.path, audio.duration));

    auto lecture = std::make_shared<store::LectureInfoItem>(
        subject, store::NewLectureCourse, store::NewLectureStart, store::NewLectureEnd, true);
    lecture->setRecordingDuration(audio.duration);
    lecture->setNotes(notes);
    lecture->setRecordUniqueID(isStored ? m_with.database.connection()->lastinsertedRowID()
                                        : store::LectureInfoItem::NoRow);
    lecture->setLectureAudioPath(audio.path);
    m_with.journal.storingEnded(isStored && audio.isInPlace, lecture);
    m_with.dayList.append(lecture);
    LectureTable &table = *m_outlets.main.tblRecordSubjectList;
    table.scrollRowToVisible(table.rowCount() - 1);
    m_with.dayList.showWhetherEmpty();

    m_outlets.window.txtSubjectForNewNote->clear();
    m_outlets.window.txtView->clear();
    m_outlets.main.calendarView->layoutSubviews();
    m_outlets.recording.btnTimeTag->hide();
    platform::announce(*m_outlets.main.mainWindow, platform::text("ANNOUNCE_LECTURE_SAVED"));
}

void NewLecture::onDoneNewLectureOrCloseWindow(QWidget *sender)
{
    const auto *button = qobject_cast<widgets::ImageButton *>(sender);
    const int tag = button ? button->tag() : NewLectureOutlets::TagDone;
    if (tag == NewLectureOutlets::TagDone)
        done();
    else if (tag == NewLectureOutlets::TagClose)
        closeWithoutSaving();
    resetControls(QStringLiteral("stopH"));
    m_bIsOnRecordingView = false;
}

void NewLecture::done()
{
    if (m_with.recording.recording())
        m_with.recording.startStopRecording(nullptr);
    m_outlets.recording.audioLevelMeter->setFloatValue(0);
    m_save.schedule(AfterDone);
    m_with.journal.lectureDone();
    m_outlets.window.newNoteWindow->hide();
    if (m_application)
        m_application->setRecordingStateForButton(false);
}

void NewLecture::closeWithoutSaving()
{
    m_with.journal.lectureClosed();
    m_stopSoundPlay.schedule(AfterDone);
    m_outlets.playAudio.txtSubjectName->clear();
    m_outlets.lectureView.tSubjectName->clear();
    m_outlets.window.txtView->clear();
    m_outlets.window.newNoteWindow->hide();
}

void NewLecture::onCancelAddNewLecture(QWidget *)
{
    if (m_with.recording.bIsRecordingSaved())
        m_with.recording.discardTake();
    m_with.journal.lectureCancelled();
    m_outlets.playAudio.txtSubjectName->clear();
    m_outlets.window.txtSubjectForNewNote->clear();
    m_outlets.window.txtView->clear();
    m_outlets.window.newNoteWindow->hide();
    m_with.playback.stopSoundPlay();
    // No pressed image after cancelling, unlike after Done: wanted as it stands.
    resetControls(QString());
    m_bIsOnRecordingView = false;
    m_with.recording.forgetSavedTake();
}

void NewLecture::onCloseLectureWindow(QWidget *)
{
    m_outlets.window.newNoteWindow->hide();
}

void NewLecture::onDone(QWidget *)
{
    slideTo(*m_outlets.main.newNoteView, QRectF(QPointF(), m_outlets.main.scrollTableView->size()),
            NoteViewSlide);
}

void NewLecture::resetControls(const QString &stopAlternate)
{
    const audio::RecordingOutlets &controls = m_outlets.recording;
    audio::showLevel(controls);
    audio::lookLikeStop(*controls.btnStopRecord, stopAlternate);
    controls.btnStopRecord->setAction(
        {"stopRecording", [this](QWidget *sender) { m_with.recording.stopRecording(sender); }});
}

} // namespace tarvelo::lectures
