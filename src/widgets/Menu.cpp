#include "widgets/Menu.h"

#include <QStyleOptionMenuItem>

namespace tarvelo::widgets {

// The style gets a title and its keys as one text with a tab between them.
void Menu::initStyleOption(QStyleOptionMenuItem *option, const QAction *action) const
{
    QMenu::initStyleOption(option, action);
    const qsizetype tab = option->text.indexOf(u'\t');
    if (tab < 0 || !isRightToLeft())
        return;
    const QChar leftToRight(0x200e);
    option->text.insert(tab + 1, leftToRight);
    option->text.append(leftToRight);
}

} // namespace tarvelo::widgets
