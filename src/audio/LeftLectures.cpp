#include "audio/LeftLectures.h"

#include "audio/AudioFileLocations.h"
#include "audio/DurationText.h"
#include "audio/engine/LeftTake.h"
#include "platform/Dates.h"
#include "platform/DurableFiles.h"
#include "platform/DurableMove.h"
#include "platform/SteadyFile.h"
#include "platform/SureReading.h"
#include "store/GoneLectures.h"
#include "store/LectureDatabase.h"
#include "store/LectureInfoItem.h"
#include "store/Sqlite.h"
#include "store/Statements.h"
#include "store/StoredRows.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <limits>
#include <utility>

namespace tarvelo::audio {

using store::JournalFile;
using store::LectureJournal;

LeftLectures::LeftLectures(const AudioFileLocations &locations, const platform::Dates &dates,
                           store::LectureDatabase &database)
    : m_locations(locations)
    , m_dates(dates)
    , m_database(database)
{
}

bool LeftLectures::setAside(const QString &folder)
{
    if (!m_files)
        m_files.emplace(folder, QFileInfo(m_locations.temporaryBasePath()).fileName(), m_dates);
    return m_files->moveFrom(folder);
}

void LeftLectures::adoptClosed(const QString &folder)
{
    if (m_files)
        m_files->moveClosedFrom(folder);
}

// Without those whose journal cannot be read now: nobody knows what is to be done with them.
QList<LeftLectures::LeftLecture> LeftLectures::all() const
{
    const auto files = m_files ? m_files->all() : std::nullopt;
    QList<LeftLecture> lectures;
    for (const LeftFiles::Leftover &file : files.value_or(QList<LeftFiles::Leftover>()))
        if (file.journalFile.state != JournalFile::State::Unreadable)
            lectures.append({.journalPath = file.journalPath,
                             .takePath = file.takePath,
                             .journal = file.journalFile.journal});
    return lectures;
}

QList<LeftLectures::LeftLecture> LeftLectures::undecided() const
{
    QList<LeftLecture> lectures = all();
    lectures.removeIf([](const LeftLecture &left) { return left.journal.isDone; });
    for (LeftLecture &left : lectures) {
        if (!left.takePath.isEmpty())
            left.seconds = engine::secondsOfLeftTake(left.takePath);
        // The day on which it ended is the best that is known of a recording alone. It is written
        // as days are asked for, so that the lecture is found under it whatever the user's
        // calendar.
        const QDateTime end = QFileInfo(left.takePath).lastModified();
        if (left.journal.day.isEmpty())
            left.journal.day = left.journal.date = m_dates.askedDay(end);
    }
    return lectures;
}

// What cannot be read now may be one.
int LeftLectures::owed() const
{
    const auto files = m_files ? m_files->all() : std::optional(QList<LeftFiles::Leftover>());
    return !files ? 1 : static_cast<int>(std::ranges::count_if(*files, [](const auto &file) {
        return file.journalFile.journal.isDone ||
               file.journalFile.state == JournalFile::State::Unreadable;
    }));
}

LeftLectures::Kept LeftLectures::keep(const LeftLecture &left)
{
    LeftLecture kept = left;
    // An earlier try may have decided it without knowing, and it is stored by now.
    const auto files = m_files ? m_files->all() : std::nullopt;
    if (!files)
        return Kept::Undecided;
    const auto file =
        std::ranges::find(*files, left.journalPath, &LeftFiles::Leftover::journalPath);
    if (file == files->end())
        return Kept::Stored;
    if (file->journalFile.journal.isDone)
        kept = {file->journalPath, file->takePath, file->journalFile.journal};
    else if (!decide(kept))
        return Kept::Undecided;
    return moveTake(kept) && storeRow(kept) ? Kept::Stored : Kept::Later;
}

// From here on it is kept, whoever does the rest.
bool LeftLectures::decide(LeftLecture &left)
{
    left.journal.isDone = true;
    left.journal.lastRow = lastRow();
    if (left.journal.day.isEmpty())
        left.journal.day = m_dates.askedDay(m_dates.now());
    // One that nobody else has: no two files have one name, and a name may have been another's.
    left.journal.id = QFileInfo(left.journalPath).completeBaseName();
    while (m_rowOfJournal.contains(left.journal.id) || m_goneJournals.contains(left.journal.id))
        left.journal.id += u'+';
    return choosePlace(left);
}

bool LeftLectures::choosePlace(LeftLecture &left)
{
    const bool hasTake = !left.takePath.isEmpty();
    left.journal.target = hasTake ? m_locations.freeAudioSavePath() : QString();
    left.journal.duration =
        hasTake ? getDuration(wholeSeconds(engine::secondsOfLeftTake(left.takePath)))
                : QString(store::NoAudio);
    return platform::SteadyFile(left.journalPath).replace(store::toBytes(left.journal));
}

bool LeftLectures::moveTake(LeftLecture &left)
{
    if (left.takePath.isEmpty()) {
        if (left.journal.target.isEmpty())
            left.journal.duration = store::NoAudio;
        return true;
    }
    // Without it the recording plays too.
    engine::finishLeftTake(left.takePath);
    const QString &target = left.journal.target;
    // With its folder it may be missing; what is not known is not written over.
    const QString folder = m_locations.getAudioFolderPath();
    const QDir itsFolder = QFileInfo(target).dir();
    const bool isElsewhere = itsFolder != QDir(folder) && !itsFolder.exists();
    const auto isTaken =
        target.isEmpty() || isElsewhere ? std::optional(true) : platform::isThere(target);
    if (!isTaken)
        return false;
    // Who was interrupted between a copy on another disk and the end of the move left both. A home
    // may have got another name since.
    const bool isFree = !*isTaken || platform::isCopyOf(target, left.takePath);
    return (isFree || choosePlace(left)) && platform::moveDurably(left.takePath, target);
}

qint64 LeftLectures::lastRow() const
{
    store::Sqlite *const database = m_database.openDb();
    const auto last = database ? store::lastRow(*database) : std::nullopt;
    // Where it is not known none of those that are there may be taken for its own.
    return last.value_or(std::numeric_limits<qint64>::max());
}

// 0 when there is none; null when that cannot be known.
std::optional<qint64> LeftLectures::storedRow(const LectureJournal &journal) const
{
    store::Sqlite *const database = m_database.connection();
    const auto rows =
        journal.target.isEmpty()
            ? store::rowsWithTexts(*database, store::subjectToStore(journal.subject), journal.notes,
                                   journal.day, journal.lastRow.value_or(0))
            : store::rowsWithRecording(*database, journal.target);
    if (!rows)
        return std::nullopt;
    const QList<qint64> known = m_rowOfJournal.values();
    const auto own = std::ranges::find_if(*rows, [&](qint64 row) { return !known.contains(row); });
    return own == rows->end() ? 0 : *own;
}

// Without the reset that a failed write of the program is followed by: nobody asked for this one
// just now.
std::optional<LeftLectures::Stored> LeftLectures::storeRow(const LeftLecture &left)
{
    // Opened first, since that tells what has gone.
    store::Sqlite *const database = m_database.openToWrite();
    if (!database)
        return std::nullopt;
    // It is in a copy, and comes back from there.
    if (m_goneJournals.contains(left.journal.id) && left.takePath.isEmpty()) {
        platform::SteadyFile(left.journalPath).remove();
        return std::nullopt;
    }
    const auto insert = [&] {
        return database->executeNonQueryArguments(store::statements::Insert, left.journal.row());
    };
    // A journal that could not be removed is no second lecture.
    const bool isKnown = m_rowOfJournal.contains(left.journal.id);
    auto row = isKnown ? m_rowOfJournal.value(left.journal.id) : storedRow(left.journal);
    // Its recording may have got another place since.
    if (isKnown && !left.journal.target.isEmpty() &&
        !store::moveRecording(*database, *row, left.journal.target, left.journal.duration))
        return std::nullopt;
    const auto makeTable = [&] {
        return database->executeNonQuery(store::statements::CreateAfterInsert);
    };
    if (row == 0 && (insert() || (makeTable() && insert())))
        row = database->lastinsertedRowID();
    // An insert may have failed although its row is there, since only its last step did.
    else if (row == 0)
        row = storedRow(left.journal);
    if (row.value_or(0) == 0)
        return std::nullopt;
    rowIsStored(left.journal.id, *row);
    platform::SteadyFile(left.journalPath).remove();
    return Stored{left.journal.id, *row, left.journal.target};
}

void LeftLectures::rowIsStored(const QString &id, qint64 row)
{
    // An ID may be given again.
    m_rowOfJournal.removeIf(
        [row](const std::pair<const QString &, qint64 &> &stored) { return stored.second == row; });
    if (!id.isEmpty())
        m_rowOfJournal.insert(id, row);
}

void LeftLectures::lecturesHaveGone(const store::GoneLectures &gone)
{
    m_rowOfJournal.removeIf([&](const std::pair<const QString &, qint64 &> &stored) {
        if (!gone.has(stored.second))
            return false;
        m_goneJournals.insert(stored.first);
        return true;
    });
}

QString LeftLectures::journalIdOf(const store::LectureInfoItem &lecture) const
{
    const QString &recording = lecture.getLectureAudioPath();
    const QList<LeftLecture> lectures = recording.isEmpty() ? QList<LeftLecture>() : all();
    const auto owed = std::ranges::find_if(lectures, [&recording](const LeftLecture &left) {
        return left.journal.isDone && left.journal.target == recording;
    });
    if (owed != lectures.end())
        return owed->journal.id;
    return lecture.hasRow() ? m_rowOfJournal.key(lecture.getRecordUniqueID()) : QString();
}

void LeftLectures::storeOwed(const std::function<void(const Stored &)> &stored,
                             const QHash<QString, Texts> &newer)
{
    for (LeftLecture &left : all()) {
        if (!left.journal.isDone)
            continue;
        if (const auto texts = newer.find(left.journal.id); texts != newer.end()) {
            left.journal.subject = texts->subject;
            left.journal.notes = texts->notes;
        }
        // A recording that was moved and cannot be looked for now is looked for later. Where it is
        // gone, subject and notes are kept: a lecture that is deleted takes its journal along.
        const bool wasMoved = left.takePath.isEmpty() && !left.journal.target.isEmpty();
        if (wasMoved && !platform::isThere(left.journal.target).has_value())
            continue;
        const auto lecture = moveTake(left) ? storeRow(left) : std::nullopt;
        if (lecture && stored)
            stored(*lecture);
    }
}

std::optional<bool> LeftLectures::change(const QString &id, const QString &subject,
                                         const QString &notes)
{
    const auto files = m_files ? m_files->all() : std::optional(QList<LeftFiles::Leftover>());
    bool areAllKnown = files.has_value();
    for (const LeftFiles::Leftover &file : files.value_or(QList<LeftFiles::Leftover>())) {
        LectureJournal journal = file.journalFile.journal;
        areAllKnown = areAllKnown && file.journalFile.state != JournalFile::State::Unreadable;
        if (!journal.isDone || journal.id != id)
            continue;
        journal.subject = subject;
        journal.notes = notes;
        return platform::SteadyFile(file.journalPath).replace(store::toBytes(journal));
    }
    return areAllKnown ? std::nullopt : std::optional(false);
}

void LeftLectures::discard(const QString &id)
{
    for (const LeftLecture &left : all())
        if (left.journal.isDone && left.journal.id == id)
            discard(left);
}

std::optional<LeftLectures::LeftLecture> LeftLectures::unwritten(const QString &folder,
                                                                 const LectureJournal &journal)
{
    const std::optional<bool> hasTake =
        journal.take.isEmpty() ? std::optional(false) : platform::isThere(journal.take);
    if (!hasTake)
        return std::nullopt;
    return LeftLecture{.journalPath = folder + u'/' + LeftFiles::journalName(),
                       .takePath = *hasTake ? journal.take : QString(),
                       .journal = journal};
}

std::optional<LeftLectures::Stored> LeftLectures::storeUnwritten(const QString &folder,
                                                                 LectureJournal &journal)
{
    auto left = unwritten(folder, journal);
    if (!left)
        return std::nullopt;
    const bool isMoved = moveTake(*left);
    journal.target = left->journal.target;
    journal.duration = left->journal.duration;
    return isMoved ? storeRow(*left) : std::nullopt;
}

void LeftLectures::discardUnwritten(const QString &folder, const LectureJournal &journal)
{
    if (const auto left = unwritten(folder, journal))
        discard(*left);
}

void LeftLectures::discard(const LeftLecture &left)
{
    if (!left.takePath.isEmpty())
        platform::removeDurably(left.takePath);
    platform::SteadyFile(left.journalPath).remove();
}

} // namespace tarvelo::audio
