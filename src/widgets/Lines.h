#pragma once

class QColor;
class QPainter;
class QRect;
class QRectF;

namespace tarvelo::widgets {

// Lines and areas that are as sharp where a point is no whole number of pixels. They lie on whole
// pixels of the window, wherever in it their view has its place, and lines of one thickness are
// all of one number of pixels, rounded down and never none. Lengths and rectangles are in points.

// `rect`, with each edge on the nearest pixel, moved inward by as many whole pixels as `inset` has.
QRectF onPixels(const QPainter &painter, const QRectF &rect, double inset = 0);
// The middle of the line that the painter's pen, whose thickness becomes one of whole pixels, draws
// along the inside of that.
QRectF lineIn(QPainter &painter, const QRectF &rect, double inset = 0);
// Between two areas: `line` is one point thick, and the hairline begins where it does.
void drawHairline(QPainter &painter, const QRect &line, const QColor &colour);

} // namespace tarvelo::widgets
