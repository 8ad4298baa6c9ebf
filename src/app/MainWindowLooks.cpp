#include "app/MainWindowLooks.h"

#include <QApplication>
#include <QVariant>
#include <QWidget>
#include <QWindow>

namespace tarvelo::app {

namespace {

constexpr int FullSizeContentStyle = 32768;
constexpr const char *StyleMask = "styleMask";
constexpr const char *TransparentTitleBar = "titlebarAppearsTransparent";

// QWidget::setWindowFlag() would hide the window, and showing it again flickers and lets the window
// manager place it anew. The window below takes flags as it stands.
void setFlagInPlace(QWidget &window, Qt::WindowType flag, bool on)
{
    Qt::WindowFlags flags = window.windowFlags();
    flags.setFlag(flag, on);
    window.overrideWindowFlags(flags);
    if (QWindow *handle = window.windowHandle())
        handle->setFlags(flags);
}

} // namespace

int windowLevel(const QWidget &window)
{
    return window.windowFlags().testFlag(Qt::WindowStaysOnTopHint) ? 1 : 0;
}

void setWindowLevel(QWidget &window, int level)
{
    setFlagInPlace(window, Qt::WindowStaysOnTopHint, level > 0);
}

bool isMinimiseButtonEnabled(const QWidget &window)
{
    return window.windowFlags().testFlag(Qt::WindowMinimizeButtonHint);
}

void setMinimiseButtonEnabled(QWidget &window, bool enabled)
{
    setFlagInPlace(window, Qt::WindowMinimizeButtonHint, enabled);
}

bool hasFullSizeContent(const QWidget &window)
{
    return (window.property(StyleMask).toInt() & FullSizeContentStyle) != 0 &&
           window.property(TransparentTitleBar).toBool();
}

void setFullSizeContent(QWidget &window)
{
    window.setProperty(StyleMask, window.property(StyleMask).toInt() | FullSizeContentStyle);
    window.setProperty(TransparentTitleBar, true);
}

bool isOnScreen(const QWidget &window)
{
    return window.isVisible() && !window.isMinimized();
}

void makeKeyAndOrderFront(QWidget &window)
{
    window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    window.show();
    window.raise();
    window.activateWindow();
}

void activateIgnoringOtherApps()
{
    QWidget *last = QApplication::activeModalWidget();
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (!isOnScreen(*window) || window->windowType() == Qt::Popup)
            continue;
        window->raise();
        if (!last)
            last = window;
    }
    if (last) {
        last->raise();
        last->activateWindow();
    }
}

} // namespace tarvelo::app
