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

// Beside the size of the database: for a journal and for what the file system itself needs.
constexpr qint64 RoomForTheRest = 128 << 10; // bytes

bool vacuumInto(Sqlite &database, const QString &path)
{
    removeWithRollbackJournal(path);
    platform::createFileIfMissing(path);
    return database.executeNonQuery(QStringLiteral("VACUUM INTO ?"), path);
}

bool mark(const QString &copyPath, const QString &going)
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
    : m_files(std::move(folder), QStringLiteral("TarveloInfo"))
    , m_clock(clock)
{
}

std::optional<QString> LectureBackups::keep(Sqlite &database, const QString &going)
{
    const auto isThere = hasLectureTable(database, "main");
    const auto leaving = database.executeQuery(going);
    // A list that ends early is no word about what goes.
    const bool areKnown = leaving && database.errorCode() == 0;
    if (isThere && (!*isThere || (areKnown && leaving->isEmpty())))
        return QString();
    platform::createFolderIfMissing(folder());
    QString path = m_files.pathOf(nameAfter(m_files.names()));
    if (writeCopy(database, going, path))
        return path;
    return QFile::remove(m_files.roomPath()) && writeCopy(database, going, path)
               ? std::optional(path)
               : std::nullopt;
}

bool LectureBackups::writeCopy(Sqlite &database, const QString &going, const QString &path) const
{
    const QString half = m_files.pathOf(QStringLiteral(".copy"));
    const bool isWritten = (vacuumInto(database, half) && mark(half, going)) ||
                           copyWithRollbackJournal(database.filePath(), half);
    const bool isKept = isWritten && renameWithRollbackJournalDurably(half, path);
    removeWithRollbackJournal(half);
    return isKept;
}

void LectureBackups::settle(Sqlite &database, const QString &copyPath)
{
    if (copyPath.isEmpty())
        return;
    if (isOfNoUse(database, copyPath))
        removeWithRollbackJournal(copyPath);
    const QStringList names = m_files.names();
    for (qsizetype at = 0; at < names.size() - MostCopies; ++at)
        removeWithRollbackJournal(m_files.pathOf(names.at(at)));
}

bool LectureBackups::change(const QString &copyPath, const QString &sql,
                            const QVariantList &arguments) const
{
    if (!QFileInfo::exists(copyPath))
        return false;
    Sqlite copy(copyPath);
    const auto isMarked = saysWhatWent(copy, "main");
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
    const QStringList names = m_files.names();
    if (names.size() < 2)
        return false;
    const QString before = m_files.pathOf(names.at(names.size() - 2));
    const bool hasJournal = QFile::exists(rollbackJournalOf(copyPath));
    return haveSameBytes(copyPath, before) &&
           (hasJournal ? haveSameBytes(rollbackJournalOf(copyPath), rollbackJournalOf(before))
                       : !QFile::exists(rollbackJournalOf(before)));
}

QList<LectureBackups::Copy> LectureBackups::copies(Sqlite &database) const
{
    QList<Copy> copies;
    for (const QString &name : m_files.names()) {
        const AttachedCopy copy(database, m_files.pathOf(name));
        if (copy.isReadable())
            copies.prepend({m_files.pathOf(name), m_files.madeAt(name), copy.lectures().value_or(0),
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
    QStringList names = m_files.names();
    std::reverse(names.begin(), names.end());
    for (const QString &name : std::as_const(names)) {
        const AttachedCopy copy(database, m_files.pathOf(name));
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
    platform::createFolderIfMissing(folder());
    platform::holdRoom(m_files.roomPath(), size + RoomForTheRest);
}

// Behind all that there are, also when the clock was put back: the oldest are the ones that go.
QString LectureBackups::nameAfter(const QStringList &names) const
{
    QDateTime made = m_clock.now().toLocalTime();
    if (!names.isEmpty())
        made = std::max(made, m_files.madeAt(names.last()).addMSecs(1));
    return m_files.nameOf(made);
}

} // namespace tarvelo::store
