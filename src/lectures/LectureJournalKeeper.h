#pragma once

#include "audio/LeftFiles.h"
#include "audio/LeftLectures.h"
#include "audio/RecordingControl.h"
#include "audio/TakePlaces.h"
#include "lectures/LectureList.h"
#include "lectures/LectureOutlets.h"
#include "platform/DelayedCall.h"
#include "store/LectureInfoItem.h"
#include "store/LectureJournal.h"

#include <QDateTime>
#include <QHash>
#include <QObject>
#include <QStringList>

#include <chrono>
#include <functional>
#include <memory>

namespace tarvelo::audio {
class AudioFileLocations;
}
namespace tarvelo::platform {
class Dates;
}

namespace tarvelo::lectures {

class DayList;

// Writes down, beside the take, what the open new lecture is so far, so that nothing of it is lost
// when the program does not live to store it: at once when the recording changes its state and at a
// time tag, else within Interval of a change. What could not be stored it stores later, and gives
// the lecture the row and the path that it got.
class LectureJournalKeeper final
{
public:
    // Less than the five seconds after which nothing may be lost any more.
    static constexpr std::chrono::seconds Interval{4};
    // Between two tries to store what the disk had no room for.
    static constexpr std::chrono::seconds RetryInterval{10};

    // All of them outlive this object.
    struct Collaborators
    {
        const platform::Dates &dates;
        audio::AudioFileLocations &locations;
        audio::RecordingControl &recording;
        const DayList &dayList;
        audio::LeftLectures &left;
        // Rows that had no room, or that a process which died left to this one, are stored by now;
        // whether the list lacks one of them.
        std::function<void(bool)> lecturesStored;
    };

    LectureJournalKeeper(const Collaborators &collaborators, const NewLectureOutlets &outlets);
    LectureJournalKeeper(const LectureJournalKeeper &) = delete;
    LectureJournalKeeper &operator=(const LectureJournalKeeper &) = delete;
    ~LectureJournalKeeper();

    // In the folder of the take.
    static QString journalName() { return audio::LeftFiles::journalName(); }
    // A take beside it was left on purpose.
    static QString closedMarkName() { return audio::LeftFiles::closedMarkName(); }

    // To be called once the folders are there. What an earlier process left is out of the way then.
    void start();
    bool ownsUsualPlace() const { return m_places.ownsUsual(); }

    void lectureOpened();
    // Its row is to be stored in a moment. Waits until the disk knows.
    void lectureDone();
    // The recording, if there is one, is about to be moved to `target`. Waits until the disk knows.
    void lectureMoves(const QString &target, const QString &duration);
    // With its recording in its place. When it is not, what is known of it stays, also when the
    // journal cannot be written, and what is missing is done as soon as that can be.
    void lectureStored(bool isStored, const Lecture &lecture);
    // Whether something of it is still to be stored.
    bool owes(const store::LectureInfoItem &lecture) const;
    // Of all of them, also where no journal could be written.
    QStringList recordingsOwed() const;
    // Of a lecture without a row: its row is to have these texts.
    void lectureChanged(const store::LectureInfoItem &lecture, const QString &subject,
                        const QString &notes);
    // Nothing of it is to be stored any more.
    void lectureDeleted(const store::LectureInfoItem &lecture);
    // Its take stays where it is.
    void lectureClosed();
    void lectureCancelled();

    // Something may be to be stored; the next try comes soon.
    void storeOwedSoon();

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
    void storeOwed();
    void discardDeleted();
    void writeChanges();
    struct StoredNow
    {
        bool isAny = false;
        bool doesListLackOne = false;
    };
    StoredNow storeWhatCanBe();
    // Empty when nothing of it is owed.
    QString journalOf(const store::LectureInfoItem &lecture) const;

    Collaborators m_with;
    NewLectureOutlets m_outlets;
    audio::TakePlaces m_places;
    bool m_isOpen = false;
    struct Owed
    {
        std::weak_ptr<store::LectureInfoItem> lecture;
        qint64 row = store::LectureInfoItem::NoRow;
        QString path = {};
    };
    QHash<QString, Owed> m_owed; // by the journal's ID
    // Those that the journal does not have yet.
    QHash<QString, audio::LeftLectures::Texts> m_changed;
    QStringList m_deleted;           // whose journal goes as soon as it can
    store::LectureJournal m_journal; // what cannot be read from the window
    QDateTime m_written;
    platform::DelayedCall m_write;
    platform::DelayedCall m_writeAgain;
    platform::DelayedCall m_storeOwed;
    QObject m_textConnections; // hears of their changes, as long as this object lives
};

} // namespace tarvelo::lectures
