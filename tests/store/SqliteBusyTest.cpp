#include "store/Sqlite.h"
#include "store/Statement.h"
#include "support/TestCase.h"

#include <QTemporaryDir>

#include <functional>
#include <memory>
#include <sqlite3.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using tarvelo::store::Sqlite;
using tarvelo::store::Statement;

namespace {

QList<useconds_t> pauses;
std::function<void()> duringPause;

} // namespace

// Stands in for the C library's pause in this program, so that pauses are counted, not spent.
extern "C" int recordPause(useconds_t microseconds) __asm__("usleep");
extern "C" int recordPause(useconds_t microseconds)
{
    pauses.append(microseconds);
    if (duringPause)
        duringPause();
    return 0;
}

class SqliteBusyTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void preparingInALockedFileFailsAfterOnePause()
    {
        Sqlite fresh(path());
        QVERIFY(m_other->beginTransaction());
        Statement statement;

        QVERIFY(!fresh.prepareSqlInStatament(u"select * from t"_s, statement));

        QCOMPARE(pauses, onePause());
    }

    void steppingInALockedFileFailsAfterOnePause()
    {
        QVERIFY(m_other->beginTransaction());

        QVERIFY(!m_database->executeNonQuery(u"insert into t values (1)"_s));

        QCOMPARE(pauses, onePause());
    }

    void readingInALockedFileEndsAfterOnePauseWithoutRows()
    {
        QVERIFY(m_other->executeNonQuery(u"insert into t values (1)"_s));
        QVERIFY(m_other->beginTransaction());

        const auto rows = m_database->executeQuery(u"select * from t"_s);

        QVERIFY(rows);
        QVERIFY(rows->isEmpty());
        QCOMPARE(pauses, onePause());
    }

    // A reader elsewhere lets others write until they commit, which happens after the last row.
    void aLockAfterTheFirstRowsEndsThemAfterOnePause()
    {
        QVERIFY(m_other->executeNonQuery(u"insert into t values (1)"_s));
        Statement reading;
        QVERIFY(m_other->prepareSqlInStatament(u"select * from t"_s, reading));
        QVERIFY(m_other->hasData(reading));

        const auto rows = m_database->executeQuery(u"insert into t values (2), (3) returning x"_s);

        QVERIFY(rows);
        QCOMPARE(rows->size(), 2);
        QCOMPARE(rows->at(0)[u"x"_s].toInt(), 2);
        QCOMPARE(pauses, onePause());
    }

    void noTimeoutFromZeroOnMakesItMoreThanOnePause()
    {
        QVERIFY(m_other->beginTransaction());

        for (const qint64 timeout : {0, 1, 2, 1000}) {
            pauses.clear();
            m_database->setBusyRetryTimeout(timeout);
            QVERIFY(!m_database->executeNonQuery(u"insert into t values (1)"_s));
            QCOMPARE(pauses, onePause());
        }
    }

    void aLockThatEndsDuringTheOnlyPauseIsNotTriedAgain()
    {
        QVERIFY(m_other->beginTransaction());
        duringPause = [this] { m_other->commit(); };

        QVERIFY(!m_database->executeNonQuery(u"insert into t values (1)"_s));
        QVERIFY(m_database->executeNonQuery(u"insert into t values (1)"_s));

        QCOMPARE(pauses, onePause());
    }

    void aNegativeTimeoutTriesUntilTheLockEnds()
    {
        QVERIFY(m_other->beginTransaction());
        m_database->setBusyRetryTimeout(-1);
        duringPause = [this] {
            if (pauses.size() == 7)
                m_other->commit();
        };

        QVERIFY(m_database->executeNonQuery(u"insert into t values (1)"_s));

        QCOMPARE(pauses.size(), 7);
    }

    void lockedWithinOneConnectionIsNotBusy()
    {
        QVERIFY(m_database->executeNonQuery(u"insert into t values (1)"_s));
        Statement reading;
        QVERIFY(m_database->prepareSqlInStatament(u"select * from t"_s, reading));
        QVERIFY(m_database->hasData(reading));

        QVERIFY(!m_database->executeNonQuery(u"drop table t"_s));

        QCOMPARE(m_database->errorCode(), SQLITE_LOCKED);
        QVERIFY(pauses.isEmpty());
    }

    void closingWithAnUnfinishedStatementIsGivenUpAfterOnePause()
    {
        auto statement = std::make_unique<Statement>();
        QVERIFY(m_database->prepareSqlInStatament(u"select 1"_s, *statement));
        sqlite3 *const left = sqlite3_db_handle(statement->get());

        m_database->close();

        QCOMPARE(pauses, onePause());
        QVERIFY(m_database->filePath().isNull());
        QVERIFY(!m_database->executeQuery(u"select 1"_s));
        statement.reset();
        QCOMPARE(sqlite3_close(left), SQLITE_OK);
    }

    void closingWithANegativeTimeoutWaitsForTheStatement()
    {
        auto statement = std::make_unique<Statement>();
        QVERIFY(m_database->prepareSqlInStatament(u"select 1"_s, *statement));
        m_database->setBusyRetryTimeout(-1);
        duringPause = [&] {
            if (pauses.size() == 3)
                statement.reset();
        };

        m_database->close();

        QCOMPARE(pauses.size(), 3);
    }

private:
    void prepare() override
    {
        duringPause = nullptr;
        m_dir = std::make_unique<QTemporaryDir>();
        m_database = std::make_unique<Sqlite>(path());
        m_database->executeNonQuery(u"create table t (x)"_s);
        m_other = std::make_unique<Sqlite>(path());
        pauses.clear();
    }
    void finish() override
    {
        duringPause = nullptr;
        m_other.reset();
        m_database.reset();
        m_dir.reset();
    }
    QString path() const { return m_dir->filePath(u"shared.db"_s); }
    static QList<useconds_t> onePause() { return {20}; }

    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<Sqlite> m_database;
    std::unique_ptr<Sqlite> m_other;
};

QTEST_GUILESS_MAIN(SqliteBusyTest)
#include "SqliteBusyTest.moc"
