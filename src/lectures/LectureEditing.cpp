#include "lectures/LectureEditing.h"

#include "audio/PlayPauseButtons.h"
#include "audio/Playback.h"
#include "audio/PlayerDisplay.h"
#include "lectures/DayList.h"
#include "lectures/LectureTable.h"
#include "lectures/RowLookup.h"
#include "lectures/ViewChanges.h"
#include "lectures/WindowWidths.h"
#include "platform/Alerts.h"
#include "platform/WindowLevel.h"
#include "store/GoneLectures.h"
#include "store/LectureInfoItem.h"
#include "widgets/MouseDownTextField.h"
#include "widgets/PopOver.h"
#include "widgets/SlidingWindow.h"
#include "widgets/WholeText.h"

#include <QLabel>
#include <QLineEdit>
#include <QSlider>
#include <QTextEdit>
#include <QWidget>

#include <chrono>
#include <utility>

using namespace std::chrono_literals;

namespace tarvelo::lectures {

namespace {

constexpr auto StopAfterDone = 200ms;

const platform::Alert BlankSubject{QStringLiteral("Subject name is blank"), QStringLiteral("Close"),
                                   QStringLiteral("Please provide subject name.")};

void show(const store::LectureInfoItem &lecture, QLineEdit &subject, QTextEdit &notes)
{
    subject.setText(lecture.strSubject());
    subject.setCursorPosition(0);
    notes.setPlainText(lecture.strNotes());
}

bool isSame(const Lecture &one, const Lecture &other)
{
    if (!one || !other)
        return false;
    return one == other || (one->getRecordUniqueID() != store::LectureInfoItem::NoRow &&
                            one->getRecordUniqueID() == other->getRecordUniqueID() &&
                            one->copyPath() == other->copyPath());
}

} // namespace

LectureEditing::LectureEditing(const Collaborators &collaborators,
                               LectureSaving::Collaborators saving, const Outlets &outlets)
    : m_with(collaborators)
    , m_outlets(outlets)
    , m_saving(std::move(saving))
    , m_stopSoundPlayEdit(collaborators.clock, [this] { m_with.playback.stopSoundPlayEdit(); })
{
}

Lecture LectureEditing::selectedLectureOfSender(const QWidget *sender)
{
    LectureTable &table = *m_outlets.main.tblRecordSubjectList;
    const int row = rowOfSender(table, sender);
    Lecture lecture = m_with.dayList.lectureAt(row);
    if (!lecture)
        return nullptr;
    table.selectRow(row);
    m_saving.putUnsavedInto(*lecture);
    return lecture;
}

void LectureEditing::onEditLecture(QWidget *sender)
{
    const Lecture lecture = selectedLectureOfSender(sender);
    if (!lecture)
        return;
    m_itemEditingNow = lecture;
    m_itemOfWindow = lecture;
    show(*lecture, *m_outlets.window.txtSubjectForEdit, *m_outlets.window.txtViewNotesForEdit);
    QWidget &window = *m_outlets.window.windowEditLecture;
    if (!window.isVisible())
        platform::centreOver(window, *m_outlets.main.mainWindow);
    platform::makeKeyAndOrderFront(window);
    m_outlets.window.txtSubjectForEdit->setFocus(Qt::NoFocusReason);
    m_bIsEditingNow = true;
    clearChanges();
}

void LectureEditing::openPlayEditWindow(QWidget *sender)
{
    m_with.viewChanges.prepareLectureView();
    m_with.playback.discardEditPlayer();
    const Lecture lecture = selectedLectureOfSender(sender);
    if (!lecture)
        return;
    m_itemEditingNow = lecture;
    m_itemOfView = lecture;
    show(*lecture, *m_outlets.view.tSubjectName, *m_outlets.view.tViewNoteForEdit);
    const QString path = lecture->getLectureAudioPath();
    if (path.isEmpty())
        showThatThereIsNoAudio(*sender);
    else
        openWithAudio(path);
}

void LectureEditing::openWithAudio(const QString &path)
{
    m_with.playback.openEditPlayer(path);
    //  A file that cannot be read leaves nothing to play, and the button as it is: wanted so.
    m_outlets.player.buttons().offerPlay();
    m_outlets.player.sliderEditProgress->setEnabled(true);
    m_outlets.main.mainWindow->setFrameWidth(ExpandedWidth, true);
    m_outlets.view.tSubjectName->setFocus(Qt::NoFocusReason);
    m_bIsEditingNow = true;
    clearChanges();
}

// The texts are shown all the same, and what is known about changes stays: wanted so.
void LectureEditing::showThatThereIsNoAudio(const QWidget &sender)
{
    m_outlets.popovers.popoverAudioConfirmClose->showRelativeTo(
        sender.geometry(), *sender.parentWidget(), Qt::BottomEdge);
    audio::showNothingToPlay(m_outlets.player);
    m_outlets.main.mainWindow->setFrameWidth(ListShownWidth, true);
}

bool LectureEditing::refuseBlankSubject(const QLineEdit &subject, QWidget *sender)
{
    if (!subject.text().trimmed().isEmpty())
        return false;
    m_with.alerts.beginSheet(BlankSubject, sender ? *sender->window() : *subject.window(), {});
    return true;
}

void LectureEditing::save(const Lecture &lecture, const QString &subject, const QString &notes)
{
    if (!lecture)
        return;
    m_saving.save(*lecture, subject, notes);
    // The list may have been built anew while the lecture was open.
    for (const Lecture &shown : m_with.dayList.arrangedObjects()) {
        if (!isSame(shown, lecture))
            continue;
        shown->setSubject(subject);
        shown->setNotes(notes);
    }
}

void LectureEditing::onDoneEdit(QWidget *sender)
{
    QLineEdit &subject = *m_outlets.window.txtSubjectForEdit;
    QTextEdit &notes = *m_outlets.window.txtViewNotesForEdit;
    if (refuseBlankSubject(subject, sender))
        return;
    const bool viewIsToFollow = lectureViewShowsUntouched(m_itemOfWindow);
    save(m_itemOfWindow, subject.text(), widgets::wholeText(notes));
    if (viewIsToFollow)
        show(*m_itemOfWindow, *m_outlets.view.tSubjectName, *m_outlets.view.tViewNoteForEdit);
    m_outlets.main.tblRecordSubjectList->reloadData();
    subject.clear();
    notes.clear();
    m_outlets.window.windowEditLecture->hide();
}

// Done there would otherwise bring the old texts back.
bool LectureEditing::lectureViewShowsUntouched(const Lecture &lecture) const
{
    return isSame(m_itemOfView, lecture) &&
           m_outlets.view.tSubjectName->text() == lecture->strSubject() &&
           widgets::showsText(*m_outlets.view.tViewNoteForEdit, lecture->strNotes());
}

void LectureEditing::onCancelLectureEdit(QWidget *)
{
    m_outlets.window.txtSubjectForEdit->clear();
    m_outlets.window.txtViewNotesForEdit->clear();
    m_outlets.window.windowEditLecture->hide();
    m_bIsEditingNow = false;
    clearChanges();
}

void LectureEditing::onDoneLectureEdit(QWidget *sender)
{
    // A lecture that was opened from the list of all is not saved here: wanted so.
    if (m_outlets.main.lblDateDisplay->text() == AllList)
        return;
    m_stopSoundPlayEdit.schedule(StopAfterDone);
    if (refuseBlankSubject(*m_outlets.view.tSubjectName, sender))
        return;
    save(m_itemOfView, m_outlets.view.tSubjectName->text(),
         widgets::wholeText(*m_outlets.view.tViewNoteForEdit));
    m_with.viewChanges.endSingleEditView();
    m_outlets.main.mainWindow->setFrameWidth(ListShownWidth, true);
    m_outlets.main.tblRecordSubjectList->reloadData();
    m_bIsEditingNow = false;
    // The keyboard does not stay in a view that has gone from sight.
    if (m_outlets.main.editPlayView->isAncestorOf(m_outlets.main.mainWindow->focusWidget()))
        m_outlets.main.tblRecordSubjectList->setFocus(Qt::NoFocusReason);
}

void LectureEditing::mouseDownTextFieldClicked(widgets::MouseDownTextField &field)
{
    field.setEditable(true);
    field.setBordered(true);
    field.setDrawsBackground(true);
    field.update();
    if (field.window() == m_outlets.main.mainWindow)
        field.setFocus(Qt::MouseFocusReason);
}

void LectureEditing::closeWhatIsNotStored()
{
    for (Lecture *lecture : {&m_itemEditingNow, &m_itemOfWindow, &m_itemOfView}) {
        if (*lecture && !m_saving.isStored(**lecture))
            lecture->reset();
    }
}

void LectureEditing::forgetUnsavedTexts(const store::LectureInfoItem &lecture)
{
    m_saving.forget(lecture);
}

void LectureEditing::lecturesHaveGone(const store::GoneLectures &gone)
{
    for (const Lecture &lecture : {m_itemEditingNow, m_itemOfWindow, m_itemOfView})
        if (lecture)
            gone.mark(*lecture);
    m_saving.lecturesHaveGone(gone);
}

void LectureEditing::lecturesCameBack(const store::LecturesBack &back)
{
    for (const Lecture &lecture : {m_itemEditingNow, m_itemOfWindow, m_itemOfView})
        if (lecture)
            m_saving.giveRowBack(*lecture, back);
    m_saving.lecturesCameBack(back);
}

void LectureEditing::clearChanges()
{
    m_bHasChangesInNote = false;
    m_bHasChangesInNoteTitle = false;
}

void LectureEditing::textDidBeginEditing(QWidget *)
{
    textWasTouched();
}

void LectureEditing::textDidChange(QWidget *)
{
    textWasTouched();
}

void LectureEditing::textDidEndEditing(QWidget *)
{
    textWasTouched();
}

void LectureEditing::textWasTouched()
{
    m_bHasChangesInNote = true;
    m_bHasChangesInNoteTitle = true;
}

} // namespace tarvelo::lectures
