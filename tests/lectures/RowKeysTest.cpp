#include "lectures/RowKeys.h"

#include "lectures/CustomTableCellView.h"
#include "support/TestCase.h"
#include "widgets/ImageButton.h"

#include <QKeyEvent>
#include <QSignalSpy>

using namespace tarvelo::lectures;

class RowKeysTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aKeyLeadsToItsRow()
    {
        QCOMPARE(rowByKey(Qt::Key_Down, 3, 20, 5), 4);
        QCOMPARE(rowByKey(Qt::Key_Up, 3, 20, 5), 2);
        QCOMPARE(rowByKey(Qt::Key_PageDown, 3, 20, 5), 8);
        QCOMPARE(rowByKey(Qt::Key_PageUp, 8, 20, 5), 3);
        QCOMPARE(rowByKey(Qt::Key_Home, 8, 20, 5), 0);
        QCOMPARE(rowByKey(Qt::Key_End, 8, 20, 5), 19);
    }

    void noKeyLeadsPastTheEnds()
    {
        QCOMPARE(rowByKey(Qt::Key_PageDown, 18, 20, 5), 19);
        QCOMPARE(rowByKey(Qt::Key_PageUp, 1, 20, 5), 0);
        QCOMPARE(rowByKey(Qt::Key_Up, -1, 20, 5), 0);
        QCOMPARE(rowByKey(Qt::Key_Down, -1, 20, 5), 0);
    }

    void withoutRowsAKeyLeadsToNone()
    {
        QCOMPARE(rowByKey(Qt::Key_Down, -1, 0, 5), -1);
        QCOMPARE(rowByKey(Qt::Key_End, -1, 0, 5), -1);
    }

    void anotherKeyLeadsNowhere()
    {
        QVERIFY(!rowByKey(Qt::Key_A, 3, 20, 5));
        QVERIFY(!rowByKey(Qt::Key_A, -1, 0, 5));
    }

    void aCommandPressesItsButton_data()
    {
        QTest::addColumn<Qt::Key>("key");
        QTest::addColumn<QString>("button");
        QTest::newRow("Space") << Qt::Key_Space << QStringLiteral("btnPlay");
        QTest::newRow("Delete") << Qt::Key_Delete << QStringLiteral("btnDelete");
        QTest::newRow("F2") << Qt::Key_F2 << QStringLiteral("btnEdit");
    }
    void aCommandPressesItsButton()
    {
        QFETCH(Qt::Key, key);
        QFETCH(QString, button);
        CustomTableCellView row;
        const QKeyEvent event(QEvent::KeyPress, key, {});
        const QMap<QString, tarvelo::widgets::ImageButton *> buttons{
            {QStringLiteral("btnPlay"), row.btnPlay()},
            {QStringLiteral("btnDelete"), row.btnDelete()},
            {QStringLiteral("btnEdit"), row.btnEdit()}};
        const QSignalSpy clicked(buttons[button], &QAbstractButton::clicked);

        QVERIFY(isRowCommand(event));
        QVERIFY(giveCommand(row, event));

        QCOMPARE(clicked.count(), 1);
    }

    void openingIsLeftToTheTable()
    {
        CustomTableCellView row;
        const QKeyEvent event(QEvent::KeyPress, Qt::Key_Return, {});

        QVERIFY(isRowCommand(event));
        QVERIFY(!giveCommand(row, event));
    }

    void f10IsACommandWithShiftAlone()
    {
        QVERIFY(isRowCommand({QEvent::KeyPress, Qt::Key_F10, Qt::ShiftModifier}));
        QVERIFY(!isRowCommand({QEvent::KeyPress, Qt::Key_F10, {}}));
        QVERIFY(!isRowCommand({QEvent::KeyPress, Qt::Key_A, {}}));
    }
};

QTEST_MAIN(RowKeysTest)
#include "RowKeysTest.moc"
