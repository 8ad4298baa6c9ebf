#pragma once

#include "audio/RecordingControl.h"
#include "audio/TakePlaces.h"
#include "lectures/LectureList.h"
#include "lectures/LectureOutlets.h"
#include "lectures/OwedLectures.h"
#include "platform/DelayedCall.h"
#include "store/LectureJournal.h"

#include <QDateTime>
#include <QObject>

#include <chrono>
#include <functional>

namespace tarvelo::audio {
class AudioFileLocations;
class LeftLectures;
} // namespace tarvelo::audio
namespace tarvelo::platform {
class Dates;
}

namespace tarvelo::lectures {

class DayList;

// Writes down, beside the take, what the open new lecture is so far, so that nothing of it is lost
// when the program does not live to store it: at once when the recording changes its state and at a
// time tag, else within Interval of a change. Of a lecture it changes nothing; what could not be
// stored of one it hands on to the owed ones.
class LectureJournalKeeper final
{
public:
    // Less than the five seconds after which nothing may be lost any more.
    static constexpr std::chrono::seconds Interval{4};

    // All of them outlive this object.
    struct Collaborators
    {
        const platform::Dates &dates;
        audio::AudioFileLocations &locations;
        audio::RecordingControl &recording;
        const DayList &dayList;
        audio::LeftLectures &left;
        // As the owed lectures tell it.
        std::function<void(bool doesListLackOne)> someAreStored;
    };

    LectureJournalKeeper(const Collaborators &collaborators, const NewLectureOutlets &outlets);
    LectureJournalKeeper(const LectureJournalKeeper &) = delete;
    LectureJournalKeeper &operator=(const LectureJournalKeeper &) = delete;
    ~LectureJournalKeeper();

    // To be called once the folders are there. What an earlier process left is out of the way then.
    void start();
    // Those of the lectures that could not be stored yet.
    OwedLectures &owed() { return m_owed; }
    bool ownsUsualPlace() const { return m_places.ownsUsual(); }

    void lectureOpened();
    // Its row is to be stored in a moment. Waits until the disk knows.
    void lectureDone();
    // The recording, if there is one, is about to be moved to `target`. Waits until the disk knows.
    void recordingMoves(const QString &target, const QString &duration);
    // With its recording in its place. When it is not, what is known of it stays, also when the
    // journal cannot be written, and what is missing is done as soon as that can be.
    void storingEnded(bool isStored, const Lecture &lecture);
    // Its take stays where it is.
    void lectureClosed();
    void lectureCancelled();

    // What has changed until now is written, and what could not be written yet is tried once more.
    void programEnds();
    // Waits until all of it is on the disk. False when it could not be written.
    bool flush();

private:
    void takeChanged(audio::TakeEvent event);
    void textChanged();
    store::LectureJournal journal() const;
    void endWithMark();
    void endWithoutJournal();
    // When a lecture is open; waits for nothing.
    void writeNow();
    void writeAgainIfItFailed();
    void removeClosedMark();
    QString closedMark() const;

    Collaborators m_with;
    NewLectureOutlets m_outlets;
    audio::TakePlaces m_places;
    OwedLectures m_owed;
    bool m_isOpen = false;
    store::LectureJournal m_journal; // what cannot be read from the window
    QDateTime m_written;
    platform::DelayedCall m_write;
    platform::DelayedCall m_writeAgain;
    QObject m_textConnections; // hears of their changes, as long as this object lives
};

} // namespace tarvelo::lectures
