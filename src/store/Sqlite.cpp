#include "store/Sqlite.h"

#include "store/Statement.h"

#include <QDateTime>
#include <QFile>
#include <QMetaType>
#include <QUuid>

#include <sqlite3.h>

#include <algorithm>
#include <unistd.h>
#include <utility>

namespace tarvelo::store {

namespace {

constexpr useconds_t BusyPause = 20;

// The comparison is wanted this way about, odd as it looks: with the time-out of 1 that is always
// in force a call gives up after one pause, so that the window never waits for another program; a
// negative one tries without end.
template <typename Call>
int underBusyRule(qint64 busyRetryTimeout, Call call)
{
    qint64 retries = -1;
    int result = call();
    while (result == SQLITE_BUSY) {
        usleep(BusyPause);
        ++retries;
        if (!(busyRetryTimeout < retries))
            break;
        result = call();
    }
    return result;
}

double secondsSince1970(const QDateTime &moment)
{
    return static_cast<double>(moment.toMSecsSinceEpoch()) / 1000.0;
}

} // namespace

QString Sqlite::createUuid()
{
    return QUuid::createUuid().toString(QUuid::WithoutBraces).toUpper();
}

QString Sqlite::version()
{
    return QString::fromUtf8(sqlite3_libversion());
}

Sqlite::Sqlite(const QString &filePath)
{
    open(filePath);
}

Sqlite::~Sqlite()
{
    close();
}

bool Sqlite::isReadOnly() const
{
    return m_db && sqlite3_db_readonly(m_db, "main") == 1;
}

int Sqlite::errorCode() const
{
    return sqlite3_errcode(m_db);
}

QString Sqlite::errorMessage() const
{
    return QString::fromUtf8(sqlite3_errmsg(m_db));
}

qint64 Sqlite::lastinsertedRowID() const
{
    return m_db ? sqlite3_last_insert_rowid(m_db) : 0;
}

int Sqlite::changes() const
{
    return m_db ? sqlite3_changes(m_db) : 0;
}

void Sqlite::setLastInsertedRowID(qint64 id)
{
    if (m_db)
        sqlite3_set_last_insert_rowid(m_db, id);
}

// The path comes by value, since it may be this object's own, which close() empties.
bool Sqlite::open(QString filePath)
{
    close();
    // A handle that comes with an error is kept too: it holds the error until it is closed.
    if (sqlite3_open(QFile::encodeName(filePath).constData(), &m_db) != SQLITE_OK)
        return false;
    m_filePath = std::move(filePath);
    return true;
}

void Sqlite::close()
{
    // Who still holds a statement keeps SQLite's connection alive; this object lets go all the
    // same.
    if (m_db)
        underBusyRule(m_busyRetryTimeout, [this] { return sqlite3_close(m_db); });
    m_filePath = QString();
    m_db = nullptr;
}

std::optional<Rows> Sqlite::executeQueryArguments(const QString &sql, const QVariantList &arguments)
{
    Statement statement;
    if (!prepareAndBind(sql, arguments, statement))
        return std::nullopt;
    Rows rows;
    const int columns = sqlite3_column_count(statement.get());
    while (hasData(statement))
        rows.append(readRow(statement, columns));
    return rows;
}

bool Sqlite::executeNonQueryArguments(const QString &sql, const QVariantList &arguments)
{
    Statement statement;
    return prepareAndBind(sql, arguments, statement) && executeStatament(statement);
}

bool Sqlite::beginTransaction()
{
    return executeNonQuery(QStringLiteral("BEGIN EXCLUSIVE TRANSACTION;"));
}

bool Sqlite::beginDeferredTransaction()
{
    return executeNonQuery(QStringLiteral("BEGIN DEFERRED TRANSACTION;"));
}

bool Sqlite::commit()
{
    return executeNonQuery(QStringLiteral("COMMIT TRANSACTION;"));
}

bool Sqlite::rollback()
{
    return executeNonQuery(QStringLiteral("ROLLBACK TRANSACTION;"));
}

bool Sqlite::prepareSqlInStatament(const QString &sql, Statement &statement)
{
    const QByteArray text = sql.toUtf8();
    sqlite3_stmt *handle = nullptr;
    const int result = underBusyRule(m_busyRetryTimeout, [&] {
        return sqlite3_prepare_v2(m_db, text.constData(), -1, &handle, nullptr);
    });
    statement.reset(handle);
    return result == SQLITE_OK;
}

bool Sqlite::executeStatament(Statement &statement)
{
    const int result =
        underBusyRule(m_busyRetryTimeout, [&] { return sqlite3_step(statement.get()); });
    return result == SQLITE_OK || result == SQLITE_DONE;
}

bool Sqlite::hasData(Statement &statement)
{
    return underBusyRule(m_busyRetryTimeout, [&] { return sqlite3_step(statement.get()); }) ==
           SQLITE_ROW;
}

void Sqlite::bindObjectToColumnInStatament(const QVariant &object, int column, Statement &statement)
{
    sqlite3_stmt *const handle = statement.get();
    switch (object.typeId()) {
    case QMetaType::UnknownType:
    case QMetaType::Nullptr:
        sqlite3_bind_null(handle, column);
        break;
    case QMetaType::QByteArray: {
        const QByteArray &bytes = statement.keep(object.toByteArray());
        sqlite3_bind_blob(handle, column, bytes.constData(), static_cast<int>(bytes.size()),
                          SQLITE_STATIC);
        break;
    }
    case QMetaType::QDateTime:
        if (!object.toDateTime().isValid())
            sqlite3_bind_null(handle, column);
        else
            sqlite3_bind_double(handle, column, secondsSince1970(object.toDateTime()));
        break;
    case QMetaType::Bool:
        sqlite3_bind_int(handle, column, object.toBool() ? 1 : 0);
        break;
    case QMetaType::Int:
    case QMetaType::Long:
    case QMetaType::LongLong:
        sqlite3_bind_int64(handle, column, object.toLongLong());
        break;
    case QMetaType::Float:
    case QMetaType::Double:
        sqlite3_bind_double(handle, column, object.toDouble());
        break;
    default: // also the unsigned and the short numbers, which are stored as texts
        sqlite3_bind_text(handle, column, statement.keep(object.toString().toUtf8()).constData(),
                          -1, SQLITE_STATIC);
    }
}

QVariant Sqlite::columnDataColumnIndex(const Statement &statement, int column) const
{
    sqlite3_stmt *const handle = statement.get();
    switch (sqlite3_column_type(handle, column)) {
    case SQLITE_INTEGER:
        return sqlite3_column_int(handle, column);
    case SQLITE_FLOAT:
        return sqlite3_column_double(handle, column);
    case SQLITE_TEXT:
        return QString::fromUtf8(
            reinterpret_cast<const char *>(sqlite3_column_text(handle, column)));
    case SQLITE_BLOB: {
        // The length first: the order in which SQLite wants the two asked.
        const int length = sqlite3_column_bytes(handle, column);
        return QByteArray(static_cast<const char *>(sqlite3_column_blob(handle, column)), length);
    }
    default: // SQLITE_NULL; there are no others
        return nullMarker();
    }
}

QString Sqlite::columnNameColumnIndex(const Statement &statement, int column) const
{
    return statement.get() ? QString::fromUtf8(sqlite3_column_name(statement.get(), column))
                           : QString();
}

QVariantList Sqlite::takeOnePerQuestionMark(const QString &sql, const QVariantList &given)
{
    return given.first(std::min(given.size(), sql.count(u'?')));
}

bool Sqlite::prepareAndBind(const QString &sql, const QVariantList &arguments, Statement &statement)
{
    if (!prepareSqlInStatament(sql, statement))
        return false;
    const int parameters = sqlite3_bind_parameter_count(statement.get());
    if (arguments.size() < parameters)
        return false;
    for (int i = 0; i < parameters; ++i)
        bindObjectToColumnInStatament(arguments.at(i), i + 1, statement);
    return true;
}

Row Sqlite::readRow(const Statement &statement, int columns) const
{
    Row row;
    for (int i = 0; i < columns; ++i)
        row.insert(columnNameColumnIndex(statement, i), columnDataColumnIndex(statement, i));
    return row;
}

} // namespace tarvelo::store
