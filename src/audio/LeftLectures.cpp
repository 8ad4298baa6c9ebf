#include "audio/LeftLectures.h"

#include "audio/AudioFileLocations.h"
#include "audio/DurationText.h"
#include "audio/engine/LeftTake.h"
#include "platform/Dates.h"
#include "platform/DurableFiles.h"
#include "platform/DurableMove.h"
#include "platform/SteadyFile.h"
#include "store/LectureDatabase.h"
#include "store/Statements.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>

namespace tarvelo::audio {

using store::LectureJournal;

namespace {

const QString OpenJournal = QStringLiteral("lecture.journal");
const QString ClosedMark = QStringLiteral("lecture.closed");
const QString JournalEnding = QStringLiteral(".journal");
const QString NamePattern = QStringLiteral("leftover-*");
const QString DayFormat = QStringLiteral("yyyy-MM-dd");

// Of a take in which nothing can be heard; a longer one may be damaged, and is not thrown away.
constexpr qint64 MostBytesOfSilence = 64 << 10;

bool holdsNothing(const QString &takePath)
{
    return QFileInfo(takePath).size() < MostBytesOfSilence &&
           engine::secondsOfLeftTake(takePath) <= 0;
}

} // namespace

LeftLectures::LeftLectures(const AudioFileLocations &locations, const platform::Dates &dates,
                           store::LectureDatabase &database)
    : m_locations(locations)
    , m_dates(dates)
    , m_database(database)
{
}

// The recording goes first, under a name that the journal tells: whoever is interrupted between the
// two puts them together again.
void LeftLectures::setAside()
{
    m_folder = m_locations.temporaryFolder();
    const QString path = pathOf(OpenJournal);
    const bool isClosed = QFileInfo::exists(pathOf(ClosedMark));
    const auto journal = store::journalIn(path);
    const bool hasJournal = QFileInfo::exists(path);
    const QString name = freeName(journal ? journal->id : QString());
    // A mark beside a journal that has no take yet is that of an older take.
    const bool areTakesLeft = !isClosed || (journal && !journal->take.isEmpty());
    const QFileInfoList takes = QDir(m_folder).entryInfoList(
        {QFileInfo(m_locations.temporaryBasePath()).fileName() + QStringLiteral(".*")},
        QDir::Files);
    bool hasTake = false;
    for (const QFileInfo &take : takes) {
        if (!areTakesLeft)
            break;
        if (!(journal && journal->isDone) && holdsNothing(take.filePath())) {
            QFile::remove(take.filePath());
            continue;
        }
        const bool isOfJournal =
            hasJournal && !hasTake &&
            (takes.size() == 1 || (journal && journal->take.endsWith(take.suffix())));
        setTakeAside(take.filePath(), isOfJournal ? name : freeName({}));
        hasTake = hasTake || isOfJournal;
    }
    const bool isBlank = journal && !hasTake && journal->subject.trimmed().isEmpty() &&
                         journal->notes.trimmed().isEmpty() && !journal->isDone &&
                         QDir(m_folder).entryList({name + QStringLiteral(".*")}).isEmpty();
    if (isBlank || (hasJournal && !journal && !hasTake))
        platform::SteadyFile(path).remove();
    else if (hasJournal)
        platform::SteadyFile(path).renameTo(pathOf(name + JournalEnding));
}

void LeftLectures::setTakeAside(const QString &path, const QString &name)
{
    platform::renameDurably(path, pathOf(name + u'.' + QFileInfo(path).suffix()));
}

// For a journal of that name: what an earlier try moved already is no hindrance.
QString LeftLectures::freeName(const QString &wish) const
{
    static const QRegularExpression isPlain(QStringLiteral("^[0-9T]+$"));
    const QString id = isPlain.match(wish).hasMatch()
                           ? wish
                           : m_dates.now().toUTC().toString(QStringLiteral("yyyyMMdd'T'HHmmsszzz"));
    const QString first = QStringLiteral("leftover-") + id;
    QString name = first;
    const auto isTaken = [this, &wish](const QString &candidate) {
        return wish.isEmpty()
                   ? !QDir(m_folder).entryList({candidate + QStringLiteral(".*")}).isEmpty()
                   : QFileInfo::exists(pathOf(candidate + JournalEnding));
    };
    for (int number = 2; isTaken(name); ++number)
        name = first + u'-' + QString::number(number);
    return name;
}

QList<LeftLectures::Left> LeftLectures::all() const
{
    if (m_folder.isEmpty())
        return {};
    QStringList names;
    const auto files = QDir(m_folder).entryInfoList({NamePattern}, QDir::Files, QDir::Name);
    for (const QFileInfo &file : files)
        names.append(file.completeBaseName());
    names.removeDuplicates();
    QList<Left> lectures;
    for (const QString &name : names) {
        Left left{.journalPath = pathOf(name + JournalEnding), .takePath = {}, .journal = {}};
        for (const QFileInfo &file : files)
            if (file.completeBaseName() == name && file.filePath() != left.journalPath)
                left.takePath = file.filePath();
        left.journal = store::journalIn(left.journalPath).value_or(LectureJournal());
        lectures.append(left);
    }
    return lectures;
}

QList<LeftLectures::Left> LeftLectures::undecided() const
{
    QList<Left> lectures = all();
    lectures.removeIf([](const Left &left) { return left.journal.isDone; });
    for (Left &left : lectures) {
        if (!left.takePath.isEmpty())
            left.seconds = engine::secondsOfLeftTake(left.takePath);
        // The day on which it ended is the best that is known of a recording alone.
        const QDateTime end = QFileInfo(left.takePath).lastModified();
        if (left.journal.day.isEmpty()) {
            left.journal.day = m_dates.format(end, DayFormat);
            left.journal.date = m_dates.formatFixed(end, DayFormat);
        }
    }
    return lectures;
}

int LeftLectures::owed() const
{
    const QList<Left> lectures = all();
    return static_cast<int>(
        std::ranges::count_if(lectures, [](const Left &left) { return left.journal.isDone; }));
}

LeftLectures::Kept LeftLectures::keep(const Left &left)
{
    Left kept = left;
    if (kept.journal.day.isEmpty())
        kept.journal.day = m_dates.format(m_dates.now(), DayFormat);
    if (!decide(kept))
        return Kept::Undecided;
    return moveTake(kept) && store(kept) ? Kept::Stored : Kept::Later;
}

// From here on it is kept, whoever does the rest.
bool LeftLectures::decide(Left &left)
{
    left.journal.isDone = true;
    return choosePlace(left);
}

bool LeftLectures::choosePlace(Left &left)
{
    const bool hasTake = !left.takePath.isEmpty();
    left.journal.target = hasTake ? m_locations.freeAudioSavePath() : QString();
    left.journal.duration =
        hasTake ? getDuration(wholeSeconds(engine::secondsOfLeftTake(left.takePath)))
                : QString(store::NoAudio);
    return platform::SteadyFile(left.journalPath).replace(store::toBytes(left.journal));
}

bool LeftLectures::moveTake(Left &left)
{
    if (left.takePath.isEmpty()) {
        if (left.journal.target.isEmpty())
            left.journal.duration = store::NoAudio;
        return true;
    }
    // Without it the recording plays too.
    engine::finishLeftTake(left.takePath);
    const bool isPlaceFree =
        !left.journal.target.isEmpty() && !QFileInfo::exists(left.journal.target);
    return (isPlaceFree || choosePlace(left)) &&
           platform::moveDurably(left.takePath, left.journal.target);
}

std::optional<qint64> LeftLectures::storedRow(const Left &left) const
{
    store::Sqlite *const database = m_database.connection();
    const LectureJournal &journal = left.journal;
    const auto rows =
        journal.target.isEmpty()
            ? database->executeQuery(
                  QStringLiteral("SELECT ID FROM audioData WHERE subject = ? AND notes = ? AND "
                                 "recordingDate = ? AND audioFileFullPath = ''"),
                  store::subjectToStore(journal.subject), journal.notes, journal.day)
            : database->executeQuery(
                  QStringLiteral("SELECT ID FROM audioData WHERE audioFileFullPath = ?"),
                  journal.target);
    return rows && !rows->isEmpty() ? std::optional(rows->first().first().toLongLong())
                                    : std::nullopt;
}

// Without the reset that a failed write of the program is followed by: nobody asked for this one
// just now.
std::optional<qint64> LeftLectures::store(const Left &left)
{
    store::Sqlite *const database = m_database.openDb();
    if (!database)
        return std::nullopt;
    const auto insert = [&] {
        return database->executeNonQueryArguments(store::statements::Insert, left.journal.row());
    };
    auto row = storedRow(left);
    const auto makeTable = [&] {
        return database->executeNonQuery(store::statements::CreateAfterInsert);
    };
    if (!row && (insert() || (makeTable() && insert())))
        row = database->lastinsertedRowID();
    if (row)
        platform::SteadyFile(left.journalPath).remove();
    return row;
}

void LeftLectures::storeOwed(const std::function<void(const QString &, qint64)> &stored)
{
    for (Left &left : all()) {
        if (!left.journal.isDone)
            continue;
        const QString &target = left.journal.target;
        // A recording that was moved and is gone was deleted with its lecture.
        if (left.takePath.isEmpty() && !target.isEmpty() && !QFileInfo::exists(target)) {
            platform::SteadyFile(left.journalPath).remove();
            continue;
        }
        const auto row = moveTake(left) ? store(left) : std::nullopt;
        if (row && stored)
            stored(left.journal.id, *row);
    }
}

bool LeftLectures::change(const QString &id, const QString &subject, const QString &notes)
{
    for (Left &left : all()) {
        if (left.journal.id != id)
            continue;
        left.journal.subject = subject;
        left.journal.notes = notes;
        return platform::SteadyFile(left.journalPath).replace(store::toBytes(left.journal));
    }
    return true;
}

void LeftLectures::discard(const QString &id)
{
    for (const Left &left : all())
        if (left.journal.id == id)
            discard(left);
}

void LeftLectures::discard(const Left &left)
{
    if (!left.takePath.isEmpty())
        platform::removeDurably(left.takePath);
    platform::SteadyFile(left.journalPath).remove();
}

QString LeftLectures::pathOf(const QString &name) const
{
    return m_folder + u'/' + name;
}

} // namespace tarvelo::audio
