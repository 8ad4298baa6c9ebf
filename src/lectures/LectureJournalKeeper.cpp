#include "lectures/LectureJournalKeeper.h"

#include "audio/AudioFileLocations.h"
#include "audio/LeftFiles.h"
#include "audio/LeftLectures.h"
#include "lectures/DayList.h"
#include "platform/Dates.h"
#include "store/JournalWriter.h"
#include "store/LectureInfoItem.h"
#include "widgets/WholeText.h"

#include <QFileInfo>
#include <QLineEdit>
#include <QTextEdit>

#include <algorithm>
#include <optional>

namespace tarvelo::lectures {

using audio::TakeEvent;
using State = store::LectureJournal::State;

LectureJournalKeeper::LectureJournalKeeper(const Collaborators &collaborators,
                                           const NewLectureOutlets &outlets)
    : m_with(collaborators)
    , m_outlets(outlets)
    , m_places(collaborators.locations, collaborators.left)
    , m_owed({collaborators.dates.clock(), collaborators.dayList, collaborators.left, m_places,
              collaborators.someAreStored})
    , m_write(collaborators.dates.clock(), [this] { writeNow(); })
    , m_writeAgain(collaborators.dates.clock(), [this] { writeAgainIfItFailed(); })
{
    m_with.recording.setTakeObserver([this](TakeEvent event) { takeChanged(event); });
    const auto changed = [this] { textChanged(); };
    QObject::connect(m_outlets.txtSubjectForNewNote, &QLineEdit::textChanged, &m_textConnections,
                     changed);
    QObject::connect(m_outlets.txtView, &QTextEdit::textChanged, &m_textConnections, changed);
}

LectureJournalKeeper::~LectureJournalKeeper()
{
    m_with.recording.setTakeObserver({});
}

void LectureJournalKeeper::start()
{
    m_places.open();
    m_owed.start();
}

void LectureJournalKeeper::lectureOpened()
{
    m_places.makeWay();
    if (m_places.hasOccupied())
        m_owed.storeSoon();
    m_isOpen = true;
    m_journal = {};
    m_journal.id = store::LectureJournal::idOf(m_with.dates.now());
    writeNow();
    // Only now: a mark beside a journal says that the take is older than the lecture.
    removeClosedMark();
}

void LectureJournalKeeper::removeClosedMark()
{
    if (auto *writer = m_places.writer())
        writer->removeOther(closedMark());
}

QString LectureJournalKeeper::closedMark() const
{
    return m_places.path() + u'/' + audio::LeftFiles::closedMarkName();
}

void LectureJournalKeeper::takeChanged(TakeEvent event)
{
    switch (event) {
    case TakeEvent::Started:
        m_journal.take = m_with.locations.tempAudioSavePath();
        // Else a mark that did not go would say of this one too that it was left on purpose.
        removeClosedMark();
        m_journal.state = State::Recording;
        break;
    case TakeEvent::Resumed:
        m_journal.state = State::Recording;
        break;
    case TakeEvent::Paused:
        m_journal.state = State::Paused;
        break;
    case TakeEvent::Stopped:
        m_journal.state = State::Stopped;
        break;
    case TakeEvent::Tagged:
        break;
    }
    writeNow();
}

void LectureJournalKeeper::textChanged()
{
    if (!m_isOpen || m_write.pendingCount() > 0)
        return;
    const std::chrono::milliseconds since(m_written.msecsTo(m_with.dates.now()));
    const std::chrono::milliseconds none{0};
    // Also for a clock that was put on or back.
    m_write.schedule(std::clamp<std::chrono::milliseconds>(Interval - since, none, Interval));
}

void LectureJournalKeeper::writeNow()
{
    m_write.cancel();
    auto *writer = m_places.writer();
    if (!m_isOpen || !writer)
        return;
    ++m_journal.version;
    writer->write(store::toBytes(journal()));
    m_written = m_with.dates.now();
    // Its length changes as long as it runs.
    if (m_journal.state == State::Recording)
        m_write.schedule(Interval);
    m_writeAgain.cancel();
    m_writeAgain.schedule(Interval);
}

// Also when nobody types any more.
void LectureJournalKeeper::writeAgainIfItFailed()
{
    auto *writer = m_places.writer();
    const auto isWritten = m_isOpen && writer ? writer->isWritten() : true;
    if (!isWritten)
        m_writeAgain.schedule(Interval);
    else if (!*isWritten)
        writeNow();
}

store::LectureJournal LectureJournalKeeper::journal() const
{
    store::LectureJournal journal = m_journal;
    journal.subject = m_outlets.txtSubjectForNewNote->text();
    journal.notes = widgets::wholeText(*m_outlets.txtView);
    journal.seconds = m_with.recording.recordedSeconds();
    const QDateTime &day = m_with.dayList.dateOfButtonClicked();
    journal.day = m_with.dates.storedDay(day);
    journal.date = m_with.dates.askedDay(day);
    return journal;
}

void LectureJournalKeeper::programEnds()
{
    writeNow();
    m_owed.storeAtTheEnd();
}

void LectureJournalKeeper::lectureDone()
{
    m_journal.isDone = true;
    m_journal.lastRow = m_with.left.lastRow();
    writeNow();
    // The window goes next, and nobody looks after the lecture any more.
    flush();
}

void LectureJournalKeeper::recordingMoves(const QString &target, const QString &duration)
{
    m_journal.isDone = true;
    m_journal.lastRow = m_with.left.lastRow();
    m_journal.target = target;
    m_journal.duration = duration;
    writeNow();
    // Twice, for what fails once: between the next two steps nothing else knows where it lies.
    if (flush() || !m_places.writer())
        return;
    writeNow();
    flush();
}

void LectureJournalKeeper::storingEnded(bool isStored, const Lecture &lecture)
{
    const QString &target = m_journal.target;
    if (lecture->hasRow())
        m_with.left.rowIsStored(m_journal.id, lecture->getRecordUniqueID());
    if (isStored && (target.isEmpty() || QFileInfo::exists(target))) {
        endWithoutJournal();
        // What was not seen when it was to be moved is not written over.
        if (target.isEmpty() && QFileInfo::exists(m_with.locations.tempAudioSavePath()))
            m_places.setOccupied();
        return;
    }
    m_isOpen = false;
    m_write.cancel();
    m_owed.add(journal(), lecture);
}

void LectureJournalKeeper::lectureClosed()
{
    endWithMark();
}

void LectureJournalKeeper::lectureCancelled()
{
    // A take that runs is left to the next lecture, which discards it; nobody wants it any more.
    if (QFileInfo::exists(m_with.locations.tempAudioSavePath()))
        endWithMark();
    else
        endWithoutJournal();
}

void LectureJournalKeeper::endWithoutJournal()
{
    m_isOpen = false;
    m_write.cancel();
    if (auto *writer = m_places.writer())
        writer->remove();
}

void LectureJournalKeeper::endWithMark()
{
    m_isOpen = false;
    m_write.cancel();
    if (auto *writer = m_places.writer())
        writer->renameTo(closedMark());
}

bool LectureJournalKeeper::flush()
{
    auto *writer = m_places.writer();
    return writer && writer->flush();
}

} // namespace tarvelo::lectures
