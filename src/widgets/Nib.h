#pragma once

class QWidget;

namespace tarvelo::widgets {

// To be called once after a window's layout was set up: tells every widget in `window` that has
// an operation awakeFromNib() that its properties are set and its place is known.
void awakeFromNib(QWidget &window);

} // namespace tarvelo::widgets
