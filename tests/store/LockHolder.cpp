// Another program at the database: locks the file given as its argument, says so with a line on
// stdout, and lets go when its stdin ends.

#include <cstdio>
#include <sqlite3.h>

int main(int count, char **arguments)
{
    sqlite3 *database = nullptr;
    if (count != 2 || sqlite3_open(arguments[1], &database) != SQLITE_OK ||
        sqlite3_exec(database, "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr) != SQLITE_OK) {
        sqlite3_close(database);
        return 1;
    }
    std::puts("locked");
    std::fflush(stdout);
    while (std::getchar() != EOF) {
    }
    sqlite3_close(database);
    return 0;
}
