#include "lectures/LectureTable.h"

#include "lectures/CustomTableCellView.h"

#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>

#include <algorithm>

namespace tarvelo::lectures {

LectureTable::LectureTable(QWidget *parent)
    : QAbstractScrollArea(parent)
{
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::StrongFocus);
    viewport()->setBackgroundRole(QPalette::Base);
    verticalScrollBar()->setSingleStep(CustomTableCellView::RowHeight / 3);
}

LectureTable::~LectureTable() = default;

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
    updateScrollBar();
    layoutRows();
    for (const auto &[row, view] : m_shown)
        bind(*view, row);
    selectRow(m_selectedRow);
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
    const int chosen = row >= 0 && row < rowCount() ? row : -1;
    if (chosen == m_selectedRow)
        return;
    m_selectedRow = chosen;
    showCurrentRow();
    viewport()->update();
    Q_EMIT selectedRowChanged(m_selectedRow);
}

void LectureTable::updateScrollBar()
{
    const int content = rowCount() * CustomTableCellView::RowHeight;
    verticalScrollBar()->setPageStep(viewport()->height());
    verticalScrollBar()->setRange(0, std::max(0, content - viewport()->height()));
}

void LectureTable::layoutRows()
{
    const int height = CustomTableCellView::RowHeight;
    const int offset = verticalScrollBar()->value();
    const int first = offset / height;
    const int last = std::min(rowCount() - 1, (offset + viewport()->height() - 1) / height);

    for (auto it = m_shown.begin(); it != m_shown.end();) {
        if (it->first >= first && it->first <= last) {
            ++it;
            continue;
        }
        it->second->hide();
        m_spare.push_back(it->second);
        it = m_shown.erase(it);
    }
    for (int row = first; row <= last; ++row) {
        const bool isNew = !m_shown.contains(row);
        if (isNew)
            m_shown[row] = takeView();
        CustomTableCellView &view = *m_shown[row];
        view.setGeometry(0, row * height - offset, viewport()->width(), height);
        if (isNew) {
            bind(view, row);
            view.show();
        }
    }
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
    view.setCurrent(row == m_selectedRow && hasFocus());
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

void LectureTable::keyPressEvent(QKeyEvent *event)
{
    const int page = std::max(1, viewport()->height() / CustomTableCellView::RowHeight);
    int row = m_selectedRow;
    switch (event->key()) {
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
        QAbstractScrollArea::keyPressEvent(event);
        return;
    }
    if (rowCount() == 0)
        return;
    row = std::clamp(row, 0, rowCount() - 1);
    scrollRowToVisible(row);
    selectRow(row);
}

void LectureTable::focusInEvent(QFocusEvent *event)
{
    QAbstractScrollArea::focusInEvent(event);
    showCurrentRow();
}

void LectureTable::focusOutEvent(QFocusEvent *event)
{
    QAbstractScrollArea::focusOutEvent(event);
    showCurrentRow();
}

void LectureTable::showCurrentRow()
{
    for (const auto &[row, view] : m_shown)
        view->setCurrent(row == m_selectedRow && hasFocus());
}

void LectureTable::paintEvent(QPaintEvent *)
{
    QPainter painter(viewport());
    painter.fillRect(viewport()->rect(), palette().color(QPalette::Base));
    const auto selected = m_shown.find(m_selectedRow);
    if (m_highlightStyle == SelectionHighlightStyle::Regular && selected != m_shown.end())
        painter.fillRect(selected->second->geometry(), palette().color(QPalette::Midlight));
}

} // namespace tarvelo::lectures
