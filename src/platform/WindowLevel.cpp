#include "platform/WindowLevel.h"

#include <QWidget>
#include <QWindow>

namespace tarvelo::platform {

namespace {
constexpr const char *LevelProperty = "windowLevel";
}

int windowLevel(const QWidget &window)
{
    return window.property(LevelProperty).toInt();
}

void setWindowLevel(QWidget &window, int level)
{
    window.setProperty(LevelProperty, level);
    setWindowFlagInPlace(window, Qt::WindowStaysOnTopHint, level > NormalWindowLevel);
}

void makeKeyAndOrderFront(QWidget &window)
{
    window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    window.show();
    window.raise();
    window.activateWindow();
}

void setWindowFlagInPlace(QWidget &window, Qt::WindowType flag, bool on)
{
    Qt::WindowFlags flags = window.windowFlags();
    flags.setFlag(flag, on);
    window.overrideWindowFlags(flags);
    if (QWindow *handle = window.windowHandle())
        handle->setFlags(flags);
}

} // namespace tarvelo::platform
