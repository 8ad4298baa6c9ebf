#include "lectures/LectureRecordsHandler.h"

#include "platform/Dates.h"
#include "store/LectureDatabase.h"
#include "support/FakeClock.h"
#include "support/LectureBuilder.h"
#include "support/TemporaryPlaces.h"
#include "support/TestCase.h"

#include <QLabel>
#include <QSignalSpy>
#include <QTableView>

using namespace Qt::StringLiterals;
using tarvelo::lectures::LectureRecordsHandler;

class LectureRecordsHandlerTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void awakeningShowsToday()
    {
        m_stage->handler.awakeFromNib();

        QCOMPARE(m_stage->label.text(), u"5 March 2024"_s);
        QVERIFY(!m_stage->handler.dateOfDisplay().isValid());
    }

    void awakeningReloadsTheTable()
    {
        const QSignalSpy reloads(&m_stage->handler, &QAbstractItemModel::modelReset);

        m_stage->handler.awakeFromNib();

        QCOMPARE(reloads.count(), 1);
        QCOMPARE(m_stage->list.model(), &m_stage->handler);
    }

    void aSelectedRowDoesNotShow()
    {
        m_stage->handler.awakeFromNib();

        const QPalette colours = m_stage->table.palette();
        QCOMPARE(colours.color(QPalette::Highlight), colours.color(QPalette::Base));
        QCOMPARE(colours.color(QPalette::HighlightedText), colours.color(QPalette::Text));
    }

    void aDateIsShownAndKept()
    {
        const QDateTime date(QDate(2024, 7, 14), QTime(0, 0), Qt::UTC);

        m_stage->handler.setDateToDisplay(date);

        QCOMPARE(m_stage->label.text(), u"14 July 2024"_s);
        QCOMPARE(m_stage->handler.dateOfDisplay(), date);
    }

    void theYearShownIsThatOfTheWeek()
    {
        m_stage->handler.setDateToDisplay({QDate(2024, 12, 31), QTime(0, 0), Qt::UTC});

        QCOMPARE(m_stage->label.text(), u"31 December 2025"_s);
    }

    void thereAreAlwaysThreeRows()
    {
        QCOMPARE(m_stage->handler.rowCount(), 3);
        QCOMPARE(m_stage->handler.columnCount(), 1);
        QVERIFY(!m_stage->handler.data(m_stage->handler.index(0, 0)).isValid());
    }

    void theListHasWhatIsToDoOnItsDayNewestFirst()
    {
        tarvelo::store::Sqlite &database = *m_stage->database.openDb();
        QVERIFY(database.executeNonQuery(
            u"create table tblTODOlist (ID integer primary key, ToDoDate text, what text)"_s));
        for (const char *row : {"(1, '2024-03-05', 'read')", "(2, '2024-03-04', 'sleep')",
                                "(3, '2024-03-05 23:59:59', 'write')", "(4, '2023-03-05', 'sing')"})
            QVERIFY(database.executeNonQuery(u"insert into TblToDoList values "_s +
                                             QLatin1String(row)));
        m_stage->handler.setDateToDisplay(m_stage->clock.now());
        const QSignalSpy reloads(&m_stage->handler, &QAbstractItemModel::modelReset);

        m_stage->handler.prepareList();
        m_stage->handler.prepareList();

        QStringList found;
        for (const auto &row : m_stage->handler.nsmArrLectureRecords())
            found.append(row[u"what"_s].toString());
        QCOMPARE(found, QStringList({u"write"_s, u"read"_s}));
        QCOMPARE(reloads.count(), 2);
    }

    void withoutThatTableTheListStaysEmpty()
    {
        tarvelo::tests::aLecture().insertInto(m_stage->database);
        m_stage->handler.setDateToDisplay(m_stage->clock.now());
        const QSignalSpy reloads(&m_stage->handler, &QAbstractItemModel::modelReset);

        m_stage->handler.prepareList();

        QVERIFY(m_stage->handler.nsmArrLectureRecords().isEmpty());
        QCOMPARE(reloads.count(), 1);
    }

    void withoutAConnectionTheListStaysEmptyAndNoneIsOpened()
    {
        m_stage->handler.prepareList();

        QVERIFY(m_stage->handler.nsmArrLectureRecords().isEmpty());
        QVERIFY(!m_stage->database.connection());
    }

private:
    struct Stage
    {
        tarvelo::tests::TemporaryPlaces places;
        tarvelo::tests::FakeClock clock;
        tarvelo::platform::Dates dates{clock, {"en_US", u"UTC"_s}};
        tarvelo::store::LectureDatabase database{places.places(), clock};
        QLabel label;
        QTableView table;
        QTableView list;
        LectureRecordsHandler handler{dates, database, {&label, &table, &list}};
    };

    void prepare() override { m_stage = std::make_unique<Stage>(); }
    void finish() override { m_stage.reset(); }

    std::unique_ptr<Stage> m_stage;
};

QTEST_MAIN(LectureRecordsHandlerTest)
#include "LectureRecordsHandlerTest.moc"
