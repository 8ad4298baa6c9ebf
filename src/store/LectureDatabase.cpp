#include "store/LectureDatabase.h"

#include "platform/PrivateFiles.h"
#include "store/LectureInfoItem.h"
#include "store/Statements.h"

namespace tarvelo::store {

LectureDatabase::LectureDatabase(platform::Places places)
    : m_places(std::move(places))
{
}

LectureDatabase::~LectureDatabase() = default;

Sqlite *LectureDatabase::openDb()
{
    if (m_connection)
        return m_connection.get();
    m_connection = std::make_unique<Sqlite>();
    const QString folder =
        platform::expandingTilde(m_places.applicationSupport) + u'/' + m_places.processName;
    platform::createFolderIfMissing(folder);
    const QString file = folder + QStringLiteral("/TarveloInfo.db");
    // SQLite would make it by the umask; its journal has the mode of the file.
    platform::createFileIfMissing(file);
    if (m_connection->open(file))
        makeIndexes();
    else
        m_connection.reset();
    return m_connection.get();
}

std::optional<Rows> LectureDatabase::lecturesOfDay(const QString &day)
{
    Sqlite *const database = openDb();
    return database ? database->executeQueryArguments(statements::DayQuery, {day}) : std::nullopt;
}

std::optional<Rows> LectureDatabase::lecturesOfMonth(const QString &month)
{
    Sqlite *const database = openDb();
    return database ? database->executeQueryArguments(statements::MonthQuery, {month})
                    : std::nullopt;
}

void LectureDatabase::insertIntoDbwithSqlStatementWithArguments(const QString &sql,
                                                                const QVariantList &arguments)
{
    writeOrReset(sql, arguments, statements::CreateAfterInsert);
}

void LectureDatabase::updateToDoDatawithSqlStatementWithArguments(const QString &sql,
                                                                  const QVariantList &arguments)
{
    writeOrReset(sql, arguments, statements::CreateAfterUpdate);
}

// The path is pasted as it stands: with an apostrophe in it the statement fails, and nothing goes.
void LectureDatabase::deleteVoiceData(const LectureInfoItem &lecture)
{
    if (m_connection)
        m_connection->executeNonQuery(statements::DeleteByPathBegin +
                                      lecture.getLectureAudioPath() + statements::DeleteByPathEnd);
}

void LectureDatabase::writeOrReset(const QString &sql, const QVariantList &arguments,
                                   const QString &creationText)
{
    Sqlite *const database = openDb();
    if (!database || database->executeNonQueryArguments(sql, arguments))
        return;
    database->executeNonQuery(statements::Drop);
    database->executeNonQuery(creationText);
    database->executeNonQuery(statements::DeleteAll);
    database->executeNonQueryArguments(sql, arguments);
    makeIndexes();
}

// They only make the two queries fast. A file without the table, or one that cannot be written,
// does without; last in a reset, so that they take no room that the statement needs.
void LectureDatabase::makeIndexes()
{
    m_connection->executeNonQuery(statements::IndexByDay);
    m_connection->executeNonQuery(statements::IndexByMonth);
}

} // namespace tarvelo::store
