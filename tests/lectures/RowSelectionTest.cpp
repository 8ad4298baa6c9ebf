#include "lectures/RowSelection.h"
#include "support/TestCase.h"

using tarvelo::lectures::RowSelection;

class RowSelectionTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void atFirstNothingIsSelected()
    {
        const RowSelection selection;

        QCOMPARE(selection.rows(), QList<int>());
        QCOMPARE(selection.current(), RowSelection::None);
    }

    void rowsAreInOrderAndThereOnce()
    {
        RowSelection selection;

        QVERIFY(selection.set({3, 1, 3}, 3, 5));

        QCOMPARE(selection.rows(), QList<int>({1, 3}));
        QCOMPARE(selection.current(), 3);
        QVERIFY(selection.has(1));
        QVERIFY(!selection.has(2));
    }

    void rowsThatAreNotThereAreLeftOut()
    {
        RowSelection selection;

        QVERIFY(selection.set({-1, 4, 5}, 5, 5));

        QCOMPARE(selection.rows(), QList<int>{4});
        QCOMPARE(selection.current(), RowSelection::None);
    }

    void theSameAgainIsNoChange()
    {
        RowSelection selection;
        QVERIFY(selection.set({1, 2}, 2, 5));

        QVERIFY(!selection.set({2, 1}, 2, 5));
        QVERIFY(selection.set({2, 1}, 1, 5));
        QVERIFY(selection.set({2, 1}, 1, 2));
    }

    void rowsBelowOneThatGoesMoveUp()
    {
        RowSelection selection;
        selection.set({0, 2, 4}, 4, 5);

        selection.removeRow(2, 4);

        QCOMPARE(selection.rows(), QList<int>({0, 3}));
        QCOMPARE(selection.current(), 3);
    }

    void theKeyboardStaysAtThePlaceOfItsRow_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<int>("rowCount");
        QTest::addColumn<int>("current");
        QTest::newRow("in the middle") << 1 << 4 << 1;
        QTest::newRow("the last one") << 4 << 4 << 3;
        QTest::newRow("the only one") << 0 << 0 << -1;
    }
    void theKeyboardStaysAtThePlaceOfItsRow()
    {
        QFETCH(int, row);
        QFETCH(int, rowCount);
        RowSelection selection;
        selection.set({row}, row, rowCount + 1);

        selection.removeRow(row, rowCount);

        QTEST(selection.current(), "current");
        QCOMPARE(selection.rows().value(0, RowSelection::None), selection.current());
    }
};

QTEST_GUILESS_MAIN(RowSelectionTest)
#include "RowSelectionTest.moc"
