#include "store/LectureBackups.h"

#include "platform/Clock.h"
#include "platform/DurableFiles.h"
#include "platform/PrivateFiles.h"
#include "store/AttachedCopy.h"
#include "store/FileBytes.h"
#include "store/GoneLectures.h"
#include "store/Sqlite.h"
#include "store/Statements.h"
#include "store/Tables.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>

#include <algorithm>
#include <utility>

namespace tarvelo::store {

namespace {

// Names sort by the time.
const QString NameFormat = QStringLiteral("'TarveloInfo' yyyy-MM-dd HH.mm.ss.zzz'.db'");
const QString GoingLectures = QStringLiteral("goingLectures");
const QString NameFilter = QStringLiteral("TarveloInfo *.db");

// Beside the size of the database: for a journal and for what the file system itself needs.
constexpr qint64 RoomForTheRest = 128 << 10; // bytes

bool vacuumsInto(Sqlite &database, const QString &path)
{
    removeWithJournal(path);
    platform::createFileIfMissing(path);
    return database.executeNonQuery(QStringLiteral("VACUUM INTO ?"), path);
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

std::optional<QString> LectureBackups::keep(Sqlite &database, const QString &going)
{
    const auto isThere = hasTable(database, "main", QStringLiteral("audioData"));
    const auto leaving = database.executeQuery(going);
    // A list that ends early is no word about what goes.
    const bool areKnown = leaving && database.errorCode() == 0;
    if (isThere && (!*isThere || (areKnown && leaving->isEmpty())))
        return QString();
    platform::createFolderIfMissing(m_folder);
    QString path = pathOf(nameAfter(namesOfCopies()));
    if (writesCopy(database, going, path))
        return path;
    return QFile::remove(roomPath()) && writesCopy(database, going, path) ? std::optional(path)
                                                                          : std::nullopt;
}

bool LectureBackups::writesCopy(Sqlite &database, const QString &going, const QString &path) const
{
    const QString half = pathOf(QStringLiteral(".copy"));
    const bool isWritten = (vacuumsInto(database, half) && marks(half, going)) ||
                           copyWithJournal(database.filePath(), half);
    const bool isKept = isWritten && renameWithJournalDurably(half, path);
    removeWithJournal(half);
    return isKept;
}

void LectureBackups::settle(Sqlite &database, const QString &copyPath)
{
    if (copyPath.isEmpty())
        return;
    if (isOfNoUse(database, copyPath))
        removeWithJournal(copyPath);
    const QStringList names = namesOfCopies();
    for (qsizetype at = 0; at < names.size() - Kept; ++at)
        removeWithJournal(pathOf(names.at(at)));
}

bool LectureBackups::change(const QString &copyPath, const QString &sql,
                            const QVariantList &arguments) const
{
    if (!QFileInfo::exists(copyPath))
        return false;
    Sqlite copy(copyPath);
    const auto isMarked = hasTable(copy, "main", GoingLectures);
    if (!isMarked || !copy.executeNonQuery(statements::SyncNamesToo))
        return false;
    const QString ofGone =
        *isMarked ? sql + QStringLiteral(" AND ID IN (SELECT ID FROM goingLectures)") : sql;
    return copy.executeNonQueryArguments(ofGone, arguments) && copy.changes() > 0;
}

// A write that fails again and again, since the file is locked or damaged, must not push older
// copies out.
bool LectureBackups::isOfNoUse(Sqlite &database, const QString &copyPath) const
{
    {
        const AttachedCopy copy(database, copyPath);
        if (copy.isReadable())
            // One that lectures cannot be counted in is not known to be of no use.
            return copy.missing() == 0 && copy.lectures().value_or(0) > 0;
    }
    const QStringList names = namesOfCopies();
    if (names.size() < 2)
        return false;
    const QString before = pathOf(names.at(names.size() - 2));
    const bool hasJournal = QFile::exists(journalOf(copyPath));
    return haveSameBytes(copyPath, before) &&
           (hasJournal ? haveSameBytes(journalOf(copyPath), journalOf(before))
                       : !QFile::exists(journalOf(before)));
}

QList<LectureBackups::Copy> LectureBackups::copies(Sqlite &database) const
{
    QList<Copy> copies;
    for (const QString &name : namesOfCopies()) {
        const AttachedCopy copy(database, pathOf(name));
        if (copy.isReadable())
            copies.prepend({pathOf(name), QDateTime::fromString(name, NameFormat),
                            copy.lectures().value_or(0),
                            copy.missing().value_or(copy.lectures().value_or(0))});
    }
    return copies;
}

// Both files change or none does: SQLite sees to that for all that is attached. They may have
// changed though that failed, since only its last step did.
std::optional<LecturesBack> LectureBackups::bringBack(const QString &copyPath,
                                                      Sqlite &database) const
{
    AttachedCopy copy(database, copyPath);
    if (!copy.isReadable())
        return std::nullopt;
    const auto missing = copy.missing();
    if (missing == 0)
        return LecturesBack{copyPath};
    const bool hasBegun = database.beginTransaction() && makeLecturesIfMissing(database);
    const auto idsNow = hasBegun ? copy.putBackMissing() : std::nullopt;
    const bool isBack = idsNow && database.commit();
    if (!isBack)
        database.rollback();
    return isBack || (idsNow && copy.missing() == 0)
               ? std::optional(
                     LecturesBack{copyPath, *idsNow, missing.value_or(copy.lectures().value_or(0))})
               : std::nullopt;
}

void LectureBackups::fillIn(QList<QVariantList> &rows, Sqlite &database) const
{
    QHash<QString, QVariantList *> unknown;
    QStringList recordings;
    for (QVariantList &row : rows) {
        const QString path = row.at(RecordingColumn).toString();
        unknown.insert(QDir::cleanPath(path), &row);
        recordings.append(QFileInfo(path).fileName());
    }
    QStringList names = namesOfCopies();
    std::reverse(names.begin(), names.end());
    for (const QString &name : std::as_const(names)) {
        const AttachedCopy copy(database, pathOf(name));
        for (const QVariantList &known : copy.lecturesWith(recordings))
            if (QVariantList *const row =
                    unknown.take(QDir::cleanPath(known.at(RecordingColumn).toString())))
                *row = known;
    }
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
