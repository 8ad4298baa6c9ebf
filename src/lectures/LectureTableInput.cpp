#include "lectures/CustomTableCellView.h"

#include "lectures/LectureTable.h"
#include "lectures/RowAction.h"
#include "lectures/RowKeys.h"
#include "lectures/RowSwipe.h"
#include "lectures/ShownRows.h"
#include "widgets/ImageButton.h"

#include <QAbstractScrollArea>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>
#include <QWidget>

#include <algorithm>
#include <optional>

namespace tarvelo::lectures {

// The table and what lies in it count, also while the window is not the active one.
bool LectureTable::hasKeyboard() const
{
    const QWidget *focus = window()->focusWidget();
    return focus && (focus == this || isAncestorOf(focus));
}

// From the table Tab goes over the buttons of the selected row, and then to what follows the table.
bool LectureTable::focusNextPrevChild(bool next)
{
    QList<QWidget *> stops{this};
    if (CustomTableCellView *row = m_rows.at(selectedRow())) {
        for (QWidget *button : row->buttons()) {
            if (button->isVisible() && button->isEnabled())
                stops.append(button);
        }
    }
    const auto to = stops.indexOf(window()->focusWidget()) + (next ? 1 : -1);
    if (hasKeyboard() && to >= 0 && to < stops.size()) {
        stops[to]->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
        return true;
    }
    if (hasKeyboard())
        setFocus();
    return QAbstractScrollArea::focusNextPrevChild(next);
}

void LectureTable::keyPressEvent(QKeyEvent *event)
{
    if (!moveByKey(event->key()) && !commandByKey(*event))
        QAbstractScrollArea::keyPressEvent(event);
}

bool LectureTable::moveByKey(int key)
{
    const int page = std::max(1, viewport()->height() / CustomTableCellView::RowHeight);
    const std::optional<int> row = rowByKey(key, selectedRow(), rowCount(), page);
    if (row && *row >= 0) {
        scrollRowToVisible(*row);
        selectRow(*row);
    }
    return row.has_value();
}

// A key that is held gives its command once.
bool LectureTable::commandByKey(const QKeyEvent &event)
{
    if (!isRowCommand(event) || event.isAutoRepeat())
        return isRowCommand(event);
    CustomTableCellView *view = selectedView();
    if (view && !giveCommand(*view, event))
        Q_EMIT rowOpened(selectedRow());
    return view != nullptr;
}

// Scrolled into view, where there is one.
CustomTableCellView *LectureTable::selectedView()
{
    return viewAtColumnRowMakeIfNecessary(0, selectedRow(), true);
}

// The mouse's menu comes from the row that is pressed.
void LectureTable::contextMenuEvent(QContextMenuEvent *event)
{
    if (event->reason() != QContextMenuEvent::Keyboard)
        return;
    if (CustomTableCellView *view = selectedView())
        showMenu(*view, event->modifiers());
}

void LectureTable::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        selectRow(m_rows.rowAt(event->position().toPoint()));
}

void LectureTable::mouseDoubleClickEvent(QMouseEvent *event)
{
    const int row = m_rows.rowAt(event->position().toPoint());
    if (event->button() == Qt::LeftButton && row >= 0)
        Q_EMIT rowOpened(row);
}

void LectureTable::wheelEvent(QWheelEvent *event)
{
    const int row = m_rows.rowAt(event->position().toPoint());
    const auto actions = [this, row] {
        return row >= 0 && m_rowActions ? m_rowActions(row, RowActionEdge::Trailing)
                                        : QList<RowAction>();
    };
    if (m_swipe->swipe(*event, row, actions)) {
        event->accept();
        return;
    }
    m_swipe->cover();
    QAbstractScrollArea::wheelEvent(event);
}

} // namespace tarvelo::lectures
