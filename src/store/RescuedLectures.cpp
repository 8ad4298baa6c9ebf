#include "store/RescuedLectures.h"

#include "platform/PrivateFiles.h"
#include "store/FileBytes.h"
#include "store/Sqlite.h"
#include "store/Tables.h"

#include <QFile>
#include <QIODevice>
#include <QScopeGuard>
#include <QVariantList>

#include <sqlite3.h>

#include <algorithm>
#include <optional>

namespace tarvelo::store {

namespace {

constexpr int RowsAtOnce = 256;
// More than hang on one page of the tree: where so many cannot be read in a row, none follows.
constexpr qint64 LongestGap = 20000;
// An ID so far from the one before it was not given but comes from the damage.
constexpr qint64 FarAway = 1000000;

// Where SQLite keeps them in a file of its own.
constexpr qsizetype HeaderSize = 100;
constexpr qsizetype PageSize = 4096;
constexpr qsizetype ChangeCounter = 24;

bool makeEmpty(const QString &path)
{
    removeWithRollbackJournal(path);
    platform::createFileIfMissing(path);
    Sqlite database(path);
    return makeLecturesIfMissing(database);
}

qint64 idFrom(Sqlite &database, const QString &sql, const QVariantList &arguments)
{
    const auto rows = database.executeQueryArguments(sql, arguments);
    return rows && !rows->isEmpty() ? rows->first().first().toLongLong() : 0;
}

// The ID behind the last one that was brought over from `next` on.
qint64 idBehind(Sqlite &database, qint64 next)
{
    // As a text, since numbers are cut to 32 bits.
    const QString sql =
        QStringLiteral("SELECT CAST(max(ID) AS TEXT) FROM main.audioData WHERE ID < ?");
    const qint64 last = idFrom(database, sql, {next + FarAway});
    return std::max(last, next) + 1;
}

// What reading a damaged place ends with, also where a column's name is damaged. Everything else,
// such as a full disk, is no word about the lectures.
bool isDamage(int code)
{
    return code == SQLITE_CORRUPT || code == SQLITE_NOTADB || code == SQLITE_TOOBIG ||
           code == SQLITE_ERROR;
}

struct Rescued
{
    int lectures = 0;
    bool isWhole = true; // nothing was skipped
};

// Reads on behind every place that cannot be read: from an ID on, in ever fewer rows at once. Null
// when something else than the damage was in the way.
std::optional<Rescued> bringOver(Sqlite &database)
{
    const QString sql =
        QStringLiteral("INSERT OR IGNORE INTO main.audioData (ID, %1) SELECT ID, %1 FROM "
                       "lost.audioData NOT INDEXED WHERE ID >= ? ORDER BY ID LIMIT ?")
            .arg(LectureColumns);
    Rescued rescued;
    qint64 next = 0;
    int rows = RowsAtOnce;
    for (qint64 gap = 0; gap < LongestGap;) {
        if (database.executeNonQueryArguments(sql, {next, rows})) {
            const int changes =
                numberFrom(database, QStringLiteral("SELECT changes()")).value_or(0);
            if (changes == 0)
                return rescued;
            rescued.lectures += changes;
            next = idBehind(database, next);
            rows = RowsAtOnce;
            gap = 0;
        } else if (!isDamage(database.errorCode())) {
            return std::nullopt;
        } else if (rescued.isWhole = false; database.errorCode() == SQLITE_ERROR) {
            return rescued;
        } else if (rows > 1) {
            rows /= 4;
        } else {
            ++next;
            ++gap;
        }
    }
    return rescued;
}

// Each step stands for itself: after a damaged page SQLite ends no transaction well. Nothing is
// waited for, since the caller forces the whole file to the disk.
std::optional<Rescued> rescue(const QString &readablePath, const QString &intactPath)
{
    if (!makeEmpty(intactPath))
        return std::nullopt;
    Sqlite intact(intactPath);
    const bool hasTable =
        intact.executeNonQuery(QStringLiteral("ATTACH ? AS lost"), readablePath) &&
        hasLectures(intact, "lost");
    if (!hasTable)
        return isDamage(intact.errorCode()) || intact.errorCode() == SQLITE_OK
                   ? std::optional(Rescued{0, false})
                   : std::nullopt;
    intact.executeNonQuery(QStringLiteral("PRAGMA main.synchronous = OFF"));
    return bringOver(intact);
}

// The file with its beginning replaced by that of a new one. Of a file that says wrongly what it is
// or how long it is, the rest can be read again so.
bool writeWithNewBeginning(const QString &damagedPath, const QString &path, qsizetype length)
{
    QFile damaged(damagedPath);
    QFile made(path);
    if (!makeEmpty(path) || !damaged.open(QIODevice::ReadOnly) || !made.open(QIODevice::ReadWrite))
        return false;
    QByteArray beginning = made.read(length);
    // The length that the beginning tells is asked for only while this goes with another number.
    beginning[ChangeCounter] = '\x7f';
    const QByteArray content = damaged.readAll();
    beginning.truncate(std::min(beginning.size(), content.size()));
    const QByteArray whole = beginning + content.mid(beginning.size());
    return made.resize(0) && made.seek(0) && made.write(whole) == whole.size() && made.flush();
}

} // namespace

bool rescueLectures(const QString &damagedPath, const QString &intactPath)
{
    const QString readable = intactPath + QStringLiteral(".read");
    const QString attempt = intactPath + QStringLiteral(".attempt");
    const auto tidy = qScopeGuard([&] {
        removeWithRollbackJournal(readable);
        removeWithRollbackJournal(attempt);
    });
    Rescued best{-1, false};
    // The whole first page says where the table begins, so another one is the last way: it may lead
    // to lectures that were deleted.
    for (const qsizetype newBeginning : {qsizetype(0), HeaderSize, PageSize}) {
        if (best.isWhole || (newBeginning == PageSize && best.lectures > 0))
            break;
        const bool isWritten = newBeginning == 0
                                   ? copyWithRollbackJournal(damagedPath, readable)
                                   : writeWithNewBeginning(damagedPath, readable, newBeginning);
        const auto rescued = isWritten ? rescue(readable, attempt) : std::nullopt;
        if (!rescued)
            return false;
        if (rescued->lectures <= best.lectures)
            continue;
        removeWithRollbackJournal(intactPath);
        if (!QFile::rename(attempt, intactPath))
            return false;
        best = *rescued;
    }
    return true;
}

} // namespace tarvelo::store
