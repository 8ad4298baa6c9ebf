#include "store/RecordingRows.h"

#include "store/Statements.h"
#include "store/Tables.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <utility>

namespace tarvelo::store {

namespace {

// What stands behind the last slash: the path without what is left of it when all but slashes are
// cut from its end.
const QString FileName = QStringLiteral("replace(audioFileFullPath, rtrim(audioFileFullPath, "
                                        "replace(audioFileFullPath, '/', '')), '')");

} // namespace

std::optional<QStringList> pathsOfRecordings(const QStringList &names, Sqlite &database)
{
    const auto isThere = hasLectureTable(database, "main");
    if (!isThere)
        return std::nullopt;
    if (!*isThere)
        return QStringList();
    const auto rows = lecturesWithRecordings(names, "main", database);
    if (!rows)
        return std::nullopt;
    QStringList paths;
    for (const Row &row : *rows)
        paths.append(row.value(QStringLiteral("audioFileFullPath")).toString());
    return paths;
}

std::optional<Rows> lecturesWithRecordings(const QStringList &names, const char *schema,
                                           Sqlite &database)
{
    const QByteArray list =
        QJsonDocument(QJsonArray::fromStringList(names)).toJson(QJsonDocument::Compact);
    const QString sql = QStringLiteral("SELECT %1 FROM %2.audioData WHERE audioFileFullPath <> '' "
                                       "AND %3 IN (SELECT value FROM json_each(?)) ORDER BY ID")
                            .arg(LectureColumns, QLatin1String(schema), FileName);
    auto rows = database.executeQueryArguments(sql, {QString::fromUtf8(list)});
    // What ends early is not known.
    return database.errorCode() == 0 ? std::move(rows) : std::nullopt;
}

bool insertAll(const QList<QVariantList> &rows, Sqlite &database)
{
    if (rows.isEmpty())
        return true;
    bool isDone = database.beginTransaction() && makeLecturesIfMissing(database);
    for (const QVariantList &row : rows)
        isDone = isDone && database.executeNonQueryArguments(statements::Insert, row);
    if (isDone && database.commit())
        return true;
    database.rollback();
    return false;
}

} // namespace tarvelo::store
