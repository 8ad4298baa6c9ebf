#include "store/LectureBackups.h"

#include "platform/Clock.h"
#include "platform/DurableFiles.h"
#include "platform/PrivateFiles.h"
#include "store/Sqlite.h"
#include "store/Statements.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <utility>

namespace tarvelo::store {

namespace {

// Names sort by the time.
const QString NameFormat = QStringLiteral("'TarveloInfo' yyyy-MM-dd HH.mm.ss.zzz'.db'");
const QString NameFilter = QStringLiteral("TarveloInfo *.db");

// Beside the size of the database: for a journal and for what the file system itself needs.
constexpr qint64 RoomForTheRest = 128 << 10; // bytes

const QString LectureTable = QStringLiteral("audioData");
// In a copy: the lectures that were about to go when it was made. A copy without this table is of a
// file that could not be asked.
const QString MarkTable = QStringLiteral("goingLectures");

const QString Columns =
    QStringLiteral("subject, course, notes, recordingDate, lectureStartTime, lectureEndTime, "
                   "audioFileFullPath, recordDuration");

// The lectures of a copy that are missing, by whether its marks are to be asked (?1). One with a
// recording is there when that recording is. One without is there when another is like it; when it
// is marked, only under its own ID.
const QString FromMissing = QStringLiteral(
    " FROM copy.audioData AS lost WHERE (NOT ?1 OR ID IN (SELECT ID FROM copy.goingLectures)) AND "
    "NOT EXISTS (SELECT 1 FROM main.audioData AS here WHERE CASE WHEN lost.audioFileFullPath <> '' "
    "THEN here.audioFileFullPath = lost.audioFileFullPath ELSE (NOT ?1 OR here.ID = lost.ID) AND "
    "here.audioFileFullPath IS lost.audioFileFullPath AND here.subject IS lost.subject AND "
    "here.notes IS lost.notes AND here.recordingDate IS lost.recordingDate END)");
// Without the marks' table the text above cannot be prepared.
const QString FromMissingUnmarked =
    QString(FromMissing)
        .replace(QStringLiteral("copy.goingLectures"), QStringLiteral("copy.audioData"));

std::optional<int> number(const std::optional<Rows> &rows)
{
    if (!rows || rows->isEmpty())
        return std::nullopt;
    return rows->first().first().toInt();
}

// Null when the file cannot be asked.
std::optional<bool> hasTable(Sqlite &database, const char *schema, const QString &name)
{
    const QString sql = QStringLiteral("SELECT count(*) FROM %1.sqlite_master WHERE name = ?")
                            .arg(QLatin1String(schema));
    const auto count = number(database.executeQuery(sql, name));
    return count ? std::optional(*count > 0) : std::nullopt;
}

bool makesTable(Sqlite &database)
{
    return hasTable(database, "main", LectureTable).value_or(false) ||
           database.executeNonQuery(statements::CreateAfterInsert);
}

// A copy beside the database, under the name "copy", as long as this lives.
class AttachedCopy final
{
public:
    AttachedCopy(Sqlite &database, const QString &path)
        : m_database(database)
        , m_isAttached(QFileInfo(path).isFile() &&
                       database.executeNonQuery(QStringLiteral("ATTACH ? AS copy"), path))
    {
    }
    AttachedCopy(const AttachedCopy &) = delete;
    AttachedCopy &operator=(const AttachedCopy &) = delete;
    ~AttachedCopy()
    {
        if (m_isAttached)
            m_database.executeNonQuery(QStringLiteral("DETACH copy"));
    }

    bool isReadable() const
    {
        return m_isAttached && hasTable(m_database, "copy", LectureTable).value_or(false);
    }
    bool isMarked() const { return hasTable(m_database, "copy", MarkTable).value_or(false); }

    int lectures() const
    {
        return number(
                   m_database.executeQuery(QStringLiteral("SELECT count(*) FROM copy.audioData")))
            .value_or(0);
    }
    int missing() const
    {
        if (!hasTable(m_database, "main", LectureTable).value_or(false))
            return lectures();
        return number(m_database.executeQueryArguments(
                          QStringLiteral("SELECT count(*)") + fromMissing(), {isMarked()}))
            .value_or(0);
    }

    // Under its own ID where that is free; the others get new ones behind all there are. The free
    // ones first, so that none of theirs is given away.
    bool putBackMissing()
    {
        const QString isTaken = QStringLiteral("lost.ID IN (SELECT ID FROM main.audioData)");
        const QString sql =
            QStringLiteral("INSERT INTO main.audioData (ID, %1) SELECT CASE WHEN %2 THEN NULL ELSE "
                           "lost.ID END, %1%3 ORDER BY %2, lost.ID")
                .arg(Columns, isTaken, fromMissing());
        return m_database.executeNonQueryArguments(sql, {isMarked()}) &&
               (!isMarked() ||
                m_database.executeNonQuery(QStringLiteral("DELETE FROM copy.goingLectures")));
    }

private:
    QString fromMissing() const { return isMarked() ? FromMissing : FromMissingUnmarked; }

    Sqlite &m_database;
    const bool m_isAttached;
};

bool vacuumsInto(Sqlite &database, const QString &path)
{
    QFile::remove(path);
    platform::createFileIfMissing(path);
    return database.executeNonQuery(QStringLiteral("VACUUM INTO ?"), path);
}

// Byte for byte, of a file that cannot be asked.
bool copiesFile(const QString &from, const QString &to)
{
    QFile::remove(to);
    const bool isCopied = QFile::copy(from, to);
    platform::keepFilePrivate(to);
    return isCopied;
}

bool isSame(const QString &onePath, const QString &otherPath)
{
    QFile one(onePath);
    QFile other(otherPath);
    return one.open(QIODevice::ReadOnly) && other.open(QIODevice::ReadOnly) &&
           one.size() == other.size() && one.readAll() == other.readAll();
}

bool marks(const QString &copyPath, const QString &going)
{
    Sqlite copy(copyPath);
    return copy.beginTransaction() &&
           copy.executeNonQuery(
               QStringLiteral("CREATE TABLE goingLectures (ID INTEGER PRIMARY KEY)")) &&
           copy.executeNonQuery(QStringLiteral("INSERT INTO goingLectures ") + going) &&
           copy.commit();
}

} // namespace

LectureBackups::LectureBackups(QString folder, const platform::Clock &clock)
    : m_folder(std::move(folder))
    , m_clock(clock)
{
}

QString LectureBackups::keep(Sqlite &database, const QString &going)
{
    const auto isThere = hasTable(database, "main", LectureTable);
    const auto leaving = database.executeQuery(going);
    if (isThere && (!*isThere || (leaving && leaving->isEmpty())))
        return {};
    platform::createFolderIfMissing(m_folder);
    QString path = pathOf(nameAfter(namesOfCopies()));
    if (writesCopy(database, going, path))
        return path;
    return QFile::remove(roomPath()) && writesCopy(database, going, path) ? path : QString();
}

bool LectureBackups::writesCopy(Sqlite &database, const QString &going, const QString &path) const
{
    const QString half = pathOf(QStringLiteral(".copy"));
    const bool isWritten = (vacuumsInto(database, half) && marks(half, going)) ||
                           copiesFile(database.filePath(), half);
    const bool isKept = isWritten && platform::renameDurably(half, path);
    QFile::remove(half);
    QFile::remove(half + QStringLiteral("-journal"));
    return isKept;
}

void LectureBackups::settle(Sqlite &database, const QString &copyPath)
{
    if (copyPath.isEmpty())
        return;
    if (isOfNoUse(database, copyPath))
        QFile::remove(copyPath);
    const QStringList names = namesOfCopies();
    for (qsizetype at = 0; at < names.size() - Kept; ++at)
        QFile::remove(pathOf(names.at(at)));
}

// A write that fails again and again, since the file is locked or damaged, must not push older
// copies out.
bool LectureBackups::isOfNoUse(Sqlite &database, const QString &copyPath) const
{
    {
        const AttachedCopy copy(database, copyPath);
        if (copy.isReadable())
            return copy.missing() == 0;
    }
    const QStringList names = namesOfCopies();
    return names.size() > 1 && isSame(copyPath, pathOf(names.at(names.size() - 2)));
}

QList<LectureBackups::Copy> LectureBackups::copies(Sqlite &database) const
{
    QList<Copy> copies;
    for (const QString &name : namesOfCopies()) {
        const AttachedCopy copy(database, pathOf(name));
        if (copy.isReadable())
            copies.prepend({pathOf(name), QDateTime::fromString(name, NameFormat), copy.lectures(),
                            copy.missing()});
    }
    return copies;
}

// Both files change or none does: SQLite sees to that for all that is attached.
std::optional<int> LectureBackups::bringBack(const QString &copyPath, Sqlite &database) const
{
    AttachedCopy copy(database, copyPath);
    if (!copy.isReadable())
        return std::nullopt;
    const int missing = copy.missing();
    if (missing == 0)
        return 0;
    const bool isBack = database.beginTransaction() && makesTable(database) &&
                        copy.putBackMissing() && database.commit();
    if (isBack)
        return missing;
    database.rollback();
    return std::nullopt;
}

void LectureBackups::holdRoom(const Sqlite &database) const
{
    const qint64 size = QFileInfo(database.filePath()).size();
    if (size == 0)
        return;
    platform::createFolderIfMissing(m_folder);
    platform::holdRoom(roomPath(), size + RoomForTheRest);
}

// Oldest first.
QStringList LectureBackups::namesOfCopies() const
{
    QStringList names = QDir(m_folder).entryList({NameFilter}, QDir::Files);
    names.removeIf(
        [](const QString &name) { return !QDateTime::fromString(name, NameFormat).isValid(); });
    names.sort();
    return names;
}

// Behind all that there are, also when the clock was put back: the oldest are the ones that go.
QString LectureBackups::nameAfter(const QStringList &names) const
{
    QDateTime made = m_clock.now().toLocalTime();
    if (!names.isEmpty())
        made = std::max(made, QDateTime::fromString(names.last(), NameFormat).addMSecs(1));
    return made.toString(NameFormat);
}

QString LectureBackups::pathOf(const QString &name) const
{
    return m_folder + u'/' + name;
}

QString LectureBackups::roomPath() const
{
    return pathOf(QStringLiteral(".room"));
}

} // namespace tarvelo::store
