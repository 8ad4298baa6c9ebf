#include "platform/WindowLevel.h"

#include <QBitmap>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QPoint>
#include <QRect>
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

// A region of a polygon takes in what it half covers on one side, and leaves it out on the other. A
// pixel of which a third is covered, which being painted twice makes a half, belongs to it.
void setWindowShape(QWidget &window, const QPainterPath &outline)
{
    if (isOnWayland())
        return;
    const QRect around = outline.boundingRect().toAlignedRect();
    QImage cover(around.right() + 1, around.bottom() + 1, QImage::Format_ARGB32_Premultiplied);
    cover.fill(Qt::transparent);
    QPainter painter(&cover);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(outline, Qt::black);
    painter.fillPath(outline, Qt::black);
    painter.end();
    window.setMask(QBitmap::fromImage(cover.createAlphaMask()));
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
