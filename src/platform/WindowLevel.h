#pragma once

#include <Qt>

class QPainterPath;
class QWidget;

namespace tarvelo::platform {

// There the desktop places windows and knows no levels of them, and they have no shapes.
bool isOnWayland();

// A window's level: 0 among the others, 1 above them.
constexpr int NormalWindowLevel = 0;
constexpr int FloatingWindowLevel = 1;

// The level set last; normal for a window whose level was never set.
int windowLevel(const QWidget &window);

// A window that shows stays shown: the window system is asked to move it, not to make it anew.
// Where the window system knows no levels (Wayland), the level is kept and changes nothing.
void setWindowLevel(QWidget &window, int level);

// Shows the window in front of the others, with the keyboard; one that was minimised comes back.
void makeKeyAndOrderFront(QWidget &window);

// Puts a window that is about to show in the middle over another, on its screen as far as it fits.
// Where windows cannot be placed (Wayland) nothing happens.
void centreOver(QWidget &window, const QWidget &other);

// The window is to be seen, and gets the mouse, within the outline alone. Where windows have no
// shapes (Wayland) nothing happens.
void setWindowShape(QWidget &window, const QPainterPath &outline);

// Changes one flag of a window that may be showing, without hiding it as QWidget's own setter does.
void setWindowFlagInPlace(QWidget &window, Qt::WindowType flag, bool on);

} // namespace tarvelo::platform
