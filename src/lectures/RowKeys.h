#pragma once

#include <Qt>

#include <optional>

class QKeyEvent;

namespace tarvelo::lectures {

class CustomTableCellView;

// What keys do with the rows of a table.

// The row to which `key` leads from `row`, -1 for none, among so many and with so many on a page;
// -1 where there are no rows, null for a key that leads nowhere.
std::optional<int> rowByKey(int key, int row, int count, int page);

// Whether a key gives a command to the row that the keyboard is on.
bool isRowCommand(const QKeyEvent &event);
// Gives it. False for Return, which opens the row: that is left to the table.
bool giveCommand(CustomTableCellView &row, const QKeyEvent &event);
// The row's menu, in its middle; with Ctrl that of the export, where there is one.
void showMenu(CustomTableCellView &row, Qt::KeyboardModifiers modifiers);

} // namespace tarvelo::lectures
