#pragma once

#include <QStringList>

class QMenu;
class QWidget;

namespace tarvelo::tests {

// What a reader of this language would see wrong in a window that is laid out: texts that are cut,
// signs for which no font has a drawing, controls that lie over a text or stick out of the window.
// A text may be cut on purpose when its tool tip says all of it. Empty when all is well.
QStringList textFaultsIn(QWidget &window);

// The same of a menu, which makes room for its entries but not for what the screen has no room for.
QStringList textFaultsIn(QMenu &menu);

} // namespace tarvelo::tests
