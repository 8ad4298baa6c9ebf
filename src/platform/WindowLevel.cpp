#include "platform/WindowLevel.h"

#include <QGuiApplication>
#include <QPoint>
#include <QRect>
#include <QRegion>
#include <QScreen>
#include <QWidget>
#include <QWindow>

#include <algorithm>

namespace tarvelo::platform {

namespace {
constexpr const char *LevelProperty = "windowLevel";
}

bool isOnWayland()
{
    return QGuiApplication::platformName().startsWith(QStringLiteral("wayland"));
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

void centreOver(QWidget &window, const QWidget &other)
{
    const QRect screen = other.screen()->availableGeometry();
    QRect frame(QPoint(), window.size());
    frame.moveCenter(other.frameGeometry().center());
    frame.moveLeft(std::max(screen.left(), std::min(frame.left(), screen.right() - frame.width())));
    frame.moveTop(std::max(screen.top(), std::min(frame.top(), screen.bottom() - frame.height())));
    window.move(frame.topLeft());
}

void setWindowShape(QWidget &window, const QRegion &shape)
{
    if (!isOnWayland())
        window.setMask(shape);
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
