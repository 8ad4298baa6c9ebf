#pragma once

class QWidget;

namespace tarvelo::app {

// What the application asks of its windows beyond what they show. Where the window manager has no
// such thing, the wish is kept and without effect.

// Takes effect at once, and a window that is showing stays as it is.
bool isMinimiseButtonEnabled(const QWidget &window);
void setMinimiseButtonEnabled(QWidget &window, bool enabled);

// Whether the content reaches up behind a see-through title bar. Title bars belong to the window
// manager here, so this is kept and draws nothing.
bool hasFullSizeContent(const QWidget &window);
void setFullSizeContent(QWidget &window);

// On the screen and not minimised.
bool isOnScreen(const QWidget &window);
// Brings the application before others: its windows that are on the screen, a sheet last.
void activateIgnoringOtherApps();

} // namespace tarvelo::app
