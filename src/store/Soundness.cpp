#include "store/Soundness.h"

#include "store/Sqlite.h"

#include <QString>
#include <QVariant>

#include <sqlite3.h>

namespace tarvelo::store {

namespace {

Soundness soundnessByError(const Sqlite &database)
{
    const int code = database.errorCode();
    return code == SQLITE_CORRUPT || code == SQLITE_NOTADB ? Soundness::Damaged
                                                           : Soundness::Unknown;
}

} // namespace

Soundness soundnessAtFirstSight(Sqlite &database)
{
    const auto rows = database.executeQuery(QStringLiteral("SELECT count(*) FROM sqlite_master"));
    return rows && !rows->isEmpty() ? Soundness::Sound : soundnessByError(database);
}

Soundness soundnessOfEveryPage(Sqlite &database)
{
    const auto rows = database.executeQuery(QStringLiteral("PRAGMA quick_check(1)"));
    if (!rows || rows->isEmpty())
        return soundnessByError(database);
    return rows->first().first() == QVariant(QStringLiteral("ok")) ? Soundness::Sound
                                                                   : Soundness::Damaged;
}

} // namespace tarvelo::store
