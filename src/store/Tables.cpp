#include "store/Tables.h"

#include "store/Sqlite.h"
#include "store/Statements.h"

namespace tarvelo::store {

namespace {

std::optional<bool> hasTable(Sqlite &database, const char *schema, const QString &name)
{
    const QString sql = QStringLiteral("SELECT count(*) FROM %1.sqlite_master WHERE name = ?")
                            .arg(QLatin1String(schema));
    const auto count = numberFrom(database, sql, {name});
    return count ? std::optional(*count > 0) : std::nullopt;
}

} // namespace

std::optional<int> numberFrom(Sqlite &database, const QString &sql, const QVariantList &arguments)
{
    const auto rows = database.executeQueryArguments(sql, arguments);
    if (!rows || rows->isEmpty())
        return std::nullopt;
    return rows->first().first().toInt();
}

std::optional<bool> hasLectureTable(Sqlite &database, const char *schema)
{
    return hasTable(database, schema, QStringLiteral("audioData"));
}

std::optional<bool> saysWhatWent(Sqlite &database, const char *schema)
{
    return hasTable(database, schema, QStringLiteral("goingLectures"));
}

bool hasLectures(Sqlite &database, const char *schema)
{
    return hasLectureTable(database, schema).value_or(false);
}

bool makeLecturesIfMissing(Sqlite &database)
{
    return hasLectures(database, "main") || database.executeNonQuery(statements::CreateAfterInsert);
}

} // namespace tarvelo::store
