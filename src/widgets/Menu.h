#pragma once

#include <QMenu>

class QAction;
class QStyleOptionMenuItem;

namespace tarvelo::widgets {

// A menu that writes keys such as "Ctrl+," from left to right also where its titles run from right
// to left, so that the comma stays behind the plus.
class Menu final : public QMenu
{
    Q_OBJECT

public:
    using QMenu::QMenu;

    void initStyleOption(QStyleOptionMenuItem *option, const QAction *action) const override;
};

} // namespace tarvelo::widgets
