#pragma once

#include <QByteArray>
#include <QString>
#include <QVariantList>

#include <optional>

class QDateTime;

namespace tarvelo::store {

// What is known of a new lecture before its row is stored: enough to make the row from, should the
// program not live to do so.
struct LectureJournal
{
    enum class State { Idle, Recording, Paused, Stopped };

    QString id = {}; // of the moment when it was opened; part of file names
    QString subject = {};
    QString notes = {};
    QString day = {};  // as the row has it, in the user's own calendar
    QString date = {}; // the same day as ISO 8601 writes it
    State state = State::Idle;
    double seconds = 0; // recorded
    QString take = {};  // the file that is recorded into; empty before there was one

    // The student wants the lecture kept. From then on nothing more is asked.
    bool isDone = false;
    QString target = {};   // where the recording is to lie; empty without one
    QString duration = {}; // as the row has it
    // The last row that there was when it was done: one that is equal and came later is its own.
    std::optional<qint64> lastRow = {};
    qint64 version = 0; // counts what was written of this lecture

    // Of a lecture that is opened at this moment.
    static QString idOf(const QDateTime &moment);
    // Nothing was typed or recorded.
    bool isBlank() const;
    // For the statement that inserts a lecture.
    QVariantList row() const;
};

// As JSON.
QByteArray toBytes(const LectureJournal &journal);
// Blanks may follow. Null for anything else.
std::optional<LectureJournal> journalFrom(const QByteArray &bytes);

// What is known of a journal's file.
struct JournalFile
{
    // Only what was read whole can be worthless: it holds no journal, and never will.
    enum class State { Missing, Unreadable, Worthless, Read };

    State state;
    LectureJournal journal = {}; // when it was read
};
JournalFile readJournal(const QString &path);

// Beside the journal of the open lecture: what was to be written last, at once and without waiting
// for a disk. It is ahead of the journal when the program is killed while a slow disk takes its
// time. After a power cut it may hold anything, and only what is whole counts.
QString latestOf(const QString &journalPath);
// False when it could not be; what stood there still does then.
bool writeLatest(const QString &journalPath, const QByteArray &bytes);
// False when it is still there. The disk may have it until the names of the folder are synced, and
// nothing else may go from there before that: it would be all that is known.
bool removeLatest(const QString &journalPath);
// The journal, or what is ahead of it.
struct LatestJournal
{
    JournalFile file;
    bool isAhead;
};
LatestJournal readLatest(const QString &journalPath);

// What a lecture is called whose subject was typed as this.
QString subjectToStore(const QString &typed);
// The arguments of the statement that inserts a lecture.
QVariantList newLectureRow(const QString &subject, const QString &notes, const QString &day,
                           const QString &audioPath, const QString &duration);

// Stored with every lecture: they hold the place of what the program does not ask for yet, and are
// wanted as they are.
inline constexpr QLatin1String NewLectureCourse("test course");
inline constexpr QLatin1String NewLectureStart("10.00 AM");
inline constexpr QLatin1String NewLectureEnd("11.30 AM");
inline constexpr QLatin1String NoAudio("No Audio");

} // namespace tarvelo::store
