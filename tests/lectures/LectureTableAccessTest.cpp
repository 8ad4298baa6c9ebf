#include "lectures/LectureTableAccess.h"

#include "lectures/CustomTableCellView.h"
#include "lectures/LectureTable.h"
#include "store/LectureInfoItem.h"
#include "support/TestCase.h"

#include <QAccessible>
#include <QMenu>
#include <QScrollBar>
#include <QStandardItemModel>

using namespace Qt::StringLiterals;
using namespace tarvelo::lectures;

// What a screen reader hears of the table.
class LectureTableAccessTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { installTableAccessibility(); }

    void theTableIsAListOfTheRowsThatShow()
    {
        QCOMPARE(of(*m_table).role(), QAccessible::List);
        QCOMPARE(namesOfRows(), QStringList({u"Lecture 0"_s, u"Lecture 1"_s, u"Lecture 2"_s}));
    }

    void scrolledRowsAreReadFromAboveToBelow()
    {
        m_table->verticalScrollBar()->setValue(CustomTableCellView::RowHeight * 2);
        m_table->verticalScrollBar()->setValue(CustomTableCellView::RowHeight);

        QCOMPARE(namesOfRows(), QStringList({u"Lecture 1"_s, u"Lecture 2"_s, u"Lecture 3"_s}));
    }

    void aRowIsAnItemOfTheTable()
    {
        QAccessibleInterface &row = *of(*m_table).child(1);

        QCOMPARE(row.role(), QAccessible::ListItem);
        QCOMPARE(row.parent()->object(), m_table);
        QCOMPARE(of(*m_table).indexOfChild(&row), 1);
        QVERIFY(!row.state().selected);
        m_table->selectRow(1);
        QVERIFY(row.state().selected);
    }

    void theKeyboardIsOnTheRowAndNotOnTheTable()
    {
        m_table->setFocus();
        QVERIFY(of(*m_table).state().focused);

        QTest::keyClick(m_table, Qt::Key_Down);

        QVERIFY(!of(*m_table).state().focused);
        QVERIFY(of(*m_table).child(0)->state().focused);
        QCOMPARE(of(*m_table).focusChild()->object(), of(*m_table).child(0)->object());
    }

    void anOpenMenuBelongsToItsRow()
    {
        auto *row = m_table->viewAtColumnRowMakeIfNecessary(0, 1, false);
        const int before = of(*row).childCount();
        QMenu *menu = row->getMenu();

        menu->popup({});
        QCOMPARE(of(*row).childCount(), before + 1);
        QCOMPARE(of(*row).child(before)->object(), menu);
        QCOMPARE(of(*menu).text(QAccessible::Name), u"Lecture 1"_s);
        menu->close();

        QCOMPARE(of(*row).childCount(), before);
    }

private:
    static QAccessibleInterface &of(QWidget &widget)
    {
        return *QAccessible::queryAccessibleInterface(&widget);
    }
    QStringList namesOfRows() const
    {
        QStringList names;
        for (int i = 0; i < of(*m_table).childCount(); ++i)
            names.append(of(*m_table).child(i)->text(QAccessible::Name));
        return names;
    }

    void prepare() override
    {
        m_model.clear();
        m_model.setColumnCount(1);
        m_model.setRowCount(5);
        for (int row = 0; row < 5; ++row) {
            const auto lecture = std::make_shared<tarvelo::store::LectureInfoItem>(
                u"Lecture %1"_s.arg(row), QString(), QString(), QString(), false);
            m_model.setData(m_model.index(row, 0), QVariant::fromValue<Lecture>(lecture),
                            LectureTable::LectureRole);
        }
        m_window = std::make_unique<QWidget>();
        m_table = new LectureTable(m_window.get());
        m_table->setGeometry(0, 0, 300, 3 * CustomTableCellView::RowHeight);
        m_table->setModel(&m_model);
        m_window->resize(300, 400);
        m_window->show();
        m_window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
        m_window->setFocus();
    }
    void finish() override { m_window.reset(); }

    QStandardItemModel m_model;
    std::unique_ptr<QWidget> m_window;
    LectureTable *m_table = nullptr;
};

QTEST_MAIN(LectureTableAccessTest)
#include "LectureTableAccessTest.moc"
