#include "lectures/RowKeys.h"

#include "lectures/CustomTableCellView.h"
#include "widgets/ImageButton.h"

#include <QKeyEvent>
#include <QMenu>
#include <QRect>

#include <algorithm>

namespace tarvelo::lectures {

namespace {

bool isMenuKey(const QKeyEvent &event)
{
    return event.key() == Qt::Key_F10 && event.modifiers() & Qt::ShiftModifier;
}

// Null for a key that leads nowhere; it may be past either end.
std::optional<int> wantedRow(int key, int row, int count, int page)
{
    switch (key) {
    case Qt::Key_Down:
        return row + 1;
    case Qt::Key_Up:
        return row - 1;
    case Qt::Key_PageDown:
        return row + page;
    case Qt::Key_PageUp:
        return row - page;
    case Qt::Key_Home:
        return 0;
    case Qt::Key_End:
        return count - 1;
    default:
        return {};
    }
}

} // namespace

std::optional<int> rowByKey(int key, int row, int count, int page)
{
    const std::optional<int> wanted = wantedRow(key, row, count, page);
    if (!wanted || count == 0)
        return wanted ? std::optional<int>(-1) : std::nullopt;
    return std::clamp(*wanted, 0, count - 1);
}

bool isRowCommand(const QKeyEvent &event)
{
    const int key = event.key();
    return isMenuKey(event) || key == Qt::Key_Return || key == Qt::Key_Enter ||
           key == Qt::Key_Space || key == Qt::Key_Delete || key == Qt::Key_F2;
}

bool giveCommand(CustomTableCellView &row, const QKeyEvent &event)
{
    if (isMenuKey(event))
        showMenu(row, event.modifiers());
    else if (event.key() == Qt::Key_Space)
        row.btnPlay()->click();
    else if (event.key() == Qt::Key_Delete)
        row.btnDelete()->click();
    else if (event.key() == Qt::Key_F2)
        row.btnEdit()->click();
    else
        return false;
    return true;
}

void showMenu(CustomTableCellView &row, Qt::KeyboardModifiers modifiers)
{
    QMenu *menu = modifiers & Qt::ControlModifier ? row.exportMenu() : row.getMenu();
    if (!menu)
        return;
    menu->popup(row.mapToGlobal(row.rect().center()));
    menu->setActiveAction(menu->actions().constFirst());
}

} // namespace tarvelo::lectures
