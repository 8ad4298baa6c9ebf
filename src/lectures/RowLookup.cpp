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
    for (int row = 0; row < table.rowCount(); ++row) {
        if (table.viewAtColumnRowMakeIfNecessary(0, row, false) == cell)
            return row;
    }
    return -1;
}

} // namespace tarvelo::lectures
