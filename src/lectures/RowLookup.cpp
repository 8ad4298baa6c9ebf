#include "lectures/RowLookup.h"

#include "lectures/CustomTableCellView.h"
#include "lectures/LectureTable.h"

#include <QWidget>

namespace tarvelo::lectures {

int rowOfSender(LectureTable &table, const QWidget *sender)
{
    const QWidget *cell = sender ? sender->parentWidget() : nullptr;
    if (!cell)
        return -1;
    const int row = table.rowForView(cell);
    return table.viewAtColumnRowMakeIfNecessary(0, row, false) == cell ? row : -1;
}

} // namespace tarvelo::lectures
