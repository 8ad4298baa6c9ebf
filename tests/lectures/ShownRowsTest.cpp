#include "lectures/ShownRows.h"

#include "lectures/CustomTableCellView.h"
#include "support/TestCase.h"
#include "widgets/ImageButton.h"

#include <QAbstractScrollArea>

using tarvelo::lectures::CustomTableCellView;
using tarvelo::lectures::ShownRows;

class ShownRowsTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aRowThatWasAddedHasItsView()
    {
        CustomTableCellView &view = m_rows->add(7);

        QCOMPARE(m_rows->at(7), &view);
        QCOMPARE(m_rows->rowFor(&view), 7);
        QCOMPARE(m_rows->rowFor(view.btnPlay()), 7);
        QVERIFY(!m_rows->at(6));
        QCOMPARE(m_rows->rowFor(m_table->viewport()), -1);
        QCOMPARE(m_rows->rowFor(nullptr), -1);
    }

    void theViewOfARowOutOfSightIsUsedAgain()
    {
        CustomTableCellView *first = &m_rows->add(0);
        m_rows->add(1);

        m_rows->keepOnly(1, 2);
        QVERIFY(!m_rows->at(0));
        QVERIFY(first->isHidden());

        QCOMPARE(&m_rows->add(2), first);
        QCOMPARE(m_rows->viewCount(), 2);
        QCOMPARE(m_made.size(), 2);
    }

    void theRowsBelowOneThatIsForgottenMoveUp()
    {
        CustomTableCellView &above = m_rows->add(3);
        CustomTableCellView &gone = m_rows->add(4);
        CustomTableCellView &below = m_rows->add(5);

        m_rows->forget(4);

        QCOMPARE(m_rows->inOrder(), (QList<CustomTableCellView *>{&above, &below}));
        QCOMPARE(m_rows->rowFor(&below), 4);
        QCOMPARE(m_rows->rowFor(&gone), -1);
    }

    void aRowIsFoundByItsHeight()
    {
        m_rows->add(2).setGeometry(0, 10, 100, 40);

        QCOMPARE(m_rows->rowAt({50, 9}), -1);
        QCOMPARE(m_rows->rowAt({50, 10}), 2);
        QCOMPARE(m_rows->rowAt({500, 49}), 2);
        QCOMPARE(m_rows->rowAt({50, 50}), -1);
    }

    void theKeyboardDoesNotLeaveTheTableWithARow()
    {
        CustomTableCellView &view = m_rows->add(0);
        view.show();
        m_table->show();
        QVERIFY(QTest::qWaitForWindowActive(m_table.get()));
        view.btnPlay()->setFocus();

        m_rows->keepOnly(1, 1);

        QVERIFY(m_table->hasFocus());
    }

private:
    void prepare() override
    {
        m_made.clear();
        m_table = std::make_unique<QAbstractScrollArea>();
        m_rows = std::make_unique<ShownRows>(
            *m_table, [this](CustomTableCellView *view) { m_made.append(view); });
    }
    void finish() override
    {
        m_rows.reset();
        m_table.reset();
    }

    QList<CustomTableCellView *> m_made;
    std::unique_ptr<QAbstractScrollArea> m_table;
    std::unique_ptr<ShownRows> m_rows;
};

QTEST_MAIN(ShownRowsTest)
#include "ShownRowsTest.moc"
