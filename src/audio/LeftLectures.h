#pragma once

#include "audio/LeftFiles.h"
#include "store/LectureJournal.h"

#include <QHash>
#include <QSet>

#include <functional>
#include <optional>

namespace tarvelo::platform {
class Dates;
}
namespace tarvelo::store {
class LectureDatabase;
class LectureInfoItem;
struct GoneLectures;
} // namespace tarvelo::store

namespace tarvelo::audio {

class AudioFileLocations;

// What new lectures left behind whose row is not stored: since the program did not live to do it,
// or since the disk had no room for it. Each is a recording, a journal, or both, moved out of the
// way of the next take. Keeping one is a chain of steps, each of which can be the last one for now
// and is done once; nothing goes before what takes its place is on the disk. Without a folder that
// this process owns there is nothing. Main thread only.
class LeftLectures final
{
public:
    struct LeftLecture
    {
        QString journalPath; // also when there is none
        QString takePath;    // empty without a recording
        store::LectureJournal journal;
        double seconds = 0; // of the recording
    };

    // All outlive this object.
    LeftLectures(const AudioFileLocations &locations, const platform::Dates &dates,
                 store::LectureDatabase &database);
    LeftLectures(const LeftLectures &) = delete;
    LeftLectures &operator=(const LeftLectures &) = delete;

    // A folder of takes is this process's: moves aside what stands there of a lecture that is not
    // open any more, unless it was left on purpose. False when something of it stands there still,
    // and nothing may be written there. What was left is kept in the folder that was the first.
    bool setAside(const QString &folder);

    // A take that was left on purpose goes from there to that first folder, which is where the next
    // lecture replaces it, unless something stands there.
    void adoptClosed(const QString &folder);

    // Oldest first: those that nobody has decided on.
    QList<LeftLecture> undecided() const;
    // How many are to be kept and not yet stored, with those of which nothing can be known now.
    int owed() const;

    // Later: it is decided, and storeOwed() does the rest. Undecided: not even that could be
    // written down.
    enum class Kept { Stored, Later, Undecided };
    Kept keep(const LeftLecture &left);
    void discard(const LeftLecture &left);
    // By the journal's ID, as long as its row is not stored. A change that could not be written
    // down is false, one for which there is no such journal null. What nobody has decided on has no
    // ID yet.
    std::optional<bool> change(const QString &id, const QString &subject, const QString &notes);
    void discard(const QString &id);
    // Of the journal of a stored lecture, as far as it is known: of what this process stored, and
    // of a recording that is promised to a lecture. Empty when there is none.
    QString journalIdOf(const store::LectureInfoItem &lecture) const;
    // The row of this journal's lecture is stored: it is no other journal's.
    void rowIsStored(const QString &id, qint64 row);
    // Their IDs are not theirs any more. Journals of theirs that are there all the same have
    // nothing left to do, unless their recording was not moved yet.
    void lecturesHaveGone(const store::GoneLectures &gone);

    struct Stored
    {
        QString id; // the journal's
        qint64 row;
        QString recording; // where it lies now; empty without one
    };
    struct Texts
    {
        QString subject;
        QString notes;
    };
    // Goes on with what is to be kept. `stored` hears of each; `newer`, by the journals' IDs, are
    // texts that could not be written into their journals.
    void storeOwed(const std::function<void(const Stored &)> &stored = {},
                   const QHash<QString, Texts> &newer = {});
    // For one that is done and stands in the folder of the takes, whose journal cannot be written
    // there, and which hears where its recording is to lie now. Null when its row is not stored.
    std::optional<Stored> storeUnwritten(const QString &folder, store::LectureJournal &journal);
    void discardUnwritten(const QString &folder, const store::LectureJournal &journal);
    // Of the lectures stored until now, for the journal of one that is done.
    qint64 lastRow() const;

private:
    QList<LeftLecture> all() const;
    // Null when it cannot be known now whether there is a recording.
    static std::optional<LeftLecture> unwritten(const QString &folder,
                                                const store::LectureJournal &journal);
    bool decide(LeftLecture &left);
    bool choosePlace(LeftLecture &left);
    bool moveTake(LeftLecture &left);
    std::optional<Stored> storeRow(const LeftLecture &left);
    std::optional<qint64> storedRow(const store::LectureJournal &journal) const;

    const AudioFileLocations &m_locations;
    const platform::Dates &m_dates;
    store::LectureDatabase &m_database;
    QHash<QString, qint64> m_rowOfJournal; // stored by this process, by the journal's ID
    QSet<QString> m_goneJournals;          // that were stored by this process
    std::optional<LeftFiles> m_files;      // null until a folder is ours
};

} // namespace tarvelo::audio
