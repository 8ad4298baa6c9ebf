#pragma once

#include <QString>

namespace tarvelo::store {

// Files of the database byte for byte, for when they cannot be asked.

// In the place of what is there, for its user alone.
bool copyBytes(const QString &from, const QString &to);

// The same with the journal beside it. What was changed meanwhile stands in that, so it comes last.
bool copyWithRollbackJournal(const QString &from, const QString &to);

// The file with its journal, under one name or the other; the journal is there before the file is.
bool renameWithRollbackJournalDurably(const QString &from, const QString &to);
void removeWithRollbackJournal(const QString &path);

// False also when one of them cannot be read.
bool haveSameBytes(const QString &onePath, const QString &otherPath);

// Beside a database while a change is not at its end, and after a death in the middle of one.
QString rollbackJournalOf(const QString &databaseFile);

} // namespace tarvelo::store
