#include "store/Statements.h"

#include "support/TestCase.h"

using namespace tarvelo::store;

// Each text on one line, as a file or another program would show it.
// clang-format off
class StatementsTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void everyTextIsKeptByteForByte_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("expected");

        QTest::newRow("insert") << QString(statements::Insert) << QStringLiteral("INSERT into audioData ( subject, course, notes , recordingDate, lectureStartTime, lectureEndTime, audioFileFullPath,recordDuration) VALUES (?,?,?,?,?,?,?,?)");
        QTest::newRow("update") << QString(statements::Update) << QStringLiteral("UPDATE audioData SET subject = ?, notes = ?  where ID = ?");
        QTest::newRow("delete") << statements::DeleteByPathBegin + QStringLiteral("/a b.aac") + statements::DeleteByPathEnd << QStringLiteral("DELETE FROM audioData where audioFileFullPath='/a b.aac';");
        QTest::newRow("day") << QString(statements::DayQuery) << QStringLiteral("select * from audioData WHERE (strftime('%Y-%m-%d', recordingDate)) = ? ORDER BY ID DESC");
        QTest::newRow("month") << QString(statements::MonthQuery) << QStringLiteral("select * from audioData WHERE (strftime('%m', recordingDate)) = ?");
        QTest::newRow("drop") << QString(statements::Drop) << QStringLiteral("DROP TABLE audioData");
        QTest::newRow("create after insert") << QString(statements::CreateAfterInsert) << QStringLiteral("CREATE TABLE audioData (ID INTEGER PRIMARY KEY  NOT NULL  UNIQUE , subject TEXT, course TEXT,notes TEXT, recordingDate DATETIME,lectureStartTime TEXT, lectureEndTime TEXT, audioFileFullPath TEXT, recordDuration TEXT);");
        QTest::newRow("create after update") << QString(statements::CreateAfterUpdate) << QStringLiteral("CREATE TABLE audioData (ID INTEGER PRIMARY KEY  NOT NULL  UNIQUE , subject TEXT, course TEXT,notes TEXT, recordingDate DATETIME, lectureStartTime TEXT, lectureEndTime TEXT, audioFileFullPath TEXT, recordDuration TEXT);");
        QTest::newRow("delete all") << QString(statements::DeleteAll) << QStringLiteral("DELETE FROM audioData;");
    }

    void everyTextIsKeptByteForByte()
    {
        QFETCH(const QString, text);
        QFETCH(const QString, expected);

        QCOMPARE(text, expected);
    }
};
// clang-format on

QTEST_GUILESS_MAIN(StatementsTest)
#include "StatementsTest.moc"
