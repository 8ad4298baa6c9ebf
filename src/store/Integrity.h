#pragma once

namespace tarvelo::store {

class Sqlite;

// Unknown when the file could not be asked: it is locked, or the disk fails.
enum class Integrity { Intact, Damaged, Unknown };

// What can be known of a database at no cost: whether it is one at all, and its tables' names can
// be read.
Integrity integrityAtFirstSight(Sqlite &database);

// Looks at every page, and takes as long as reading the file does.
Integrity integrityOfEveryPage(Sqlite &database);

} // namespace tarvelo::store
