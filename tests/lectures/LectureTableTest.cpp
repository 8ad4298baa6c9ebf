#include "lectures/LectureTable.h"

#include "lectures/CustomTableCellView.h"
#include "store/LectureInfoItem.h"
#include "support/TestCase.h"
#include "widgets/Colours.h"
#include "widgets/ControlStyle.h"
#include "widgets/ImageButton.h"

#include <QAbstractListModel>
#include <QScrollBar>
#include <QSignalSpy>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using tarvelo::lectures::CustomTableCellView;
using tarvelo::lectures::Lecture;
using tarvelo::lectures::LectureTable;

namespace {

constexpr int RowHeight = CustomTableCellView::RowHeight;

// So many lectures, named by their rows.
class Lectures final : public QAbstractListModel
{
public:
    explicit Lectures(int count) { setCount(count); }

    void setCount(int count)
    {
        beginResetModel();
        m_names.clear();
        for (int row = 0; row < count; ++row)
            m_names.append(u"Lecture %1"_s.arg(row));
        endResetModel();
    }
    // The table is not told.
    void remove(int row)
    {
        beginRemoveRows({}, row, row);
        m_names.removeAt(row);
        endRemoveRows();
    }
    int rowCount(const QModelIndex &) const override { return static_cast<int>(m_names.size()); }
    QVariant data(const QModelIndex &index, int) const override
    {
        return QVariant::fromValue<Lecture>(std::make_shared<tarvelo::store::LectureInfoItem>(
            m_names.at(index.row()), QString(), QString(), QString(), false));
    }

private:
    QStringList m_names;
};

QString subjectOf(const CustomTableCellView *view)
{
    return view ? view->objectValue()->strSubject() : u"no view"_s;
}

} // namespace

class LectureTableTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aTableWithoutAModelIsEmpty()
    {
        LectureTable table;

        QCOMPARE(table.rowCount(), 0);
        QCOMPARE(table.viewCount(), 0);
        QVERIFY(!table.viewAtColumnRowMakeIfNecessary(0, 0, true));
    }

    void onlyRowsThatShowHaveViews()
    {
        m_lectures->setCount(10000);

        QCOMPARE(m_table->rowCount(), 10000);
        QVERIFY2(m_table->viewCount() < 12, qPrintable(QString::number(m_table->viewCount())));
    }

    void scrollingUsesTheViewsAgain()
    {
        m_lectures->setCount(10000);

        for (int row = 0; row < 10000; row += 7)
            m_table->scrollRowToVisible(row);

        QVERIFY2(m_table->viewCount() < 12, qPrintable(QString::number(m_table->viewCount())));
    }

    void everyRowThatShowsHasItsOwnLecture()
    {
        m_lectures->setCount(10000);
        m_table->scrollRowToVisible(5000);

        for (int row = 4996; row <= 5000; ++row) {
            const CustomTableCellView *view =
                m_table->viewAtColumnRowMakeIfNecessary(0, row, false);
            QCOMPARE(subjectOf(view), u"Lecture %1"_s.arg(row));
            QVERIFY(view->isVisible());
            QCOMPARE(m_table->rowForView(view), row);
        }
    }

    void aRowOutOfSightHasNoView()
    {
        QVERIFY(m_table->viewAtColumnRowMakeIfNecessary(0, 0, false));
        QVERIFY(!m_table->viewAtColumnRowMakeIfNecessary(0, 19, false));

        m_table->scrollRowToVisible(19);

        QVERIFY(!m_table->viewAtColumnRowMakeIfNecessary(0, 0, false));
        QVERIFY(m_table->viewAtColumnRowMakeIfNecessary(0, 19, false));
    }

    void aViewThatIsNecessaryIsMadeByScrollingThere()
    {
        QCOMPARE(subjectOf(m_table->viewAtColumnRowMakeIfNecessary(0, 19, true)), u"Lecture 19"_s);
    }

    void thereIsNoViewOutsideTheTable()
    {
        QVERIFY(!m_table->viewAtColumnRowMakeIfNecessary(0, -1, true));
        QVERIFY(!m_table->viewAtColumnRowMakeIfNecessary(0, 20, true));
        QVERIFY(!m_table->viewAtColumnRowMakeIfNecessary(1, 0, true));
    }

    void aControlInARowKnowsItsRow()
    {
        CustomTableCellView *view = m_table->viewAtColumnRowMakeIfNecessary(0, 2, false);
        const auto *control = view->findChild<QWidget *>(u"btnBrowse"_s);
        const QWidget elsewhere;

        QCOMPARE(m_table->rowForView(control), 2);
        QCOMPARE(m_table->rowForView(&elsewhere), -1);
        QCOMPARE(m_table->rowForView(nullptr), -1);
    }

    void aViewThatWasPutAwayIsNoRow()
    {
        const CustomTableCellView *view = m_table->viewAtColumnRowMakeIfNecessary(0, 5, false);

        m_lectures->setCount(1);

        QCOMPARE(m_table->rowForView(view), -1);
        QVERIFY(view->isHidden());
    }

    void rowsThatDoNotFitScroll()
    {
        QCOMPARE(m_table->verticalScrollBar()->maximum(), 20 * RowHeight - 400);

        m_lectures->setCount(3);

        QCOMPARE(m_table->verticalScrollBar()->maximum(), 0);
    }

    // What ends at the end of a row ends at one place whether or not there is a bar.
    void theScrollBarLiesOverTheRows()
    {
        QApplication::setStyle(new tarvelo::widgets::ControlStyle);
        m_table->resize(300, 401);
        const QScrollBar &bar = *m_table->verticalScrollBar();
        QVERIFY(bar.isVisible());
        QCOMPARE(viewOf(0)->width(), 300);
        // The line below the row shows beside the handle, which lies over it.
        const QImage image = m_table->grab().toImage();
        QCOMPARE(image.pixelColor(299, RowHeight - 1), tarvelo::widgets::colours().hairline);
        QVERIFY(image.pixelColor(294, RowHeight - 1) != image.pixelColor(299, RowHeight - 1));

        m_lectures->setCount(3);
        QTRY_VERIFY(!bar.isVisible());
        QCOMPARE(viewOf(0)->width(), 300);
        QApplication::setStyle(u"Fusion"_s);
    }

    void aRowInSightIsNotScrolledTo()
    {
        m_table->scrollRowToVisible(4);
        QCOMPARE(m_table->verticalScrollBar()->value(), 0);

        m_table->scrollRowToVisible(5);
        QCOMPARE(m_table->verticalScrollBar()->value(), 6 * RowHeight - 400);

        m_table->scrollRowToVisible(20);
        m_table->scrollRowToVisible(-1);
        QCOMPARE(m_table->verticalScrollBar()->value(), 6 * RowHeight - 400);
    }

    void aTallerTableShowsMoreRows()
    {
        m_table->resize(300, 800);

        QCOMPARE(m_table->viewCount(), 12);
        QVERIFY(m_table->viewAtColumnRowMakeIfNecessary(0, 11, false));
    }

    void reloadingShowsTheLecturesAsTheyNowAre()
    {
        m_lectures->setCount(1);

        QCOMPARE(m_table->rowCount(), 1);
        QVERIFY(!m_table->viewAtColumnRowMakeIfNecessary(0, 1, false));
        QCOMPARE(subjectOf(m_table->viewAtColumnRowMakeIfNecessary(0, 0, false)), u"Lecture 0"_s);
    }

    void aModelThatIsTakenAwayIsNoLongerFollowed()
    {
        m_table->setModel(nullptr);
        m_lectures->setCount(3);

        QCOMPARE(m_table->rowCount(), 0);
        QVERIFY(!m_table->viewAtColumnRowMakeIfNecessary(0, 0, false));
    }

    void everyViewThatIsMadeIsTold()
    {
        LectureTable table;
        const QSignalSpy made(&table, &LectureTable::rowViewMade);
        table.resize(300, 400);
        table.show();

        table.setModel(m_lectures.get());

        QCOMPARE(made.count(), table.viewCount());
    }

    void theKeyboardMovesOverTheRowsAndScrolls()
    {
        const QSignalSpy changes(m_table.get(), &LectureTable::selectionChanged);
        QCOMPARE(m_table->selectedRow(), -1);

        press(Qt::Key_Down);
        QCOMPARE(m_table->selectedRow(), 0);
        press(Qt::Key_End);
        QCOMPARE(m_table->selectedRow(), 19);
        QVERIFY(m_table->viewAtColumnRowMakeIfNecessary(0, 19, false));
        press(Qt::Key_PageUp);
        QCOMPARE(m_table->selectedRow(), 14);
        press(Qt::Key_Up);
        QCOMPARE(m_table->selectedRow(), 13);
        press(Qt::Key_PageDown);
        QCOMPARE(m_table->selectedRow(), 18);
        press(Qt::Key_Home);
        QCOMPARE(m_table->selectedRow(), 0);
        QVERIFY(m_table->viewAtColumnRowMakeIfNecessary(0, 0, false));
        QCOMPARE(changes.count(), 6);
    }

    void theKeyboardStopsAtTheEnds()
    {
        press(Qt::Key_Up);
        QCOMPARE(m_table->selectedRow(), 0);
        press(Qt::Key_Up);
        QCOMPARE(m_table->selectedRow(), 0);

        m_table->selectRow(19);
        press(Qt::Key_Down);
        QCOMPARE(m_table->selectedRow(), 19);
    }

    void anEmptyTableHasNothingToSelect()
    {
        m_lectures->setCount(0);

        press(Qt::Key_Down);

        QCOMPARE(m_table->selectedRow(), -1);
    }

    void aSelectionThatIsGoneAfterAReloadIsNone()
    {
        m_table->selectRow(10);
        const QSignalSpy changes(m_table.get(), &LectureTable::selectionChanged);

        m_lectures->setCount(5);

        QCOMPARE(m_table->selectedRow(), -1);
        QCOMPARE(changes.count(), 1);
    }

    void theMarkShowsOnlyUnderTheKeyboard()
    {
        m_table->selectRow(1);
        const QImage without = imageOfRow(1);

        m_table->setFocus();
        QVERIFY(imageOfRow(1) != without);

        m_table->clearFocus();
        QCOMPARE(imageOfRow(1), without);
    }

    void aSelectedRowIsHighlightedUnlessTheStyleIsNone()
    {
        const QImage plain = m_table->grab().toImage();

        m_table->selectRow(1);
        QVERIFY(m_table->grab().toImage() != plain);

        m_table->setSelectionHighlightStyle(LectureTable::SelectionHighlightStyle::None);
        QCOMPARE(m_table->grab().toImage(), plain);
    }

    void rowsCanBeAddedToTheSelection()
    {
        m_table->selectRow(3);
        m_table->selectRowIndexesByExtendingSelection({1}, true);
        QCOMPARE(m_table->selectedRowIndexes(), QList<int>({1, 3}));
        QCOMPARE(m_table->selectedRow(), 1);

        m_table->selectRowIndexesByExtendingSelection({5, 99, 5}, false);
        QCOMPARE(m_table->selectedRowIndexes(), QList<int>{5});

        m_table->selectRowIndexesByExtendingSelection({}, true);
        QCOMPARE(m_table->selectedRowIndexes(), QList<int>{5});
        m_table->selectRowIndexesByExtendingSelection({}, false);
        QVERIFY(m_table->selectedRowIndexes().isEmpty());
    }

    void aRowThatIsRemovedSlidesOutWhileTheRowsBelowComeUp()
    {
        remove(1, 10s);

        QCOMPARE(subjectOf(viewOf(1)), u"Lecture 2"_s);
        QCOMPARE(viewOf(0)->y(), 0);
        QTRY_VERIFY(viewOf(1)->y() < 2 * RowHeight);
        QVERIFY(viewOf(1)->y() > RowHeight);
        QCOMPARE(viewOf(2)->y(), viewOf(1)->y() + RowHeight);
        QCOMPARE(m_completions, 0);
    }

    void aRowThatIsGoneIsToldOnce()
    {
        remove(1, 40ms);

        QTRY_COMPARE(m_completions, 1);

        QCOMPARE(viewOf(1)->y(), RowHeight);
        m_table->reloadData();
        QCOMPARE(m_completions, 1);
    }

    void theRowIsOutOfTheTableFromTheBeginning()
    {
        m_lectures->setCount(3);
        const CustomTableCellView *view = viewOf(1);

        remove(1, 10s);

        QCOMPARE(m_table->rowForView(view), -1);
        QCOMPARE(m_table->rowCount(), 2);
        QVERIFY(!view->objectValue());
    }

    void thePictureOfTheRowLiesInTheGap()
    {
        m_table->selectRow(-1);
        const QImage row = m_table->viewport()->grab({0, 0, 300, RowHeight}).toImage();

        remove(0, 10s);

        // At the very beginning nothing has moved.
        QCOMPARE(m_table->viewport()->grab({0, 0, 300, RowHeight}).toImage(), row);
    }

    void reloadingEndsTheSlideAtOnce()
    {
        remove(1, 10s);

        m_lectures->setCount(5);

        QCOMPARE(m_completions, 1);
        QCOMPARE(viewOf(1)->y(), RowHeight);
        QCOMPARE(m_table->verticalScrollBar()->maximum(), 0);
    }

    void aSecondRemovalEndsTheFirst()
    {
        remove(1, 10s);

        remove(1, 10s);

        QCOMPARE(m_completions, 1);
        QCOMPARE(subjectOf(viewOf(1)), u"Lecture 3"_s);
        m_table->finishRemoval();
        QCOMPARE(m_completions, 2);
    }

    void scrollingAndResizingGoOnWhileARowSlidesOut()
    {
        remove(0, 10s);

        m_table->resize(320, 300);
        m_table->verticalScrollBar()->setValue(3 * RowHeight);
        QCOMPARE(m_completions, 0);
        QCOMPARE(subjectOf(viewOf(4)), u"Lecture 5"_s);
        m_table->finishRemoval();

        QCOMPARE(m_completions, 1);
        QCOMPARE(viewOf(4)->y(), RowHeight);
        QCOMPARE(viewOf(4)->width(), m_table->viewport()->width());
    }

    void atTheBottomTheRowsAboveComeDownWithTheEndOfTheList()
    {
        m_table->scrollRowToVisible(19);
        const int bottom = m_table->verticalScrollBar()->value();

        remove(19, 10s);
        QVERIFY(m_table->verticalScrollBar()->value() > bottom - RowHeight);
        m_table->finishRemoval();

        QCOMPARE(m_table->verticalScrollBar()->value(), bottom - RowHeight);
        QCOMPARE(viewOf(18)->geometry().bottom(), 399);
    }

    void aRowOutOfSightCanBeRemoved()
    {
        m_table->scrollRowToVisible(19);

        remove(0, 10s);
        remove(18, 10s);
        m_table->finishRemoval();

        QCOMPARE(m_completions, 2);
        QCOMPARE(subjectOf(viewOf(17)), u"Lecture 18"_s);
    }

    void aSlideThatIsCutShortAtTheBottomLeavesEveryRowItsLecture()
    {
        m_table->scrollRowToVisible(19);

        remove(19, 10s);
        remove(0, 10s);

        for (int row = 11; row < 18; ++row)
            QCOMPARE(subjectOf(viewOf(row)), u"Lecture %1"_s.arg(row + 1));
    }

    void theLastRowCanBeRemoved()
    {
        m_lectures->setCount(1);

        remove(0, 10s);
        m_table->finishRemoval();

        QCOMPARE(m_completions, 1);
        QVERIFY(!viewOf(0));
    }

    void aTableThatIsGoneTellsNothing()
    {
        remove(0, 10s);

        m_table.reset();

        QCOMPARE(m_completions, 0);
    }

    void theSelectionKeepsToItsLectures()
    {
        m_table->selectRowIndexesByExtendingSelection({1, 3, 5}, false);

        remove(2, 10s);

        QCOMPARE(m_table->selectedRowIndexes(), QList<int>({1, 2, 4}));
        QCOMPARE(m_table->selectedRow(), 4);
    }

    void theKeyboardGoesToTheRowThatTakesThePlace()
    {
        m_table->selectRow(3);
        const QSignalSpy changes(m_table.get(), &LectureTable::selectionChanged);

        remove(3, 10s);

        // The row has its number, and is another lecture.
        QCOMPARE(m_table->selectedRowIndexes(), QList<int>{3});
        QCOMPARE(changes.count(), 1);
        m_table->selectRow(18);
        remove(18, 10s);
        QCOMPARE(m_table->selectedRow(), 17);
    }

    void theKeyboardStaysInTheTableWhenItsRowGoes()
    {
        m_table->setFocus();
        m_table->selectRow(1);
        viewOf(1)->btnPlay()->setFocus();

        remove(1, 10s);

        QVERIFY(m_table->hasFocus());
    }

    void theRowThatComesUnderAMouseThatStandsStillLightsUp()
    {
        m_table->move(0, 0);
        QTest::mouseMove(m_table->viewport(), {100, RowHeight + 5});
        QTRY_VERIFY(viewOf(1)->btnInfo()->isVisible());

        m_table->verticalScrollBar()->setValue(2 * RowHeight);
        QVERIFY(viewOf(3)->btnInfo()->isVisible());
        QCOMPARE(litRows(), 1);

        m_lectures->setCount(4);
        QVERIFY(viewOf(1)->btnInfo()->isVisible());
        remove(1, 10s);
        m_table->finishRemoval();
        QVERIFY(viewOf(1)->btnInfo()->isVisible());
        QCOMPARE(litRows(), 1);
    }

    void aMouseElsewhereLightsNothingUp()
    {
        QCursor::setPos(700, 700);
        m_table->reloadData();

        QCOMPARE(litRows(), 0);
    }

private:
    void prepare() override
    {
        m_completions = 0;
        m_lectures = std::make_unique<Lectures>(20);
        m_table = std::make_unique<LectureTable>();
        m_table->resize(300, 400);
        m_table->setModel(m_lectures.get());
        m_table->show();
        QVERIFY(QTest::qWaitForWindowActive(m_table.get()));
        m_table->clearFocus();
    }
    void finish() override
    {
        m_table.reset();
        m_lectures.reset();
    }

    void remove(int row, std::chrono::milliseconds duration)
    {
        m_lectures->remove(row);
        m_table->removeRow(row, duration, [this] { ++m_completions; });
    }
    CustomTableCellView *viewOf(int row) const
    {
        return m_table->viewAtColumnRowMakeIfNecessary(0, row, false);
    }
    int litRows() const
    {
        int lit = 0;
        for (const auto *view : m_table->findChildren<CustomTableCellView *>())
            lit += view->btnInfo()->isVisible() ? 1 : 0;
        return lit;
    }
    void press(Qt::Key key) { QTest::keyClick(m_table.get(), key); }
    QImage imageOfRow(int row)
    {
        return m_table->viewAtColumnRowMakeIfNecessary(0, row, false)->grab().toImage();
    }

    std::unique_ptr<Lectures> m_lectures;
    std::unique_ptr<LectureTable> m_table;
    int m_completions = 0;
};

QTEST_MAIN(LectureTableTest)
#include "LectureTableTest.moc"
