#pragma once

#include <QList>
#include <QString>
#include <QVariant>
#include <QVariantList>
#include <QVariantMap>

#include <optional>

struct sqlite3;

namespace tarvelo::store {

class Statement;

// Column name to value: an int, a double, a QString, a QByteArray or the null marker.
using Row = QVariantMap;
using Rows = QList<QVariantMap>;

// What stands for SQL's NULL, in arguments and in rows. An invalid QVariant is an absent value.
inline QVariant nullMarker()
{
    return QVariant::fromValue(nullptr);
}

// One connection to one database file. It runs statements and hands out whole results; it knows
// nothing of lectures, keeps nothing between calls, and reports every failure as a null or false
// result only. Main thread only.
//
// Arguments for "?" are bound by their kind: bool, int, qint64, float, double, QByteArray,
// QDateTime (seconds since 1970 as a double); an absent value and the null marker as NULL;
// everything else as the text it converts to. Fewer arguments than parameters: the statement does
// not run.
class Sqlite final
{
public:
    // Upper-case 8-4-4-4-12.
    static QString createUuid();
    static QString version();

    Sqlite() = default;
    // The same as open(), for who does not ask whether it succeeded.
    explicit Sqlite(const QString &filePath);
    Sqlite(const Sqlite &) = delete;
    Sqlite &operator=(const Sqlite &) = delete;
    ~Sqlite();

    // A null string while closed and after a failed open.
    const QString &filePath() const { return m_filePath; }
    qint64 busyRetryTimeout() const { return m_busyRetryTimeout; }
    // Of a file that may only be read, and one that could not be opened otherwise then.
    bool isReadOnly() const;
    int errorCode() const;
    QString errorMessage() const;
    // 0 while closed.
    qint64 lastinsertedRowID() const;
    // Rows that the last insert, update or delete changed.
    int changes() const;

    void setBusyRetryTimeout(qint64 timeout) { m_busyRetryTimeout = timeout; }
    // Also for who wants to know whether a statement that failed has inserted one all the same.
    void setLastInsertedRowID(qint64 id);

    // Closes what was open first; makes the file when it is missing.
    bool open(QString filePath);
    void close();

    // Null when the statement cannot be prepared. An error on the way ends the list early, and the
    // rows read until then are the result.
    std::optional<Rows> executeQueryArguments(const QString &sql, const QVariantList &arguments);
    // True when the statement ran to its end; one that yields a row reports failure, as is wanted.
    bool executeNonQueryArguments(const QString &sql, const QVariantList &arguments);

    // One argument is taken for every "?" in the text. The count knows no SQL, and is meant not to:
    // a "?" in a quoted literal takes one too, numbered and named parameters take none.
    template <typename... Arguments>
    std::optional<Rows> executeQuery(const QString &sql, const Arguments &...arguments);
    template <typename... Arguments>
    bool executeNonQuery(const QString &sql, const Arguments &...arguments);

    bool beginTransaction();
    bool beginDeferredTransaction();
    bool commit();
    bool rollback();

    bool prepareSqlInStatament(const QString &sql, Statement &statement);
    // True when the step is done; false for an error and also for a row.
    bool executeStatament(Statement &statement);
    // `column` counts parameters from 1.
    void bindObjectToColumnInStatament(const QVariant &object, int column, Statement &statement);
    // Steps; true when a row is ready.
    bool hasData(Statement &statement);
    // Columns count from 0. Integers are cut to 32 bits, on purpose.
    QVariant columnDataColumnIndex(const Statement &statement, int column) const;
    QString columnNameColumnIndex(const Statement &statement, int column) const;

private:
    static QVariantList takeOnePerQuestionMark(const QString &sql, const QVariantList &given);
    template <typename... Arguments>
    static QVariantList collect(const Arguments &...arguments);
    bool prepareAndBind(const QString &sql, const QVariantList &arguments, Statement &statement);
    Row readRow(const Statement &statement, int columns) const;

    qint64 m_busyRetryTimeout = 1;
    QString m_filePath;
    sqlite3 *m_db = nullptr;
};

template <typename... Arguments>
QVariantList Sqlite::collect(const Arguments &...arguments)
{
    static_assert(!(std::is_same_v<Arguments, QVariantList> || ...),
                  "a list of arguments goes to the form that ends in Arguments");
    return {QVariant::fromValue(arguments)...};
}

template <typename... Arguments>
std::optional<Rows> Sqlite::executeQuery(const QString &sql, const Arguments &...arguments)
{
    return executeQueryArguments(sql, takeOnePerQuestionMark(sql, collect(arguments...)));
}

template <typename... Arguments>
bool Sqlite::executeNonQuery(const QString &sql, const Arguments &...arguments)
{
    return executeNonQueryArguments(sql, takeOnePerQuestionMark(sql, collect(arguments...)));
}

} // namespace tarvelo::store
