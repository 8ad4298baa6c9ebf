#pragma once

#include <QList>

namespace tarvelo::lectures {

// The rows of a table that are selected, and the one that the keyboard is on. Rows count from 0.
class RowSelection final
{
public:
    static constexpr int None = -1;

    // In ascending order.
    const QList<int> &rows() const { return m_rows; }
    // None when the keyboard is on no row.
    int current() const { return m_current; }
    bool has(int row) const { return m_rows.contains(row); }

    // Of a table of so many rows: others are left out. False when nothing has changed.
    bool set(const QList<int> &rows, int current, int rowCount);
    // The row has gone, and the table has so many rows now. The others keep their selection under
    // their new numbers; the keyboard stays at its place, on a row that is selected then.
    void removeRow(int row, int rowCount);

private:
    QList<int> m_rows;
    int m_current = None;
};

} // namespace tarvelo::lectures
