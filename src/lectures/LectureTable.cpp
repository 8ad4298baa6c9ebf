#include "lectures/LectureTable.h"

#include "lectures/CustomTableCellView.h"
#include "lectures/RowSlideUp.h"
#include "lectures/RowSwipe.h"
#include "widgets/ImageButton.h"

#include <QAccessible>
#include <QApplication>
#include <QCursor>
#include <QPainter>
#include <QScrollBar>
#include <QStyle>

#include <algorithm>

namespace tarvelo::lectures {

LectureTable::LectureTable(QWidget *parent)
    : QAbstractScrollArea(parent)
    , m_slideUp(new RowSlideUp(this))
    , m_swipe(new RowSwipe(*viewport()))
{
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::StrongFocus);
    viewport()->setBackgroundRole(QPalette::Base);
    verticalScrollBar()->setSingleStep(CustomTableCellView::RowHeight / 3);
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
    if (column != 0 || row < 0 || row >= rowCount())
        return nullptr;
    if (makeIfNecessary && !m_shown.contains(row))
        scrollRowToVisible(row);
    const auto found = m_shown.find(row);
    return found == m_shown.end() ? nullptr : found->second;
}

int LectureTable::rowForView(const QWidget *view) const
{
    const auto found = std::find_if(m_shown.cbegin(), m_shown.cend(), [view](const auto &shown) {
        return shown.second == view || shown.second->isAncestorOf(view);
    });
    return found == m_shown.cend() ? -1 : found->first;
}

QList<CustomTableCellView *> LectureTable::shownRows() const
{
    QList<CustomTableCellView *> rows;
    for (const auto &[row, view] : m_shown)
        rows.append(view);
    return rows;
}

CustomTableCellView *LectureTable::keyboardRow() const
{
    const auto found = m_shown.find(selectedRow());
    return found != m_shown.end() && hasKeyboard() ? found->second : nullptr;
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

void LectureTable::setRowHost(LectureRowHost *host)
{
    m_host = host;
    for (const auto &[row, view] : m_shown)
        view->setRowHost(host);
    for (CustomTableCellView *view : m_spare)
        view->setRowHost(host);
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
    for (const auto &[row, view] : m_shown)
        bind(*view, row);
    setSelection(selectedRowIndexes(), selectedRow());
    m_slideUp->finish();
}

void LectureTable::scrollRowToVisible(int row)
{
    if (row < 0 || row >= rowCount())
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
        m_shown.contains(row) ? viewport()->grab({0, top, viewport()->width(), height}) : QPixmap();
    m_swipe->coverAtOnce();
    forgetRow(row);
    m_slideUp->start(row, height, picture, duration, std::move(completion));
    updateScrollBar();
    layoutRows();
    // Where a slide was cut short, rows may have come in under their old numbers.
    for (const auto &[index, view] : m_shown)
        bind(*view, index);
}

void LectureTable::finishRemoval()
{
    m_slideUp->finish();
}

// The rows below it, their views and their selection move up by one.
void LectureTable::forgetRow(int row)
{
    if (const auto found = m_shown.find(row); found != m_shown.end())
        putAway(*found->second);
    std::map<int, CustomTableCellView *> shown;
    for (const auto &[index, view] : m_shown) {
        if (index != row)
            shown[index > row ? index - 1 : index] = view;
    }
    m_shown = std::move(shown);

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

void LectureTable::putAway(CustomTableCellView &view)
{
    // The keyboard does not leave the table with the row.
    if (view.isAncestorOf(window()->focusWidget()))
        setFocus();
    view.hide();
    view.setObjectValue(nullptr);
    m_spare.push_back(&view);
}

void LectureTable::layoutRows()
{
    const int height = CustomTableCellView::RowHeight;
    const int offset = verticalScrollBar()->value();
    const int first = std::max(0, offset - m_slideUp->gap()) / height;
    const int last = std::min(rowCount() - 1, (offset + viewport()->height() - 1) / height);

    for (auto it = m_shown.begin(); it != m_shown.end();) {
        if (it->first >= first && it->first <= last) {
            ++it;
            continue;
        }
        putAway(*it->second);
        it = m_shown.erase(it);
    }
    const int direction = layoutDirection() == Qt::RightToLeft ? 1 : -1;
    for (int row = first; row <= last; ++row) {
        const bool isNew = !m_shown.contains(row);
        if (isNew)
            m_shown[row] = takeView();
        CustomTableCellView &view = *m_shown[row];
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
    for (const auto &[row, view] : m_shown)
        view->setMouseOver(viewport()->underMouse() && view->geometry().contains(mouse));
}

CustomTableCellView *LectureTable::takeView()
{
    if (!m_spare.empty()) {
        CustomTableCellView *view = m_spare.back();
        m_spare.pop_back();
        return view;
    }
    auto *view = new CustomTableCellView(viewport());
    view->setRowHost(m_host);
    view->awakeFromNib();
    Q_EMIT rowViewMade(view);
    return view;
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
    for (const auto &[row, view] : m_shown)
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
        for (const auto &[row, view] : m_shown) {
            if (m_selection.has(row))
                painter.fillRect(view->geometry(), palette().color(QPalette::Midlight));
        }
    }
    m_slideUp->paint(painter, m_slideUp->row() * CustomTableCellView::RowHeight -
                                  verticalScrollBar()->value());
}

} // namespace tarvelo::lectures
