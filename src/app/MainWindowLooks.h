#pragma once

class QWidget;

namespace tarvelo::app {

// What a window manager is told about a window. Each takes effect at once, also on a window that is
// showing, which is neither taken away nor shown anew for it. Where the window manager has no such
// thing, as on Wayland, the wish is kept and without effect.

// Level 0 is a normal window, level 1 stays on top of the others.
int windowLevel(const QWidget &window);
void setWindowLevel(QWidget &window, int level);

bool isMinimiseButtonEnabled(const QWidget &window);
void setMinimiseButtonEnabled(QWidget &window, bool enabled);

// Whether the content reaches up behind a see-through title bar. Title bars belong to the window
// manager here, so that only our own drawing, if any, can follow the wish.
bool hasFullSizeContent(const QWidget &window);
void setFullSizeContent(QWidget &window);

// On the screen and not minimised.
bool isOnScreen(const QWidget &window);
void makeKeyAndOrderFront(QWidget &window);
// Brings the application before others: its windows that are on the screen, the active one last.
void activateIgnoringOtherApps();

} // namespace tarvelo::app
