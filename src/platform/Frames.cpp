#include "platform/Frames.h"

#include <QRectF>
#include <QWidget>

namespace tarvelo::platform {

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

} // namespace tarvelo::platform
