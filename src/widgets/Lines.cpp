#include "widgets/Lines.h"

#include <QColor>
#include <QPainter>
#include <QPen>
#include <QPoint>
#include <QRect>
#include <QRectF>
#include <QTransform>
#include <QtMath>

#include <algorithm>

namespace tarvelo::widgets {

namespace {

// In pixels. Smooth drawing cuts off what is below a 64th of one, and would cut off a whole 64th
// for the last digit of a product.
constexpr double Rounding = 1e-5;

double pixelsPerPoint(const QPainter &painter)
{
    return painter.deviceTransform().m11();
}

int wholePixels(const QPainter &painter, double points)
{
    return qFloor(points * pixelsPerPoint(painter) + Rounding);
}

int lineThickness(const QPainter &painter, double points)
{
    return std::max(1, wholePixels(painter, points));
}

// The toolkit rounds what a view may draw on by its size, which now and then ends a pixel earlier
// than its edge does.
QRect pixelsOf(const QPainter &painter, const QRectF &rect)
{
    const QRectF exact = painter.deviceTransform().mapRect(rect);
    const QPoint corner(qRound(exact.left()), qRound(exact.top()));
    const QPoint end(qRound(exact.right()) - 1, qRound(exact.bottom()) - 1);
    return QRect(corner, end).intersected(exact.toRect());
}

QRectF inPoints(const QPainter &painter, const QRectF &pixels)
{
    return painter.deviceTransform().inverted().mapRect(pixels.translated(Rounding, Rounding));
}

} // namespace

QRectF onPixels(const QPainter &painter, const QRectF &rect, double inset)
{
    const int in = wholePixels(painter, inset);
    return inPoints(painter, pixelsOf(painter, rect).adjusted(in, in, -in, -in));
}

QRectF lineIn(QPainter &painter, const QRectF &rect, double inset)
{
    QPen pen = painter.pen();
    const int thickness = lineThickness(painter, pen.widthF());
    pen.setWidthF(thickness / pixelsPerPoint(painter));
    painter.setPen(pen);
    const double in = wholePixels(painter, inset) + thickness / 2.0;
    return inPoints(painter, QRectF(pixelsOf(painter, rect)).adjusted(in, in, -in, -in));
}

void drawHairline(QPainter &painter, const QRect &line, const QColor &colour)
{
    QRect pixels = pixelsOf(painter, line);
    if (line.width() > line.height())
        pixels.setHeight(lineThickness(painter, 1));
    else
        pixels.setWidth(lineThickness(painter, 1));
    painter.fillRect(inPoints(painter, pixels), colour);
}

} // namespace tarvelo::widgets
