#include "lectures/RowSelection.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace tarvelo::lectures {

bool RowSelection::set(const QList<int> &rows, int current, int rowCount)
{
    const auto isThere = [rowCount](int row) { return row >= 0 && row < rowCount; };
    QList<int> chosen;
    std::copy_if(rows.cbegin(), rows.cend(), std::back_inserter(chosen), isThere);
    std::sort(chosen.begin(), chosen.end());
    chosen.erase(std::unique(chosen.begin(), chosen.end()), chosen.end());
    const int keyboard = isThere(current) ? current : None;
    if (chosen == m_rows && keyboard == m_current)
        return false;
    m_rows = chosen;
    m_current = keyboard;
    return true;
}

void RowSelection::removeRow(int row, int rowCount)
{
    QList<int> selected;
    for (const int index : std::as_const(m_rows)) {
        if (index != row)
            selected.append(index > row ? index - 1 : index);
    }
    int current = m_current > row ? m_current - 1 : m_current;
    if (m_current == row) {
        current = std::min(row, rowCount - 1);
        selected.append(current);
    }
    set(selected, current, rowCount);
}

} // namespace tarvelo::lectures
