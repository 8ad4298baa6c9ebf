#include "store/LectureDatabase.h"

#include "platform/PrivateFiles.h"
#include "store/LectureInfoItem.h"
#include "store/Statements.h"

namespace tarvelo::store {

LectureDatabase::LectureDatabase(const platform::Places &places, const platform::Clock &clock)
    : m_folder(platform::expandingTilde(places.applicationSupport) + u'/' + places.processName)
    , m_backups(m_folder + QStringLiteral("/Backups"), clock)
{
}

LectureDatabase::~LectureDatabase() = default;

Sqlite *LectureDatabase::openDb()
{
    if (m_connection)
        return m_connection.get();
    m_connection = std::make_unique<Sqlite>();
    platform::createFolderIfMissing(m_folder);
    const QString file = m_folder + QStringLiteral("/TarveloInfo.db");
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
    if (!m_connection)
        return;
    const QString &path = lecture.getLectureAudioPath();
    const QString going = statements::IdsByPathBegin + path + statements::IdsByPathEnd;
    const auto rows = m_connection->executeQuery(going);
    const QString copy =
        rows && rows->size() > 1 ? m_backups.keep(*m_connection, going) : QString();
    m_connection->executeNonQuery(statements::DeleteByPathBegin + path +
                                  statements::DeleteByPathEnd);
    m_backups.settle(*m_connection, copy);
}

void LectureDatabase::writeOrReset(const QString &sql, const QVariantList &arguments,
                                   const QString &creationText)
{
    Sqlite *const database = openDb();
    if (!database)
        return;
    if (!database->executeNonQueryArguments(sql, arguments))
        reset(*database, sql, arguments, creationText);
    m_backups.holdRoom(*database);
}

void LectureDatabase::reset(Sqlite &database, const QString &sql, const QVariantList &arguments,
                            const QString &creationText)
{
    const QString copy = m_backups.keep(database, statements::AllIds);
    database.executeNonQuery(statements::Drop);
    database.executeNonQuery(creationText);
    database.executeNonQuery(statements::DeleteAll);
    m_backups.settle(database, copy);
    database.executeNonQueryArguments(sql, arguments);
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
