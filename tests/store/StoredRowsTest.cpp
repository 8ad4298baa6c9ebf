#include "store/StoredRows.h"

#include "store/Sqlite.h"
#include "store/Statements.h"
#include "support/TestCase.h"

#include <memory>

using namespace Qt::StringLiterals;
using namespace tarvelo::store;

class StoredRowsTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void withoutATableThereIsNoRow()
    {
        Sqlite empty(u":memory:"_s);

        QCOMPARE(lastRow(empty), std::optional<qint64>(0));
        QCOMPARE(rowsWithRecording(empty, u"/a.m4a"_s), std::optional(QList<qint64>()));
        QCOMPARE(rowsWithTexts(empty, u"Optics"_s, QString(), Day, 0),
                 std::optional(QList<qint64>()));
        QVERIFY(!hasRow(empty, 1));
        QVERIFY(!moveRecording(empty, 1, u"/b.m4a"_s, u"00:01:00"_s));
        QVERIFY(!changeTexts(empty, 1, QString(), {QString()}, u"Optics"_s, QString()));
    }

    void ofAClosedDatabaseNothingIsKnown()
    {
        Sqlite closed;

        QVERIFY(!lastRow(closed));
        QVERIFY(!hasRow(closed, 1));
        QVERIFY(!rowsWithRecording(closed, u"/a.m4a"_s));
        QVERIFY(!rowsWithTexts(closed, u"Optics"_s, QString(), Day, 0));
    }

    void aRowIsKnownByItsNumber()
    {
        const qint64 id = insert(u"Optics"_s, u"lenses"_s, u"/a.m4a"_s);

        QCOMPARE(hasRow(*m_database, id), std::optional(true));
        QCOMPARE(hasRow(*m_database, id + 1), std::optional(false));
        QCOMPARE(lastRow(*m_database), std::optional(id));
    }

    void anEmptyTableHasNoLastRow() { QCOMPARE(lastRow(*m_database), std::optional<qint64>(0)); }

    void rowsAreFoundByTheirRecording()
    {
        const qint64 first = insert(u"Optics"_s, QString(), u"/a.m4a"_s);
        insert(u"Optics"_s, QString(), u"/b.m4a"_s);
        const qint64 second = insert(u"Art"_s, QString(), u"/a.m4a"_s);

        QCOMPARE(rowsWithRecording(*m_database, u"/a.m4a"_s),
                 std::optional(QList<qint64>{first, second}));
    }

    void rowsWithoutARecordingAreFoundByTheirTextsBehindAnother()
    {
        const qint64 earlier = insert(u"Optics"_s, u"lenses"_s, QString());
        insert(u"Optics"_s, u"lenses"_s, u"/a.m4a"_s);
        insert(u"Optics"_s, u"prisms"_s, QString());
        insert(u"Art"_s, u"lenses"_s, QString());
        const qint64 own = insert(u"Optics"_s, u"lenses"_s, QString());

        QCOMPARE(rowsWithTexts(*m_database, u"Optics"_s, u"lenses"_s, Day, earlier),
                 std::optional(QList<qint64>{own}));
        QCOMPARE(rowsWithTexts(*m_database, u"Optics"_s, u"lenses"_s, u"2024-03-01"_s, 0),
                 std::optional(QList<qint64>()));
    }

    void aRecordingIsMovedWithItsLength()
    {
        const qint64 id = insert(u"Optics"_s, QString(), u"/a.m4a"_s);
        const qint64 other = insert(u"Art"_s, QString(), u"/b.m4a"_s);

        QVERIFY(moveRecording(*m_database, id, u"/c.m4a"_s, u"00:02:00"_s));

        QCOMPARE(text("audioFileFullPath", id), u"/c.m4a"_s);
        QCOMPARE(text("recordDuration", id), u"00:02:00"_s);
        QCOMPARE(text("audioFileFullPath", other), u"/b.m4a"_s);
    }

    // Its length may have been changed by another program since.
    void aRecordingThatIsThereAlreadyKeepsItsLength()
    {
        const qint64 id = insert(u"Optics"_s, QString(), u"/a.m4a"_s);

        QVERIFY(moveRecording(*m_database, id, u"/a.m4a"_s, u"00:02:00"_s));

        QCOMPARE(text("recordDuration", id), u"00:01:00"_s);
    }

    void textsGoToTheLectureWithTheRecording()
    {
        const qint64 id = insert(u"Optics"_s, u"lenses"_s, u"/a.m4a"_s);

        QVERIFY(changeTexts(*m_database, id, u"/b.m4a"_s, {}, u"Art"_s, u"rome"_s));
        QCOMPARE(m_database->changes(), 0);
        QVERIFY(changeTexts(*m_database, id, u"/a.m4a"_s, {}, u"Waves"_s, u"prisms"_s));

        QCOMPARE(m_database->changes(), 1);
        QCOMPARE(text("subject", id), u"Waves"_s);
        QCOMPARE(text("notes", id), u"prisms"_s);
    }

    void withoutARecordingTheyGoToTheLectureWithSuchNotes()
    {
        const qint64 id = insert(u"Optics"_s, u"lenses"_s, QString());

        QVERIFY(changeTexts(*m_database, id, QString(), {u"rome"_s}, u"Art"_s, u"rome"_s));
        QCOMPARE(m_database->changes(), 0);
        QVERIFY(changeTexts(*m_database, id, QString(), {u"rome"_s, u"lenses"_s}, u"Waves"_s,
                            u"prisms"_s));

        QCOMPARE(m_database->changes(), 1);
        QCOMPARE(text("notes", id), u"prisms"_s);
    }

private:
    void prepare() override
    {
        m_database = std::make_unique<Sqlite>(u":memory:"_s);
        QVERIFY(m_database->executeNonQuery(statements::CreateAfterInsert));
    }

    qint64 insert(const QString &subject, const QString &notes, const QString &audioPath)
    {
        return m_database->executeNonQuery(statements::Insert, subject, u"test course"_s, notes,
                                           Day, QString(), QString(), audioPath, u"00:01:00"_s)
                   ? m_database->lastinsertedRowID()
                   : 0;
    }
    QString text(const char *column, qint64 id)
    {
        const auto rows = m_database->executeQuery(
            u"SELECT %1 FROM audioData WHERE ID = ?"_s.arg(QLatin1String(column)), id);
        return rows && rows->size() == 1 ? rows->first().first().toString() : QString();
    }

    const QString Day = u"2024-02-29"_s;
    std::unique_ptr<Sqlite> m_database;
};

QTEST_GUILESS_MAIN(StoredRowsTest)
#include "StoredRowsTest.moc"
