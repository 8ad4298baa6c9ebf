#pragma once

#include "store/Sqlite.h"

#include <QStringList>
#include <QVariantList>

#include <optional>

namespace tarvelo::store {

// The paths, as the lectures have them, of all recordings whose files have one of the names,
// whatever their folder. Null when the database cannot be asked.
std::optional<QStringList> pathsOfRecordings(const QStringList &names, Sqlite &database);

// The lectures with such recordings; `schema` is "main" or what a copy was attached under.
std::optional<Rows> lecturesWithRecordings(const QStringList &names, const char *schema,
                                           Sqlite &database);

// The arguments of the insert statement, row by row: all of them or none. Makes the table when it
// is missing.
bool insertAll(const QList<QVariantList> &rows, Sqlite &database);

} // namespace tarvelo::store
