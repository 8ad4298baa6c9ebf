#include "store/DatabaseCase.h"
#include "store/Statements.h"
#include "support/LectureBuilder.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;
using namespace tarvelo::store;
using tarvelo::tests::aLecture;

// The indexes make the two queries fast, and must be noticed in no other way.
class LectureIndexesTest final : public tarvelo::tests::DatabaseCase
{
    Q_OBJECT

private Q_SLOTS:
    void theFirstInsertMakesThem()
    {
        aLecture().insertInto(*m_database);

        QCOMPARE(indexes(*m_database->openDb()), bothIndexes());
    }

    void aResetMakesThemAgain()
    {
        aLecture().insertInto(*m_database);

        m_database->updateToDoDatawithSqlStatementWithArguments(u"faulty"_s, {});

        QCOMPARE(indexes(*m_database->openDb()), bothIndexes());
    }

    void aFileOfAnOlderRunGetsThemWhenItIsOpened()
    {
        fillWithoutIndexes({"2024-03-05"});

        QVERIFY(m_database->openDb());

        QCOMPARE(indexes(*m_database->openDb()), bothIndexes());
    }

    void aFileWithoutTheTableStaysEmpty()
    {
        QVERIFY(m_database->openDb());

        QCOMPARE(QFileInfo(m_places->databaseFile()).size(), 0);
    }

    void aFileThatHasThemIsNotWrittenWhenItIsOpened()
    {
        aLecture().insertInto(*m_database);
        m_database.reset();
        const QByteArray before = m_places->readDatabaseFile();

        LectureDatabase again(m_places->places(), m_clock);
        QVERIFY(again.openDb());

        QCOMPARE(m_places->readDatabaseFile(), before);
    }

    void theTableKeepsItsText()
    {
        fillWithoutIndexes({"2024-03-05"});
        const auto before = tableOf(m_places->databaseFile());

        QVERIFY(m_database->openDb());

        QCOMPARE(tableOf(m_places->databaseFile()), before);
    }

    void everyQueryGivesTheSameRowsInTheSameOrder()
    {
        fillWithoutIndexes({"2024-03-05", "2023-03-05", "2024-03-05", "2024-03-06", "2024-04-05",
                            "2024-03-05 10:00:00", "2024-03-05T23:59", "2567-03-05", "2024-3-5",
                            "٢٠٢٤-٠٣-٠٥", "", "2460374.5", "0000-03-05", "2024-02-30", "yesterday",
                            "2024-03-05"});
        const QList<std::optional<Rows>> before = askEverything();

        QVERIFY(m_database->openDb());

        QCOMPARE(indexes(*m_database->openDb()), bothIndexes());
        QVERIFY(before.constFirst()->size() > 3);
        QCOMPARE(askEverything(), before);
    }

    void bothQueriesUseThemWithoutSorting()
    {
        aLecture().insertInto(*m_database);

        QVERIFY(plan(statements::DayQuery).contains(u"USING INDEX audioDataByDay"));
        QVERIFY(!plan(statements::DayQuery).contains(u"TEMP B-TREE"));
        QVERIFY(plan(statements::MonthQuery).contains(u"USING INDEX audioDataByMonth"));
    }

    void theRowIdOfTheFirstLectureIsThatOfItsRow()
    {
        const qint64 id = aLecture().insertInto(*m_database);

        QCOMPARE(id, 1);
        QCOMPARE(m_database->lecturesOfDay(u"2024-03-05"_s)->constFirst().value(u"ID"_s),
                 QVariant(1));
    }

    void openingLeavesTheLastRowIdAtZero()
    {
        fillWithoutIndexes({"2024-03-05", "2024-03-06"});

        QCOMPARE(m_database->openDb()->lastinsertedRowID(), 0);
    }

    void aLockedFileDoesWithout()
    {
        fillWithoutIndexes({"2024-03-05"});
        Sqlite other(m_places->databaseFile());
        QVERIFY(other.beginTransaction());

        QVERIFY(m_database->openDb());
        QVERIFY(other.rollback());

        QCOMPARE(indexes(*m_database->openDb()), QStringList());
        QCOMPARE(m_database->lecturesOfDay(u"2024-03-05"_s)->size(), 1);
        QCOMPARE(m_database->lecturesOfMonth(u"03"_s)->size(), 1);
    }

    void aFileWithADayThatCannotBeIndexedDoesWithout()
    {
        fillWithoutIndexes({"2024-03-05", "now"});

        QVERIFY(m_database->openDb());

        QCOMPARE(indexes(*m_database->openDb()), QStringList());
        QCOMPARE(m_database->lecturesOfDay(u"2024-03-05"_s)->size(), 1);
    }

    void aTableOfAnotherShapeDoesWithout()
    {
        m_places->makeFolder();
        QVERIFY(Sqlite(m_places->databaseFile())
                    .executeNonQuery(u"create table audioData (ID integer primary key)"_s));

        QVERIFY(m_database->openDb());

        QCOMPARE(indexes(*m_database->openDb()), QStringList());
    }

private:
    static QStringList bothIndexes() { return {u"audioDataByDay"_s, u"audioDataByMonth"_s}; }

    // Those with a text of their own: SQLite makes another for "UNIQUE", which has none.
    static QStringList indexes(Sqlite &connection)
    {
        QStringList names;
        const auto rows = connection.executeQuery(
            u"select name from sqlite_master where type = 'index' and sql not null order by name"_s);
        for (const Row &row : rows.value_or(Rows()))
            names.append(row.value(u"name"_s).toString());
        return names;
    }

    void fillWithoutIndexes(const QList<const char *> &days) const
    {
        m_places->makeFolder();
        Sqlite old(m_places->databaseFile());
        QVERIFY(old.executeNonQuery(statements::CreateAfterInsert));
        for (const char *const day : days) {
            QVariantList arguments = aLecture().arguments();
            arguments[3] = QString::fromUtf8(day);
            QVERIFY(old.executeNonQueryArguments(statements::Insert, arguments));
        }
    }

    static std::optional<Rows> tableOf(const QString &file)
    {
        return Sqlite(file).executeQuery(u"select * from sqlite_master where type = 'table'"_s);
    }

    QList<std::optional<Rows>> askEverything() const
    {
        Sqlite connection(m_places->databaseFile());
        QList<std::optional<Rows>> answers;
        for (const QString &day : {u"2024-03-05"_s, u"2024-03-06"_s, u"2567-03-05"_s, u""_s,
                                   u"0000-03-05"_s, u"2024-03-01"_s, u"٢٠٢٤-٠٣-٠٥"_s})
            answers.append(connection.executeQuery(statements::DayQuery, day));
        for (const QString &month : {u"03"_s, u"04"_s, u"3"_s, u"12"_s, u""_s})
            answers.append(connection.executeQuery(statements::MonthQuery, month));
        answers.append(connection.executeQuery(statements::DayQuery, nullMarker()));
        answers.append(connection.executeQuery(statements::MonthQuery, 3));
        return answers;
    }

    QString plan(const QString &query)
    {
        QString text;
        const auto rows =
            m_database->openDb()->executeQuery(u"EXPLAIN QUERY PLAN "_s + query, u"x"_s);
        for (const Row &row : rows.value_or(Rows()))
            text += row.value(u"detail"_s).toString() + u'\n';
        return text;
    }
};

QTEST_GUILESS_MAIN(LectureIndexesTest)
#include "LectureIndexesTest.moc"
