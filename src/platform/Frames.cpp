#include "platform/Frames.h"

#include <QGuiApplication>
#include <QRectF>
#include <QScreen>
#include <QWidget>

namespace tarvelo::platform {

namespace {

// Where y counts from on the screen, as the toolkit counts it.
int bottomOfScreen()
{
    const QRect screen = QGuiApplication::primaryScreen()->geometry();
    return screen.y() + screen.height();
}

QRectF onScreen(const QRect &frame)
{
    return {qreal(frame.x()), qreal(bottomOfScreen() - frame.y() - frame.height()),
            qreal(frame.width()), qreal(frame.height())};
}

} // namespace

QRect flipped(const QRectF &frame, double parentHeight)
{
    const int left = qRound(frame.x());
    const int right = qRound(frame.x() + frame.width());
    const int top = qRound(parentHeight - frame.y() - frame.height());
    const int bottom = qRound(parentHeight - frame.y());
    return {left, top, right - left, bottom - top};
}

void setFrame(QWidget &view, const QRectF &frame)
{
    const QWidget *parent = view.parentWidget();
    view.setGeometry(flipped(frame, parent ? parent->height() : frame.height()));
}

QRectF frameOf(const QWidget &view)
{
    const QWidget *parent = view.parentWidget();
    const int parentHeight = parent ? parent->height() : view.height();
    return {qreal(view.x()), qreal(parentHeight - view.y() - view.height()), qreal(view.width()),
            qreal(view.height())};
}

QPointF placeOnScreen(const QPointF &globalPosition)
{
    return {globalPosition.x(), bottomOfScreen() - globalPosition.y()};
}

QRectF frameOnScreen(const QWidget &window)
{
    return onScreen(window.geometry());
}

QRectF visibleFrame(const QScreen &screen)
{
    return onScreen(screen.availableGeometry());
}

void setFrameOnScreen(QWidget &window, const QRectF &frame)
{
    window.setGeometry(flipped(frame, bottomOfScreen()));
}

} // namespace tarvelo::platform
