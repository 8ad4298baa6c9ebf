#pragma once

#include <QList>

#include <functional>
#include <map>
#include <vector>

class QAbstractScrollArea;
class QPoint;
class QWidget;

namespace tarvelo::lectures {

class CustomTableCellView;
class LectureRowHost;

// The views of the rows that show. A view whose row goes out of sight is used again for one that
// comes in. Where a view lies and what it shows is the table's matter.
class ShownRows final
{
public:
    using Views = std::map<int, CustomTableCellView *>;

    // The views are children of the table's viewport; `made` hears of every new one.
    ShownRows(QAbstractScrollArea &table, std::function<void(CustomTableCellView *)> made);
    ShownRows(const ShownRows &) = delete;
    ShownRows &operator=(const ShownRows &) = delete;

    // By their rows, from above to below.
    const Views &views() const { return m_shown; }
    QList<CustomTableCellView *> inOrder() const;
    // Those that wait to be used again count.
    int viewCount() const { return static_cast<int>(m_shown.size() + m_spare.size()); }
    // Null for a row that does not show.
    CustomTableCellView *at(int row) const;
    // The row that `view` is, or lies in; -1 when it is none.
    int rowFor(const QWidget *view) const;
    // The row at that height of the viewport; -1 for none.
    int rowAt(const QPoint &position) const;

    void setRowHost(LectureRowHost *host);
    // For a row that comes into sight; the view is still hidden.
    CustomTableCellView &add(int row);
    void keepOnly(int first, int last);
    // That row is no more: those below it move up by one.
    void forget(int row);

private:
    CustomTableCellView *take();
    void putAway(CustomTableCellView &view);

    QAbstractScrollArea &m_table;
    std::function<void(CustomTableCellView *)> m_made;
    LectureRowHost *m_host = nullptr;
    Views m_shown;
    std::vector<CustomTableCellView *> m_spare;
};

} // namespace tarvelo::lectures
