#pragma once

#include "lectures/RowAction.h"
#include "lectures/RowSelection.h"
#include "lectures/ShownRows.h"

#include <QAbstractItemModel> // IWYU pragma: keep: a guarded pointer needs the whole class
#include <QAbstractScrollArea>
#include <QPointer>

#include <chrono>
#include <functional>
#include <utility>

class QWidget;

namespace tarvelo::lectures {

class CustomTableCellView;
class LectureRowHost;
class RowSlideUp;
class RowSwipe;

// The table of lectures: one column of rows of one height. A row has a view only while it shows;
// the views of rows that scroll out are used again for those that scroll in, so that ten thousand
// lectures open as fast as ten. Row and column indexes count from 0.
class LectureTable final : public QAbstractScrollArea
{
    Q_OBJECT

public:
    // Under this role the model gives a row's Lecture.
    static constexpr int LectureRole = Qt::UserRole;

    enum class SelectionHighlightStyle { None, Regular };

    using RowActions = std::function<QList<RowAction>(int row, RowActionEdge edge)>;

    explicit LectureTable(QWidget *parent = nullptr);
    ~LectureTable() override;

    int rowCount() const;
    bool hasRow(int row) const { return row >= 0 && row < rowCount(); }
    // The row's view when it shows, else null; `makeIfNecessary` scrolls the row into view first.
    CustomTableCellView *viewAtColumnRowMakeIfNecessary(int column, int row, bool makeIfNecessary);
    // The row that `view` is, or lies in; -1 when it is none.
    int rowForView(const QWidget *view) const { return m_rows.rowFor(view); }
    int viewCount() const { return m_rows.viewCount(); }
    // The row that the keyboard is on; -1 for none.
    int selectedRow() const { return m_selection.current(); }
    // All of them, in ascending order.
    const QList<int> &selectedRowIndexes() const { return m_selection.rows(); }
    // The view of the row that the keyboard is on, when both the row and the keyboard are here.
    CustomTableCellView *keyboardRow() const;
    // The views of the rows that show, from above to below.
    QList<CustomTableCellView *> shownRows() const { return m_rows.inOrder(); }
    bool isSelected(const QWidget &rowView) const { return m_selection.has(rowForView(&rowView)); }

    // The model must outlive the table or be taken off it. Its resets reload the table.
    void setModel(QAbstractItemModel *model);
    // Lets the rows ask their questions; null takes it back.
    void setRowHost(LectureRowHost *host) { m_rows.setRowHost(host); }
    // Whether the selected row lies on a ground of its own. The mark of the row that the keyboard
    // is on shows under both styles.
    void setSelectionHighlightStyle(SelectionHighlightStyle style);
    // What a swipe uncovers. Only the first action at the trailing edge is shown.
    void setRowActions(RowActions actions) { m_rowActions = std::move(actions); }
    // A row that still slides out is gone at once.
    void reloadData();
    void scrollRowToVisible(int row);
    // That row alone; -1 for none.
    void selectRow(int row);
    // Rows that are not there are left out. The keyboard goes to the last one.
    void selectRowIndexesByExtendingSelection(const QList<int> &rows, bool extend);
    // For a row that the model has no longer: it slides out of sight under the one above. The
    // completion hears of it once, when the time is over or the table is reloaded before, and never
    // when the table is gone before.
    void removeRow(int row, std::chrono::milliseconds duration, std::function<void()> completion);
    // Ends a slide at once.
    void finishRemoval();
    // Looks anew where the mouse is, after something else lay over the rows.
    void updateMouseOver();

Q_SIGNALS:
    // A row view came into being; whoever drives the table wires its buttons.
    void rowViewMade(tarvelo::lectures::CustomTableCellView *view);
    void selectionChanged(const QList<int> &rows);
    // By a double click, or by Return.
    void rowOpened(int row);

protected:
    void resizeEvent(QResizeEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;
    void focusInEvent(QFocusEvent *event) override;
    bool focusNextPrevChild(bool next) override;
    void keyPressEvent(QKeyEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    bool hasKeyboard() const;
    bool moveByKey(int key);
    bool commandByKey(const QKeyEvent &event);
    CustomTableCellView *selectedView();
    void updateScrollBar();
    void forgetRow(int row);
    void setSelection(const QList<int> &rows, int current);
    void selectionHasChanged();
    // Gives every row that shows its view, in its place, and takes the others' away.
    void layoutRows();
    void placeRowAction();
    void bind(CustomTableCellView &view, int row) const;
    void showCurrentRow();
    // Tells screen readers that the keyboard is on a row of the table, and not on the whole of it.
    void tellOfKeyboardRow();

    QPointer<QAbstractItemModel> m_model;
    ShownRows m_rows;
    RowActions m_rowActions;
    RowSlideUp *m_slideUp;
    RowSwipe *m_swipe;
    RowSelection m_selection;
    SelectionHighlightStyle m_highlightStyle = SelectionHighlightStyle::Regular;
};

} // namespace tarvelo::lectures
