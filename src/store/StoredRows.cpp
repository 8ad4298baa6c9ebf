#include "store/StoredRows.h"

#include "store/Sqlite.h"
#include "store/Tables.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QVariantList>

namespace tarvelo::store {

namespace {

// A list that ends early is no word about it.
std::optional<QList<qint64>> idsFrom(Sqlite &database, const QString &sql,
                                     const QVariantList &arguments)
{
    const auto rows = database.executeQueryArguments(sql, arguments);
    if (!rows || database.errorCode() != 0)
        return std::nullopt;
    QList<qint64> ids;
    for (const Row &row : *rows)
        ids.append(row.first().toLongLong());
    return ids;
}

// Where there is no table there is no row.
std::optional<QList<qint64>> idsIfThere(Sqlite &database, const QString &sql,
                                        const QVariantList &arguments)
{
    if (hasLectureTable(database, "main") == false)
        return QList<qint64>();
    return idsFrom(database, sql, arguments);
}

} // namespace

std::optional<bool> hasRow(Sqlite &database, qint64 id)
{
    const auto ids =
        idsFrom(database, QStringLiteral("SELECT ID FROM audioData WHERE ID = ?"), {id});
    return ids ? std::optional(!ids->isEmpty()) : std::nullopt;
}

std::optional<qint64> lastRow(Sqlite &database)
{
    const auto ids =
        idsIfThere(database, QStringLiteral("SELECT ifnull(max(ID), 0) FROM audioData"), {});
    if (!ids)
        return std::nullopt;
    return ids->isEmpty() ? 0 : ids->first();
}

std::optional<QList<qint64>> rowsWithRecording(Sqlite &database, const QString &audioPath)
{
    return idsIfThere(database,
                      QStringLiteral("SELECT ID FROM audioData WHERE audioFileFullPath = ?"),
                      {audioPath});
}

std::optional<QList<qint64>> rowsWithTexts(Sqlite &database, const QString &subject,
                                           const QString &notes, const QString &day, qint64 last)
{
    return idsIfThere(database,
                      QStringLiteral("SELECT ID FROM audioData WHERE subject = ? AND notes = ? AND "
                                     "recordingDate = ? AND audioFileFullPath = '' AND ID > ?"),
                      {subject, notes, day, last});
}

bool moveRecording(Sqlite &database, qint64 id, const QString &audioPath, const QString &duration)
{
    return database.executeNonQuery(
        QStringLiteral("UPDATE audioData SET audioFileFullPath = ?, recordDuration = ? "
                       "WHERE ID = ? AND audioFileFullPath <> ?"),
        audioPath, duration, id, audioPath);
}

bool changeTexts(Sqlite &database, qint64 id, const QString &audioPath,
                 const QStringList &storedNotes, const QString &subject, const QString &notes)
{
    const QJsonDocument list(QJsonArray::fromStringList(storedNotes));
    return database.executeNonQuery(
        QStringLiteral("UPDATE audioData SET subject = ?, notes = ? WHERE ID = ? AND "
                       "ifnull(audioFileFullPath, '') = ? AND (audioFileFullPath <> '' OR "
                       "ifnull(notes, '') IN (SELECT value FROM json_each(?)))"),
        subject, notes, id, audioPath, QString::fromUtf8(list.toJson()));
}

} // namespace tarvelo::store
