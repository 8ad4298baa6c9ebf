#include "store/Sqlite.h"
#include "store/Statement.h"
#include "support/TestCase.h"

#include <QDateTime>
#include <QFileInfo>
#include <QTemporaryDir>

#include <QUuid>
#include <sqlite3.h>

#include <limits>
#include <memory>

using namespace Qt::StringLiterals;
using tarvelo::store::nullMarker;
using tarvelo::store::Rows;
using tarvelo::store::Sqlite;
using tarvelo::store::Statement;

class SqliteTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void openingMakesTheMissingFileAndKeepsItsPath()
    {
        Sqlite database;

        QVERIFY(database.open(path()));

        QCOMPARE(database.filePath(), path());
        QVERIFY(QFileInfo::exists(path()));
    }

    void anInitialiserWithAFileOpensIt()
    {
        const Sqlite good(path());
        const Sqlite bad(m_dir->path());

        QCOMPARE(good.filePath(), path());
        QVERIFY(bad.filePath().isNull());
    }

    void aFailedOpenLeavesNoPathAndFailsEverythingQuietly()
    {
        Sqlite database(path());

        QVERIFY(!database.open(m_dir->path()));

        QVERIFY(database.filePath().isNull());
        QVERIFY(!database.executeNonQuery(u"create table t (x)"_s));
        QVERIFY(!database.executeQuery(u"select 1"_s));
        QCOMPARE(database.lastinsertedRowID(), 0);
    }

    void theErrorOfAFailedOpenIsKnownUntilItIsClosed()
    {
        Sqlite database(path());

        QVERIFY(!database.open(m_dir->path()));
        QCOMPARE(database.errorCode(), SQLITE_CANTOPEN);
        QCOMPARE(database.errorMessage(), u"unable to open database file"_s);

        database.close();
        QCOMPARE(database.errorCode(), SQLITE_NOMEM); // what SQLite says without a handle
    }

    void afterAFailedOpenAnotherFileCanBeOpened()
    {
        Sqlite database(m_dir->path());

        QVERIFY(database.open(path()));

        QVERIFY(database.executeQuery(u"select 1"_s));
    }

    void openingAgainStartsAnewEvenWithItsOwnPath()
    {
        Sqlite database(path());
        QVERIFY(database.executeNonQuery(u"create temp table t (x)"_s));

        QVERIFY(database.open(database.filePath()));

        QCOMPARE(database.filePath(), path());
        QVERIFY(!database.executeQuery(u"select * from t"_s));
    }

    void destructionClosesTheFileAndEndsItsLock()
    {
        auto first = std::make_unique<Sqlite>(path());
        Sqlite second(path());
        QVERIFY(first->beginTransaction());
        QVERIFY(!second.beginTransaction());

        first.reset();

        QVERIFY(second.beginTransaction());
    }

    void aClosedDatabaseAnswersWithFailures()
    {
        Sqlite database(path());

        database.close();
        database.close();

        QVERIFY(database.filePath().isNull());
        QVERIFY(!database.executeQuery(u"select 1"_s));
        QVERIFY(!database.executeNonQuery(u"create table t (x)"_s));
        QVERIFY(!database.commit());
        QCOMPARE(database.lastinsertedRowID(), 0);
    }

    void aQueryThatMatchesNothingIsEmptyAndOneThatDoesNotPrepareIsNull()
    {
        const std::optional<Rows> none = m_memory->executeQuery(u"select 1 where 0"_s);
        const std::optional<Rows> missing = m_memory->executeQuery(u"select * from missing"_s);
        const std::optional<Rows> faulty = m_memory->executeQuery(u"selec 1"_s);

        QVERIFY(none);
        QVERIFY(none->isEmpty());
        QVERIFY(!missing);
        QVERIFY(!faulty);
    }

    void rowsComeInTheOrderOfTheQuery()
    {
        const auto rows = m_memory->executeQuery(u"values (3), (1), (2)"_s);

        QVERIFY(rows);
        QCOMPARE(rows->size(), 3);
        QCOMPARE(rows->at(0).value(u"column1"_s), QVariant(3));
        QCOMPARE(rows->at(1).value(u"column1"_s), QVariant(1));
        QCOMPARE(rows->at(2).value(u"column1"_s), QVariant(2));
    }

    void columnsHaveTheNamesOfTheirDeclaration()
    {
        QVERIFY(m_memory->executeNonQuery(u"create table t (ID integer, lectureName text)"_s));
        QVERIFY(m_memory->executeNonQuery(u"insert into t values (1, 'x')"_s));

        const auto rows = m_memory->executeQuery(u"select * from t"_s);

        QVERIFY(rows);
        QCOMPARE(rows->constFirst().keys(), QStringList({u"ID"_s, u"lectureName"_s}));
    }

    void aColumnNameIsReadAsUtf8()
    {
        const auto rows = m_memory->executeQuery(u"select 1 as Größe"_s);

        QVERIFY(rows);
        QCOMPARE(rows->constFirst().value(u"Größe"_s), QVariant(1));
    }

    void ofTwoColumnsWithOneNameTheLaterStays()
    {
        const auto rows = m_memory->executeQuery(u"select 1 as x, 2 as x"_s);

        QVERIFY(rows);
        QCOMPARE(rows->constFirst().size(), 1);
        QCOMPARE(rows->constFirst().value(u"x"_s), QVariant(2));
    }

    void anErrorOnTheWayEndsTheListWithWhatWasRead()
    {
        const auto rows = m_memory->executeQuery(
            u"select abs(column1) as x from (values (1), (2), (-9223372036854775808), (4))"_s);

        QVERIFY(rows);
        QCOMPARE(rows->size(), 2);
    }

    void aSelectThatYieldsARowFailsAsANonQueryAndOneThatYieldsNoneSucceeds()
    {
        QVERIFY(!m_memory->executeNonQuery(u"select 1"_s));
        QVERIFY(m_memory->executeNonQuery(u"select 1 where 0"_s));
    }

    void aNonQueryFailsWhenItDoesNotPrepareAndWhenItsStepFails()
    {
        QVERIFY(m_memory->executeNonQuery(u"create table t (x unique)"_s));
        QVERIFY(m_memory->executeNonQuery(u"insert into t values (1)"_s));

        QVERIFY(!m_memory->executeNonQuery(u"insert into missing values (1)"_s));
        QVERIFY(!m_memory->executeNonQuery(u"insert into t values (1)"_s));
        QVERIFY(m_memory->errorCode() != 0);
        QVERIFY(m_memory->errorMessage().contains(u"UNIQUE"));
    }

    void anEmptyTextIsAQueryWithoutRows()
    {
        const auto rows = m_memory->executeQuery(QString());

        QVERIFY(rows && rows->isEmpty());
        QVERIFY(!m_memory->executeNonQuery(QString()));
    }

    void argumentsAreBoundByTheirKind_data()
    {
        QTest::addColumn<QVariant>("argument");
        QTest::addColumn<QString>("type");
        QTest::addColumn<QVariant>("stored");

        const QVariant null = nullMarker();
        QTest::newRow("absent") << QVariant() << u"null"_s << null;
        QTest::newRow("no date") << QVariant(QDateTime()) << u"null"_s << null;
        QTest::newRow("null marker") << null << u"null"_s << null;
        QTest::newRow("true") << QVariant(true) << u"integer"_s << QVariant(1);
        QTest::newRow("false") << QVariant(false) << u"integer"_s << QVariant(0);
        QTest::newRow("int") << QVariant(-7) << u"integer"_s << QVariant(-7);
        QTest::newRow("qint64") << QVariant(qint64(8)) << u"integer"_s << QVariant(8);
        QTest::newRow("long") << QVariant::fromValue(9L) << u"integer"_s << QVariant(9);
        QTest::newRow("float") << QVariant(0.5F) << u"real"_s << QVariant(0.5);
        QTest::newRow("double") << QVariant(0.1) << u"real"_s << QVariant(0.1);
        QTest::newRow("unsigned") << QVariant(5U) << u"text"_s << QVariant(u"5"_s);
        QTest::newRow("short") << QVariant::fromValue(short(6)) << u"text"_s << QVariant(u"6"_s);
        QTest::newRow("text") << QVariant(u"Größe 😀"_s) << u"text"_s << QVariant(u"Größe 😀"_s);
        QTest::newRow("empty text") << QVariant(QString()) << u"text"_s << QVariant(u""_s);
        QTest::newRow("bytes") << QVariant(QByteArray("\0\1\xff", 3)) << u"blob"_s
                               << QVariant(QByteArray("\0\1\xff", 3));
        QTest::newRow("no bytes") << QVariant(QByteArray()) << u"blob"_s
                                  << QVariant(QByteArray(""));
        QTest::newRow("date") << QVariant(QDateTime::fromMSecsSinceEpoch(1709629200250, Qt::UTC))
                              << u"real"_s << QVariant(1709629200.25);
        QTest::newRow("date before 1970")
            << QVariant(QDateTime::fromMSecsSinceEpoch(-1500, Qt::UTC)) << u"real"_s
            << QVariant(-1.5);
    }

    void argumentsAreBoundByTheirKind()
    {
        QFETCH(const QVariant, argument);
        QFETCH(const QString, type);
        QFETCH(const QVariant, stored);

        const auto rows =
            m_memory->executeQuery(u"select ?1 as value, typeof(?1) as type"_s, argument, argument);

        QVERIFY(rows);
        QCOMPARE(rows->constFirst().value(u"type"_s).toString(), type);
        QCOMPARE(rows->constFirst().value(u"value"_s).typeId(), stored.typeId());
        QCOMPARE(rows->constFirst().value(u"value"_s), stored);
    }

    void aLargeIntegerIsStoredWholeAndReadBackCutTo32Bits()
    {
        const qint64 large = (qint64(5) << 32) + 7;

        const auto rows =
            m_memory->executeQuery(u"select ? as cut, cast(? as text) as whole"_s, large, large);

        QVERIFY(rows);
        QCOMPARE(rows->constFirst().value(u"cut"_s), QVariant(7));
        QCOMPARE(rows->constFirst().value(u"whole"_s).toLongLong(), large);
    }

    void theNullMarkerIsNoAbsentValue()
    {
        const auto rows = m_memory->executeQuery(u"select null as x"_s);

        QVERIFY(rows);
        QVERIFY(rows->constFirst().value(u"x"_s).isValid());
        QVERIFY(!rows->constFirst().value(u"y"_s).isValid());
    }

    void argumentsBeyondTheParametersAreIgnored()
    {
        const auto rows = m_memory->executeQueryArguments(u"select ? as x"_s, {1, 2, 3});

        QVERIFY(rows);
        QCOMPARE(rows->constFirst().value(u"x"_s), QVariant(1));
    }

    void fewerArgumentsThanParametersIsAFailure()
    {
        QVERIFY(m_memory->executeNonQuery(u"create table t (x, y)"_s));

        QVERIFY(!m_memory->executeQuery(u"select ?, ?"_s, 1));
        QVERIFY(!m_memory->executeQueryArguments(u"select ?"_s, {}));
        QVERIFY(!m_memory->executeNonQuery(u"insert into t values (?, ?)"_s, 1));

        QCOMPARE(m_memory->executeQuery(u"select * from t"_s)->size(), 0);
    }

    void aQuestionMarkInAQuotedLiteralTakesAnArgumentToo()
    {
        const auto rows =
            m_memory->executeQuery(u"select ? as a, '?' as literal, ? as b"_s, 1, 2, 3);

        QVERIFY(rows);
        QCOMPARE(rows->constFirst().value(u"a"_s), QVariant(1));
        QCOMPARE(rows->constFirst().value(u"literal"_s), QVariant(u"?"_s));
        QCOMPARE(rows->constFirst().value(u"b"_s), QVariant(2));

        const auto second = m_memory->executeQuery(u"select '?' as literal, ?2 as b"_s, 1, 2);
        QVERIFY(second);
        QCOMPARE(second->constFirst().value(u"b"_s), QVariant(2));
    }

    void numberedAndNamedParametersTakeNoArgumentOfTheirOwn()
    {
        QVERIFY(!m_memory->executeQuery(u"select ?2"_s, 1, 2));
        QVERIFY(!m_memory->executeQuery(u"select :name"_s, 1));
        QVERIFY(m_memory->executeQueryArguments(u"select ?2"_s, {1, 2}));
    }

    void transactionsAreCommittedOrRolledBack()
    {
        QVERIFY(m_memory->executeNonQuery(u"create table t (x)"_s));

        QVERIFY(m_memory->beginTransaction());
        QVERIFY(m_memory->executeNonQuery(u"insert into t values (1)"_s));
        QVERIFY(m_memory->commit());
        QVERIFY(m_memory->beginDeferredTransaction());
        QVERIFY(m_memory->executeNonQuery(u"insert into t values (2)"_s));
        QVERIFY(m_memory->rollback());

        QCOMPARE(m_memory->executeQuery(u"select * from t"_s)->size(), 1);
        QVERIFY(!m_memory->commit());
        QVERIFY(!m_memory->rollback());
    }

    void anExclusiveTransactionShutsOthersOutAndADeferredOneDoesNot()
    {
        Sqlite first(path());
        Sqlite second(path());

        QVERIFY(first.beginTransaction());
        QVERIFY(!second.executeQuery(u"select * from sqlite_master"_s));
        QVERIFY(first.commit());
        QVERIFY(first.beginDeferredTransaction());

        QVERIFY(second.executeQuery(u"select * from sqlite_master"_s));
        QVERIFY(second.beginTransaction());
    }

    void theLastInsertedRowHasItsWholeNumber()
    {
        const qint64 large = std::numeric_limits<qint64>::max() - 1;
        QVERIFY(m_memory->executeNonQuery(u"create table t (ID integer primary key)"_s));
        QCOMPARE(m_memory->lastinsertedRowID(), 0);

        QVERIFY(m_memory->executeNonQuery(u"insert into t values (?)"_s, large));

        QCOMPARE(m_memory->lastinsertedRowID(), large);
    }

    void aStatementCanBeRunStepByStep()
    {
        Statement statement;
        QVERIFY(
            m_memory->prepareSqlInStatament(u"select ? as word union all select 2"_s, statement));

        // A text of its own that is gone before the statement is stepped.
        m_memory->bindObjectToColumnInStatament(QString(1000, u'x'), 1, statement);

        QVERIFY(m_memory->hasData(statement));
        QCOMPARE(m_memory->columnNameColumnIndex(statement, 0), u"word"_s);
        QCOMPARE(m_memory->columnDataColumnIndex(statement, 0), QVariant(QString(1000, u'x')));
        QVERIFY(m_memory->hasData(statement));
        QVERIFY(!m_memory->hasData(statement));
    }

    void aStatementThatCannotBePreparedHoldsNothing()
    {
        Statement statement;
        QVERIFY(m_memory->prepareSqlInStatament(u"select 1"_s, statement));

        QVERIFY(!m_memory->prepareSqlInStatament(u"selec 1"_s, statement));

        QVERIFY(!statement.get());
        QVERIFY(!m_memory->executeStatament(statement));
        QVERIFY(!m_memory->hasData(statement));
        QVERIFY(m_memory->columnNameColumnIndex(statement, 0).isEmpty());
    }

    void executingAStatementThatYieldsARowIsAFailure()
    {
        Statement row;
        Statement none;
        QVERIFY(m_memory->prepareSqlInStatament(u"select 1"_s, row));
        QVERIFY(m_memory->prepareSqlInStatament(u"select 1 where 0"_s, none));

        QVERIFY(!m_memory->executeStatament(row));
        QVERIFY(m_memory->executeStatament(none));
    }

    void theBusyTimeoutIsOneAtFirst()
    {
        Sqlite database;
        QCOMPARE(database.busyRetryTimeout(), 1);

        database.setBusyRetryTimeout(-5);

        QCOMPARE(database.busyRetryTimeout(), -5);
    }

    void aNewUuidIsUpperCaseAndDiffersFromTheLast()
    {
        const QString uuid = Sqlite::createUuid();

        QCOMPARE(uuid.size(), 36);
        QCOMPARE(uuid, uuid.toUpper());
        QCOMPARE(QUuid::fromString(uuid).toString(QUuid::WithoutBraces).toUpper(), uuid);
        QVERIFY(uuid != Sqlite::createUuid());
    }

    void theVersionIsThatOfTheLibrary()
    {
        const auto rows = m_memory->executeQuery(u"select sqlite_version() as version"_s);

        QVERIFY(rows);
        QCOMPARE(Sqlite::version(), rows->constFirst().value(u"version"_s).toString());
    }

private:
    void prepare() override
    {
        m_dir = std::make_unique<QTemporaryDir>();
        m_memory = std::make_unique<Sqlite>(u":memory:"_s);
    }
    void finish() override
    {
        m_memory.reset();
        m_dir.reset();
    }
    QString path() const { return m_dir->filePath(u"Bücher & more.db"_s); }

    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<Sqlite> m_memory;
};

QTEST_GUILESS_MAIN(SqliteTest)
#include "SqliteTest.moc"
