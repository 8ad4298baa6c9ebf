#include "store/LectureDatabase.h"
#include "store/LectureInfoItem.h"
#include "support/FakeClock.h"
#include "support/LectureBuilder.h"
#include "support/RefusedCalls.h"
#include "support/TemporaryPlaces.h"
#include "support/TestCase.h"

#include <memory>

using namespace Qt::StringLiterals;
using namespace tarvelo::store;
using namespace tarvelo::tests;

// Whichever call of the system fails once in a write: an error may also come when the change
// stands, since only its last step failed.
class RefusedWritesTest final : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void whicheverCallFailsOnceEveryLectureIsThereOnce_data()
    {
        QTest::addColumn<bool>("idIsGivenAgain");
        QTest::addColumn<bool>("isRefusedOtherwise");
        QTest::addColumn<bool>("canBeCopied");
        QTest::newRow("in an insert") << false << false << true;
        QTest::newRow("in one that gives an ID again") << true << false << true;
        QTest::newRow("in the reset after one") << false << true << true;
        QTest::newRow("where no copy can be made") << false << false << false;
        QTest::newRow("and gives an ID again") << true << false << false;
    }
    void whicheverCallFailsOnceEveryLectureIsThereOnce()
    {
        QFETCH(bool, idIsGivenAgain);
        QFETCH(bool, isRefusedOtherwise);
        QFETCH(bool, canBeCopied);
        RefusedInTurn calls("/Tarvelo");
        while (calls.areLeft()) {
            startAnew();
            aLecture().named("Optics").insertInto(*m_database);
            if (idIsGivenAgain)
                insertAndDelete();
            if (isRefusedOtherwise)
                failNext("INSERT");
            if (!canBeCopied)
                blockCopies();

            calls.refuse();
            const bool isStored = m_database->insertIntoDbwithSqlStatementWithArguments(
                statements::Insert, newcomer());
            calls.allow();
            m_database->openToWrite();

            const bool isThere = subjects().contains(u"Optics"_s);
            QVERIFY2(m_told.size() == (isThere ? 0 : 1), calls.which());
            bringBack();
            QCOMPARE(subjects().count(u"Optics"_s), 1);
            const auto newcomers = subjects().count(u"Newcomer"_s);
            QVERIFY2(newcomers == 1 || (newcomers == 0 && !isStored),
                     calls.which() + subjects().join(u", "_s).toUtf8());
        }
        QVERIFY2(calls.count() > 15, calls.which());
    }

    // As long as it is not known nothing is written, since it would get their IDs.
    void beforeItIsToldWhatHasGoneNothingGetsItsId()
    {
        for (int calls = 1; calls < 80; ++calls) {
            startAnew();
            const qint64 id = aLecture().named("Optics").insertInto(*m_database);
            failNext("UPDATE");
            refuseCall(calls, "/Tarvelo");
            change(id, u"Wave Optics"_s);
            refuseNothing();

            aLecture().named("Newcomer").withoutAudio().insertInto(*m_database);

            const bool isThere =
                subjects().contains(u"Optics"_s) || subjects().contains(u"Wave Optics"_s);
            QVERIFY2(m_told.size() == (isThere ? 0 : 1), qPrintable(QString::number(calls)));
        }
    }

    // SQLite is content then with a file that it can only read.
    void aFileThatCouldNotBeOpenedForAMomentIsWrittenAllTheSame()
    {
        RefusedInTurn calls("/TarveloInfo.db");
        while (calls.areLeft()) {
            startAnew();
            const qint64 id = aLecture().named("Optics").insertInto(*m_database);
            open();

            calls.refuse();
            m_database->openDb();
            calls.allow();

            QVERIFY2(change(id, u"Wave Optics"_s), calls.which());
            QCOMPARE(subjects(), QStringList(u"Wave Optics"_s));
            QVERIFY(m_told.isEmpty());
        }
        QVERIFY2(calls.count() > 2, calls.which());
    }

    void aChangeOfWhatIsNotThereIsNotSaved()
    {
        startAnew();
        const qint64 id = aLecture().named("Optics").insertInto(*m_database);

        QVERIFY(change(id, u"Wave Optics"_s));
        QVERIFY(!change(id + 1, u"Logic"_s));

        QCOMPARE(subjects(), QStringList(u"Wave Optics"_s));
        QVERIFY(m_told.isEmpty());
    }

private:
    void finish() override
    {
        refuseNothing();
        m_database.reset();
        m_places.reset();
    }
    void startAnew()
    {
        finish();
        m_told.clear();
        m_places = std::make_unique<TemporaryPlaces>();
        open();
    }
    void open()
    {
        m_database = std::make_unique<LectureDatabase>(m_places->places(), m_clock);
        m_database->setLecturesGone([this](const GoneLectures &gone) { m_told.append(gone); });
    }

    static QVariantList newcomer()
    {
        return aLecture().named("Newcomer").withAudio(u"/music/new.m4a"_s).arguments();
    }
    void insertAndDelete() const
    {
        LectureInfoItem lecture(u"Any"_s, {}, {}, {}, false);
        lecture.setLectureAudioPath(u"/music/any.m4a"_s);
        lecture.setRecordUniqueID(
            aLecture().withAudio(lecture.getLectureAudioPath()).insertInto(*m_database));
        QVERIFY(m_database->deleteVoiceData(lecture));
    }
    void failNext(const char *statement) const
    {
        QVERIFY(m_database->openDb()->executeNonQuery(
            u"CREATE TEMP TRIGGER failure BEFORE %1 ON main.audioData BEGIN SELECT "
            "RAISE(ABORT, 'no'); END"_s.arg(QLatin1String(statement))));
    }
    // Where they go, something else lies.
    void blockCopies() const
    {
        QDir(m_database->backups().folder()).removeRecursively();
        QFile inTheWay(m_database->backups().folder());
        QVERIFY(inTheWay.open(QIODevice::WriteOnly));
    }
    bool change(qint64 id, const QString &subject) const
    {
        return m_database->updateToDoDatawithSqlStatementWithArguments(
            statements::Update, {subject, QString(), QString::number(id)});
    }
    void bringBack() const
    {
        Sqlite &database = *m_database->openDb();
        QVERIFY(database.executeNonQuery(u"DROP TRIGGER IF EXISTS temp.failure"_s));
        for (const auto &copy : m_database->backups().copies(database))
            QVERIFY(m_database->backups().bringBack(copy.filePath, database));
    }
    QStringList subjects() const
    {
        QStringList subjects;
        const auto rows = m_database->openDb()->executeQuery(u"SELECT subject FROM audioData"_s);
        for (const Row &row : rows.value_or(Rows()))
            subjects.append(row.first().toString());
        return subjects;
    }

    QList<GoneLectures> m_told;
    FakeClock m_clock;
    std::unique_ptr<TemporaryPlaces> m_places;
    std::unique_ptr<LectureDatabase> m_database;
};

QTEST_GUILESS_MAIN(RefusedWritesTest)
#include "RefusedWritesTest.moc"
