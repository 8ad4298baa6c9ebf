#include "lectures/CustomTableCellView.h"

#include "lectures/LectureTable.h"
#include "lectures/RowAction.h"
#include "lectures/RowSwipe.h"
#include "widgets/ImageButton.h"

#include <QAbstractScrollArea>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPoint>
#include <QRect>
#include <QWheelEvent>
#include <QWidget>

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace tarvelo::lectures {

namespace {

// How far a swipe goes across, in points to the right.
int acrossOf(const QWheelEvent &event)
{
    const QPoint delta = event.pixelDelta().isNull() ? event.angleDelta() : event.pixelDelta();
    if (event.modifiers() & Qt::ShiftModifier)
        return delta.x() != 0 ? delta.x() : delta.y();
    return std::abs(delta.x()) > std::abs(delta.y()) ? delta.x() : 0;
}

// A wheel goes from notch to notch; a touchpad follows the fingers.
bool hasNotches(const QWheelEvent &event)
{
    return event.pixelDelta().isNull() && event.angleDelta().manhattanLength() >= 120;
}

// What a key does with a row: it opens, plays, deletes or changes the lecture.
bool isRowKey(int key)
{
    return key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space ||
           key == Qt::Key_Delete || key == Qt::Key_F2;
}

} // namespace

int LectureTable::rowAt(const QPoint &position) const
{
    const auto found = std::find_if(m_shown.cbegin(), m_shown.cend(), [&](const auto &shown) {
        const QRect row = shown.second->geometry();
        return position.y() >= row.top() && position.y() <= row.bottom();
    });
    return found == m_shown.cend() ? -1 : found->first;
}

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
    if (const auto found = m_shown.find(selectedRow()); found != m_shown.end()) {
        for (QWidget *button : found->second->buttons()) {
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
    int row = selectedRow();
    switch (key) {
    case Qt::Key_Down:
        row += 1;
        break;
    case Qt::Key_Up:
        row = row < 0 ? 0 : row - 1;
        break;
    case Qt::Key_PageDown:
        row += page;
        break;
    case Qt::Key_PageUp:
        row -= page;
        break;
    case Qt::Key_Home:
        row = 0;
        break;
    case Qt::Key_End:
        row = rowCount() - 1;
        break;
    default:
        return false;
    }
    if (rowCount() > 0) {
        row = std::clamp(row, 0, rowCount() - 1);
        scrollRowToVisible(row);
        selectRow(row);
    }
    return true;
}

bool LectureTable::commandByKey(const QKeyEvent &event)
{
    const bool isMenuKey = event.key() == Qt::Key_F10 && event.modifiers() & Qt::ShiftModifier;
    const bool isCommand = isMenuKey || isRowKey(event.key());
    // A key that is held gives its command once.
    if (!isCommand || event.isAutoRepeat())
        return isCommand;
    CustomTableCellView *view = viewAtColumnRowMakeIfNecessary(0, selectedRow(), true);
    if (!view)
        return false;
    if (isMenuKey)
        showMenuOfSelectedRow(event.modifiers());
    else
        command(*view, event.key());
    return true;
}

void LectureTable::command(CustomTableCellView &row, int key)
{
    if (key == Qt::Key_Space)
        row.btnPlay()->click();
    else if (key == Qt::Key_Delete)
        row.btnDelete()->click();
    else if (key == Qt::Key_F2)
        row.btnEdit()->click();
    else
        Q_EMIT rowOpened(selectedRow());
}

void LectureTable::showMenuOfSelectedRow(Qt::KeyboardModifiers modifiers)
{
    CustomTableCellView *view = viewAtColumnRowMakeIfNecessary(0, selectedRow(), true);
    if (!view)
        return;
    QMenu *menu = modifiers & Qt::ControlModifier ? view->exportMenu() : view->getMenu();
    if (!menu)
        return;
    menu->popup(view->mapToGlobal(view->rect().center()));
    menu->setActiveAction(menu->actions().constFirst());
}

// The mouse's menu comes from the row that is pressed.
void LectureTable::contextMenuEvent(QContextMenuEvent *event)
{
    if (event->reason() == QContextMenuEvent::Keyboard)
        showMenuOfSelectedRow(event->modifiers());
}

void LectureTable::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        selectRow(rowAt(event->position().toPoint()));
}

void LectureTable::mouseDoubleClickEvent(QMouseEvent *event)
{
    const int row = rowAt(event->position().toPoint());
    if (event->button() == Qt::LeftButton && row >= 0)
        Q_EMIT rowOpened(row);
}

void LectureTable::wheelEvent(QWheelEvent *event)
{
    if (swipe(*event)) {
        event->accept();
        return;
    }
    m_swipe->cover();
    QAbstractScrollArea::wheelEvent(event);
}

// Fingers that go towards the leading edge uncover what lies at the trailing one.
bool LectureTable::swipe(const QWheelEvent &event)
{
    if (event.phase() == Qt::ScrollEnd && m_swipe->row() >= 0) {
        m_swipe->settle();
        return true;
    }
    const int across = acrossOf(event);
    if (across == 0)
        return false;
    const int row = rowAt(event.position().toPoint());
    const QList<RowAction> actions =
        row >= 0 && m_rowActions ? m_rowActions(row, RowActionEdge::Trailing) : QList<RowAction>();
    if (actions.isEmpty()) {
        m_swipe->cover();
        return true;
    }
    const int points = layoutDirection() == Qt::RightToLeft ? across : -across;
    if (hasNotches(event))
        m_swipe->moveToEnd(row, actions.first(), points > 0);
    else
        m_swipe->moveBy(row, actions.first(), points);
    return true;
}

} // namespace tarvelo::lectures
