#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace tarvelo::store {

class Sqlite;

// What is asked of single rows of the lecture table, and changed in them, beside the fixed
// statements of the program. Null: it cannot be known.

std::optional<bool> hasRow(Sqlite &database, qint64 id);
// The highest ID; 0 when there is none.
std::optional<qint64> lastRow(Sqlite &database);
// Their IDs; none without the table.
std::optional<QList<qint64>> rowsWithRecording(Sqlite &database, const QString &audioPath);
// Of lectures without a recording and with an ID above `last`; `day` as it is stored.
std::optional<QList<qint64>> rowsWithTexts(Sqlite &database, const QString &subject,
                                           const QString &notes, const QString &day, qint64 last);

// False when it failed; true also where nothing was to be changed.
bool moveRecording(Sqlite &database, qint64 id, const QString &audioPath, const QString &duration);
// An ID may be given again, and the lecture that has it then must not get the texts of another: the
// row must have that recording or, without one, one of `storedNotes`. False when it failed; how
// many rows it changed is what the connection says.
bool changeTexts(Sqlite &database, qint64 id, const QString &audioPath,
                 const QStringList &storedNotes, const QString &subject, const QString &notes);

} // namespace tarvelo::store
