#pragma once

#include "audio/RecordingControl.h"
#include "lectures/LectureOutlets.h"
#include "platform/DelayedCall.h"
#include "platform/FolderOwner.h"
#include "store/JournalWriter.h"
#include "store/LectureJournal.h"

#include <QObject>

#include <memory>

namespace tarvelo::lectures {

class DayList;

// Writes down, beside the take, what the open new lecture is so far, so that nothing of it is lost
// when the program does not live to store it: at once when the recording changes its state and at a
// time tag, else within Interval of a change. It changes nothing of the lecture. A process that
// does not own the folder of the take writes nothing.
class LectureJournalKeeper final
{
public:
    // Less than the five seconds after which nothing may be lost any more.
    static constexpr std::chrono::seconds Interval{4};

    // All of them outlive this object.
    struct Collaborators
    {
        const platform::Dates &dates;
        const audio::AudioFileLocations &locations;
        audio::RecordingControl &recording;
        const DayList &dayList;
    };

    LectureJournalKeeper(const Collaborators &collaborators, const NewLectureOutlets &outlets);
    LectureJournalKeeper(const LectureJournalKeeper &) = delete;
    LectureJournalKeeper &operator=(const LectureJournalKeeper &) = delete;
    ~LectureJournalKeeper();

    // In the folder of the take.
    static QString journalName() { return QStringLiteral("lecture.journal"); }
    // A take beside it was left on purpose.
    static QString closedMarkName() { return QStringLiteral("lecture.closed"); }

    // To be called once the folders are there.
    void start();
    bool ownsTake() const { return m_owner.owns(); }

    void lectureOpened();
    // Its row is to be stored in a moment.
    void lectureDone();
    // The recording, if there is one, is about to be moved to `target`. Waits until the disk knows.
    void lectureMoves(const QString &target, const QString &duration);
    void lectureStored(bool isStored);
    // Its take stays where it is.
    void lectureClosed();
    void lectureCancelled();

    // What has changed until now, when a lecture is open; waits for nothing.
    void writeNow();
    // Waits until all of it is on the disk. False when it could not be written.
    bool flush();

private:
    void takeChanged(audio::TakeEvent event);
    void textChanged();
    store::LectureJournal journal() const;
    void endWithMark();

    Collaborators m_with;
    NewLectureOutlets m_outlets;
    platform::FolderOwner m_owner;
    QString m_folder;
    std::unique_ptr<store::JournalWriter> m_writer; // null as long as the folder is not ours
    bool m_isOpen = false;
    store::LectureJournal m_journal; // what cannot be read from the window
    QDateTime m_written;
    platform::DelayedCall m_write;
    QObject m_texts; // hears of their changes, as long as this object lives
};

} // namespace tarvelo::lectures
