#include "store/Integrity.h"

#include "store/Sqlite.h"

#include <QString>
#include <QVariant>

#include <sqlite3.h>

namespace tarvelo::store {

namespace {

Integrity integrityByError(const Sqlite &database)
{
    const int code = database.errorCode();
    return code == SQLITE_CORRUPT || code == SQLITE_NOTADB ? Integrity::Damaged
                                                           : Integrity::Unknown;
}

} // namespace

Integrity integrityAtFirstSight(Sqlite &database)
{
    const auto rows = database.executeQuery(QStringLiteral("SELECT count(*) FROM sqlite_master"));
    return rows && !rows->isEmpty() ? Integrity::Intact : integrityByError(database);
}

Integrity integrityOfEveryPage(Sqlite &database)
{
    const auto rows = database.executeQuery(QStringLiteral("PRAGMA quick_check(1)"));
    if (!rows || rows->isEmpty())
        return integrityByError(database);
    return rows->first().first() == QVariant(QStringLiteral("ok")) ? Integrity::Intact
                                                                   : Integrity::Damaged;
}

} // namespace tarvelo::store
