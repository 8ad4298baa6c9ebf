#include "lectures/LectureTable.h"

#include "lectures/CustomTableCellView.h"
#include "lectures/LectureList.h"
#include "lectures/RowSlideUp.h"
#include "lectures/RowSwipe.h"

#include <QAbstractItemModel>
#include <QAccessible>
#include <QAccessibleEvent>
#include <QApplication>
#include <QCursor>
#include <QFrame>
#include <QMetaObject>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QPoint>
#include <QRect>
#include <QScrollBar>
#include <QStyle>
#include <QWidget>

#include <algorithm>

namespace tarvelo::lectures {

LectureTable::LectureTable(QWidget *parent)
    : QAbstractScrollArea(parent)
    , m_rows(*this, [this](CustomTableCellView *view) { Q_EMIT rowViewMade(view); })
    , m_slideUp(new RowSlideUp(this))
    , m_swipe(new RowSwipe(*viewport()))
{
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::StrongFocus);
    viewport()->setBackgroundRole(QPalette::Base);
    verticalScrollBar()->setSingleStep(CustomTableCellView::RowHeight / 3);
    // It lies over the margin of the rows, so that what ends there ends at the same place whether
    // or not there is a bar, under the button above the list.
    verticalScrollBar()->setAttribute(Qt::WA_OpaquePaintEvent, false);
    connect(m_slideUp, &RowSlideUp::moved, this, [this] {
        updateScrollBar();
        layoutRows();
        viewport()->update();
    });
    connect(m_swipe, &RowSwipe::moved, this, &LectureTable::layoutRows);
    connect(qApp, &QApplication::focusChanged, this, &LectureTable::showCurrentRow);
}

// Its children and the focus must not find it half gone.
LectureTable::~LectureTable()
{
    disconnect(qApp, nullptr, this, nullptr);
    m_slideUp->disconnect(this);
    m_swipe->disconnect(this);
}

int LectureTable::rowCount() const
{
    return m_model ? m_model->rowCount() : 0;
}

CustomTableCellView *LectureTable::viewAtColumnRowMakeIfNecessary(int column, int row,
                                                                  bool makeIfNecessary)
{
    if (column != 0 || !hasRow(row))
        return nullptr;
    if (makeIfNecessary && !m_rows.at(row))
        scrollRowToVisible(row);
    return m_rows.at(row);
}

CustomTableCellView *LectureTable::keyboardRow() const
{
    return hasKeyboard() ? m_rows.at(selectedRow()) : nullptr;
}

void LectureTable::setModel(QAbstractItemModel *model)
{
    if (m_model)
        m_model->disconnect(this);
    m_model = model;
    if (m_model)
        connect(m_model, &QAbstractItemModel::modelReset, this, &LectureTable::reloadData);
    reloadData();
}

void LectureTable::setSelectionHighlightStyle(SelectionHighlightStyle style)
{
    m_highlightStyle = style;
    viewport()->update();
}

void LectureTable::reloadData()
{
    m_swipe->coverAtOnce();
    updateScrollBar();
    layoutRows();
    for (const auto &[row, view] : m_rows.views())
        bind(*view, row);
    setSelection(selectedRowIndexes(), selectedRow());
    m_slideUp->finish();
}

void LectureTable::scrollRowToVisible(int row)
{
    if (!hasRow(row))
        return;
    const int top = row * CustomTableCellView::RowHeight;
    const int bottom = top + CustomTableCellView::RowHeight;
    QScrollBar &bar = *verticalScrollBar();
    if (top < bar.value())
        bar.setValue(top);
    else if (bottom > bar.value() + viewport()->height())
        bar.setValue(bottom - viewport()->height());
}

void LectureTable::selectRow(int row)
{
    setSelection({row}, row);
}

void LectureTable::selectRowIndexesByExtendingSelection(const QList<int> &rows, bool extend)
{
    const int current = rows.isEmpty() ? -1 : rows.last();
    setSelection(extend ? selectedRowIndexes() + rows : rows,
                 extend && current < 0 ? selectedRow() : current);
}

void LectureTable::setSelection(const QList<int> &rows, int current)
{
    if (m_selection.set(rows, current, rowCount()))
        selectionHasChanged();
}

void LectureTable::selectionHasChanged()
{
    showCurrentRow();
    tellOfKeyboardRow();
    viewport()->update();
    Q_EMIT selectionChanged(selectedRowIndexes());
}

void LectureTable::removeRow(int row, std::chrono::milliseconds duration,
                             std::function<void()> completion)
{
    m_slideUp->finish();
    const int height = CustomTableCellView::RowHeight;
    const int top = row * height - verticalScrollBar()->value();
    const QPixmap picture =
        m_rows.at(row) ? viewport()->grab({0, top, viewport()->width(), height}) : QPixmap();
    m_swipe->coverAtOnce();
    forgetRow(row);
    m_slideUp->start(row, height, picture, duration, std::move(completion));
    updateScrollBar();
    layoutRows();
    // Where a slide was cut short, rows may have come in under their old numbers.
    for (const auto &[index, view] : m_rows.views())
        bind(*view, index);
}

void LectureTable::finishRemoval()
{
    m_slideUp->finish();
}

// The rows below it, their views and their selection move up by one.
void LectureTable::forgetRow(int row)
{
    m_rows.forget(row);
    m_selection.removeRow(row, rowCount());
    // Also where the numbers are the same, as the rows are others.
    selectionHasChanged();
}

void LectureTable::updateScrollBar()
{
    const int content = rowCount() * CustomTableCellView::RowHeight + m_slideUp->gap();
    verticalScrollBar()->setPageStep(viewport()->height());
    verticalScrollBar()->setRange(0, std::max(0, content - viewport()->height()));
}

void LectureTable::layoutRows()
{
    const int height = CustomTableCellView::RowHeight;
    const int offset = verticalScrollBar()->value();
    const int first = std::max(0, offset - m_slideUp->gap()) / height;
    const int last = std::min(rowCount() - 1, (offset + viewport()->height() - 1) / height);

    m_rows.keepOnly(first, last);
    const int direction = layoutDirection() == Qt::RightToLeft ? 1 : -1;
    for (int row = first; row <= last; ++row) {
        const bool isNew = !m_rows.at(row);
        CustomTableCellView &view = isNew ? m_rows.add(row) : *m_rows.at(row);
        const int aside = row == m_swipe->row() ? m_swipe->offset() * direction : 0;
        view.setGeometry(aside, row * height - offset + m_slideUp->gapAbove(row),
                         viewport()->width(), height);
        if (isNew) {
            bind(view, row);
            view.show();
        }
    }
    placeRowAction();
    updateMouseOver();
}

void LectureTable::placeRowAction()
{
    const int row = m_swipe->row();
    if (row < 0)
        return;
    const int y = row * CustomTableCellView::RowHeight - verticalScrollBar()->value();
    const QRect frame(viewport()->width() - m_swipe->offset(), y, m_swipe->offset(),
                      CustomTableCellView::RowHeight - 1);
    m_swipe->button()->setGeometry(
        QStyle::visualRect(layoutDirection(), viewport()->rect(), frame));
}

void LectureTable::updateMouseOver()
{
    const QPoint mouse = viewport()->mapFromGlobal(QCursor::pos());
    for (const auto &[row, view] : m_rows.views())
        view->setMouseOver(viewport()->underMouse() && view->geometry().contains(mouse));
}

void LectureTable::bind(CustomTableCellView &view, int row) const
{
    view.setObjectValue(m_model->index(row, 0).data(LectureRole).value<Lecture>());
    view.setCurrent(row == selectedRow() && hasKeyboard());
}

void LectureTable::resizeEvent(QResizeEvent *event)
{
    QAbstractScrollArea::resizeEvent(event);
    updateScrollBar();
    layoutRows();
}

void LectureTable::scrollContentsBy(int, int)
{
    layoutRows();
}

void LectureTable::showCurrentRow()
{
    const bool has = hasKeyboard();
    for (const auto &[row, view] : m_rows.views())
        view->setCurrent(has && row == selectedRow());
}

void LectureTable::tellOfKeyboardRow()
{
    if (!hasFocus() || !keyboardRow())
        return;
    QAccessibleEvent event(keyboardRow(), QAccessible::Focus);
    QAccessible::updateAccessibility(&event);
}

// The toolkit speaks of the table itself after this.
void LectureTable::focusInEvent(QFocusEvent *event)
{
    QAbstractScrollArea::focusInEvent(event);
    QMetaObject::invokeMethod(this, &LectureTable::tellOfKeyboardRow, Qt::QueuedConnection);
}

void LectureTable::paintEvent(QPaintEvent *)
{
    QPainter painter(viewport());
    painter.fillRect(viewport()->rect(), palette().color(QPalette::Base));
    if (m_highlightStyle == SelectionHighlightStyle::Regular) {
        for (const auto &[row, view] : m_rows.views()) {
            if (m_selection.has(row))
                painter.fillRect(view->geometry(), palette().color(QPalette::Midlight));
        }
    }
    m_slideUp->paint(painter, m_slideUp->row() * CustomTableCellView::RowHeight -
                                  verticalScrollBar()->value());
}

} // namespace tarvelo::lectures
