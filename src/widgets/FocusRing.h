#pragma once

class QWidget;

namespace tarvelo::widgets {

// A ring shows around the view while it has the keyboard, where the style would hardly mark it. On
// what is not written into it shows for who came by keyboard only. A heading's ring lies on the
// view's parent, clear of the letters.
void showFocusRing(QWidget &view);

} // namespace tarvelo::widgets
