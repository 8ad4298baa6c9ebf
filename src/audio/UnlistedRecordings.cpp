#include "audio/UnlistedRecordings.h"

#include "audio/AudioFileLocations.h"
#include "audio/DurationText.h"
#include "audio/FileFormats.h"
#include "audio/LeftFiles.h"
#include "audio/RecordingDay.h"
#include "platform/SureReading.h"
#include "store/LectureBackups.h"
#include "store/LectureDatabase.h"
#include "store/LectureJournal.h"
#include "store/RecordingRows.h"

#include <QDir>
#include <QFileInfo>
#include <QSet>

#include <utility>

namespace tarvelo::audio {

namespace {

const QStringList JournalEndings{QStringLiteral("journal"), QStringLiteral("closed"),
                                 QStringLiteral("latest"), QStringLiteral("spare")};

bool isJournal(const QString &name)
{
    return JournalEndings.contains(QFileInfo(name).suffix()) &&
           !name.startsWith(LeftFiles::unreadBegin());
}

// Empty when it promises none, null when that cannot be read now.
std::optional<QString> promisedBy(const QString &journal)
{
    const store::JournalFile found = store::readJournal(journal);
    return found.state == store::JournalFile::State::Unreadable
               ? std::nullopt
               : std::optional(found.journal.target);
}

// The same for all ways to write a path to the same file.
QString plain(const QString &path)
{
    const QString real = QFileInfo(path).canonicalFilePath();
    return real.isEmpty() ? QDir::cleanPath(path) : real;
}

QStringList namesOf(const QStringList &paths)
{
    QStringList names;
    for (const QString &path : paths)
        names.append(QFileInfo(path).fileName());
    return names;
}

} // namespace

UnlistedRecordings::UnlistedRecordings(store::LectureDatabase &database,
                                       const platform::Dates &dates, Sources sources)
    : m_database(database)
    , m_dates(dates)
    , m_sources(std::move(sources))
{
}

UnlistedRecordings::~UnlistedRecordings() = default;

void UnlistedRecordings::search()
{
    m_found.clear();
    m_search = std::make_unique<RecordingSearch>(unlisted());
    connect(m_search.get(), &RecordingSearch::finished, this,
            [this](const QList<FoundRecording> &recordings) {
                m_found = recordings;
                m_search.release()->deleteLater();
                Q_EMIT searched();
            });
}

std::optional<int> UnlistedRecordings::bringBack()
{
    const QStringList still = unlisted();
    m_found.removeIf([&still](const FoundRecording &found) { return !still.contains(found.path); });
    store::Sqlite *const database = m_database.openToWrite();
    if (!database)
        return std::nullopt;
    QList<QVariantList> rows;
    QStringList paths;
    for (const FoundRecording &recording : std::as_const(m_found)) {
        rows.append(rowFor(recording));
        paths.append(recording.path);
    }
    m_database.backups().fillIn(rows, *database);
    if (!store::insertAll(rows, *database))
        return std::nullopt;
    m_found.clear();
    return static_cast<int>(rows.size());
}

// In the order of their names, each file once, with the paths that a lecture would have.
QStringList UnlistedRecordings::unlisted() const
{
    const QString folder = m_sources.audioFolder();
    QStringList paths;
    QStringList filters;
    for (const FileFormat &format : FileFormats)
        filters.append(QStringLiteral("*.") + QLatin1String(format.extension));
    for (const QFileInfo &file : QDir(folder).entryInfoList(filters, QDir::Files, QDir::Name))
        if (file.size() > 0)
            paths.append(folder + u'/' + file.fileName());
    const auto listedPaths = listed(namesOf(paths));
    const auto promisedPaths = promised();
    if (!listedPaths || !promisedPaths)
        return {};
    QSet<QString> known;
    for (const QString &path : *listedPaths + *promisedPaths)
        known.insert(plain(path));
    paths.removeIf([&known](const QString &path) {
        const qsizetype before = known.size();
        known.insert(plain(path));
        return known.size() == before;
    });
    return paths;
}

// Null when it cannot be known now, and then no file may be taken for one without a lecture.
std::optional<QStringList> UnlistedRecordings::listed(const QStringList &names) const
{
    store::Sqlite *const database = m_database.openDb();
    return database ? store::pathsOfRecordings(names, *database) : std::nullopt;
}

// To lectures whose rows are still to be stored, in this run or at the next start: what lies beside
// a take says so, also what a death left half written. Null when one cannot be read now.
std::optional<QStringList> UnlistedRecordings::promised() const
{
    const QString takes = QFileInfo(m_database.backups().folder()).path() + TakesFolder;
    QStringList folders{takes};
    QStringList paths = m_sources.promised();
    while (!folders.isEmpty()) {
        const QString folder = folders.takeLast();
        const auto names = platform::namesIn(folder);
        if (!names && QFileInfo::exists(folder))
            return std::nullopt;
        for (const QString &name : names.value_or(QStringList())) {
            const QFileInfo file(folder + u'/' + name);
            if (file.isDir() && !file.isSymLink())
                folders.append(file.filePath());
            const auto target = isJournal(name) ? promisedBy(file.filePath()) : QString();
            if (!target)
                return std::nullopt;
            if (!target->isEmpty())
                paths.append(*target);
        }
    }
    return paths;
}

QVariantList UnlistedRecordings::rowFor(const FoundRecording &recording) const
{
    return store::newLectureRow(store::subjectToStore(QString()), QString(),
                                dayOfRecording(recording.path, recording.modified, m_dates),
                                recording.path, getDuration(wholeSeconds(recording.seconds)));
}

} // namespace tarvelo::audio
