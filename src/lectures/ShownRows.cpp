#include "lectures/ShownRows.h"

#include "lectures/CustomTableCellView.h"

#include <QAbstractScrollArea>
#include <QPoint>
#include <QRect>
#include <QWidget>

#include <algorithm>
#include <utility>

namespace tarvelo::lectures {

ShownRows::ShownRows(QAbstractScrollArea &table, std::function<void(CustomTableCellView *)> made)
    : m_table(table)
    , m_made(std::move(made))
{
}

QList<CustomTableCellView *> ShownRows::inOrder() const
{
    QList<CustomTableCellView *> rows;
    for (const auto &[row, view] : m_shown)
        rows.append(view);
    return rows;
}

CustomTableCellView *ShownRows::at(int row) const
{
    const auto found = m_shown.find(row);
    return found == m_shown.end() ? nullptr : found->second;
}

int ShownRows::rowFor(const QWidget *view) const
{
    const auto found = std::find_if(m_shown.cbegin(), m_shown.cend(), [view](const auto &shown) {
        return shown.second == view || shown.second->isAncestorOf(view);
    });
    return found == m_shown.cend() ? -1 : found->first;
}

int ShownRows::rowAt(const QPoint &position) const
{
    const auto found = std::find_if(m_shown.cbegin(), m_shown.cend(), [&](const auto &shown) {
        const QRect row = shown.second->geometry();
        return position.y() >= row.top() && position.y() <= row.bottom();
    });
    return found == m_shown.cend() ? -1 : found->first;
}

void ShownRows::setRowHost(LectureRowHost *host)
{
    m_host = host;
    for (const auto &[row, view] : m_shown)
        view->setRowHost(host);
    for (CustomTableCellView *view : m_spare)
        view->setRowHost(host);
}

CustomTableCellView &ShownRows::add(int row)
{
    return *(m_shown[row] = take());
}

void ShownRows::keepOnly(int first, int last)
{
    for (auto it = m_shown.begin(); it != m_shown.end();) {
        if (it->first >= first && it->first <= last) {
            ++it;
            continue;
        }
        putAway(*it->second);
        it = m_shown.erase(it);
    }
}

void ShownRows::forget(int row)
{
    if (CustomTableCellView *view = at(row))
        putAway(*view);
    Views shown;
    for (const auto &[index, view] : m_shown) {
        if (index != row)
            shown[index > row ? index - 1 : index] = view;
    }
    m_shown = std::move(shown);
}

CustomTableCellView *ShownRows::take()
{
    if (!m_spare.empty()) {
        CustomTableCellView *view = m_spare.back();
        m_spare.pop_back();
        return view;
    }
    auto *view = new CustomTableCellView(m_table.viewport());
    view->setRowHost(m_host);
    view->awakeFromNib();
    m_made(view);
    return view;
}

void ShownRows::putAway(CustomTableCellView &view)
{
    // The keyboard does not leave the table with the row.
    if (view.isAncestorOf(m_table.window()->focusWidget()))
        m_table.setFocus();
    view.hide();
    view.setObjectValue(nullptr);
    m_spare.push_back(&view);
}

} // namespace tarvelo::lectures
