#include "store/DailyCheck.h"

#include "store/DamagedDatabases.h"
#include "store/DatabaseCase.h"

#include <memory>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace tarvelo::store;
using namespace tarvelo::tests;

class DailyCheckTest final : public DatabaseCase
{
    Q_OBJECT

private Q_SLOTS:
    void nothingIsDoneWhileTheProgramStarts()
    {
        start(databaseOf(30));

        m_clock.advance(DailyCheck::AfterStart - 1ms);
        QVERIFY(!m_check->isChecking());

        m_clock.advance(1ms);
        QVERIFY(m_check->isChecking());
        QTRY_VERIFY_WITH_TIMEOUT(!m_check->isChecking(), 60000);
        QCOMPARE(remembered(), QByteArray("2024-03-05"));
    }

    void itIsDoneOnceADayAlsoWhenTheProgramStartsAgain()
    {
        start(databaseOf(30));
        check();

        m_clock.advance(2h);
        QVERIFY(!m_check->isChecking());
        start(databaseOf(30));
        m_clock.advance(DailyCheck::AfterStart);
        QVERIFY(!m_check->isChecking());

        m_clock.advance(24h);
        QTRY_COMPARE_WITH_TIMEOUT(remembered(), QByteArray("2024-03-06"), 60000);
    }

    void whereTheDayCannotBeWrittenDownItIsDoneOnceADayToo()
    {
        start(databaseOf(3));
        QVERIFY(QDir().mkpath(m_places->folder() + u"/Backups/.checked"_s));
        check();

        m_clock.advance(DailyCheck::LookInterval);
        QVERIFY(!m_check->isChecking());

        m_clock.advance(24h);
        QVERIFY(m_check->isChecking());
    }

    void aDamagedFileIsMendedAndLiesAside()
    {
        QByteArray content = databaseOf(30);
        content.replace(content.size() - DatabasePage, DatabasePage,
                        QByteArray(DatabasePage, '\xa5'));
        start(content);

        check();

        QVERIFY(isSound(*m_database->openDb()));
        QVERIFY(subjectsIn(*m_database->openDb()).size() >= 20);
        QVERIFY(m_database->damagedFiles().newest());
        QCOMPARE(remembered(), QByteArray("2024-03-05"));
    }

    void withoutAnOpenFileOrWithAnEmptyOneThereIsNothingToLookAt()
    {
        m_check = std::make_unique<DailyCheck>(*m_database, m_clock);
        m_clock.advance(DailyCheck::AfterStart);
        QVERIFY(!m_check->isChecking());

        QVERIFY(m_database->openDb());
        m_clock.advance(DailyCheck::LookInterval);
        QVERIFY(!m_check->isChecking());
        QCOMPARE(remembered(), QByteArray());
    }

    void itEndsWithTheProgramAndComesAgainAtTheNextStart()
    {
        start(databaseOf(5000));
        m_clock.advance(DailyCheck::AfterStart);
        QVERIFY(m_check->isChecking());

        m_check.reset();

        QCOMPARE(remembered(), QByteArray());
        start(databaseOf(30));
        check();
        QCOMPARE(remembered(), QByteArray("2024-03-05"));
    }

private:
    void prepare() override
    {
        m_clock.set(QDateTime(QDate(2024, 3, 5), QTime(9, 0)));
        DatabaseCase::prepare();
    }
    void finish() override
    {
        m_check.reset();
        DatabaseCase::finish();
    }

    void start(const QByteArray &content)
    {
        m_check.reset();
        m_database.reset();
        m_places->writeDatabaseFile(content);
        m_database = std::make_unique<LectureDatabase>(m_places->places(), m_clock);
        QVERIFY(m_database->openDb());
        m_check = std::make_unique<DailyCheck>(*m_database, m_clock);
    }
    void check()
    {
        m_clock.advance(DailyCheck::AfterStart);
        QVERIFY(m_check->isChecking());
        QTRY_VERIFY_WITH_TIMEOUT(!m_check->isChecking(), 60000);
    }
    QByteArray remembered() const { return contentOf(m_places->folder() + u"/Backups/.checked"_s); }

    std::unique_ptr<DailyCheck> m_check;
};

QTEST_GUILESS_MAIN(DailyCheckTest)
#include "DailyCheckTest.moc"
