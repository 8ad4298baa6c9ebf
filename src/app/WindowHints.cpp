#include "app/WindowHints.h"

#include "platform/WindowLevel.h"

#include <QApplication>
#include <QVariant>
#include <QWidget>

namespace tarvelo::app {

namespace {
constexpr int FullSizeContentStyle = 32768;
constexpr const char *StyleMask = "styleMask";
constexpr const char *TransparentTitleBar = "titlebarAppearsTransparent";
} // namespace

bool isMinimiseButtonEnabled(const QWidget &window)
{
    return window.windowFlags().testFlag(Qt::WindowMinimizeButtonHint);
}

void setMinimiseButtonEnabled(QWidget &window, bool enabled)
{
    platform::setWindowFlagInPlace(window, Qt::WindowMinimizeButtonHint, enabled);
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

void activateIgnoringOtherApps()
{
    QWidget *front = QApplication::activeModalWidget();
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (!isOnScreen(*window) || window->windowType() == Qt::Popup)
            continue;
        window->raise();
        if (!front)
            front = window;
    }
    if (front) {
        front->raise();
        front->activateWindow();
    }
}

} // namespace tarvelo::app
