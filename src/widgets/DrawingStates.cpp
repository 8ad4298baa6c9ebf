#include "widgets/DrawingStates.h"

#include <QColor>
#include <QImage>
#include <QPainter>
#include <QPointF>
#include <QRectF>
#include <QRgb>

#include <algorithm>

namespace tarvelo::widgets {

namespace {

// By its own alpha, so that no part is above it.
template <typename Change>
void changePixels(QImage &drawing, const Change &change)
{
    for (int y = 0; y < drawing.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(drawing.scanLine(y));
        std::transform(line, line + drawing.width(), line, change);
    }
}

} // namespace

void shade(QImage &drawing, const QColor &ink, float strength)
{
    QColor shade = ink;
    shade.setAlphaF(strength);
    QPainter painter(&drawing);
    painter.setCompositionMode(QPainter::CompositionMode_SourceAtop);
    painter.fillRect(drawing.rect(), shade);
}

// The lightness is turned around: the distances between red, green and blue stay.
void exchangeBlackAndWhite(QImage &drawing)
{
    changePixels(drawing, [](QRgb pixel) {
        const auto [least, most] = std::minmax({qRed(pixel), qGreen(pixel), qBlue(pixel)});
        const int move = qAlpha(pixel) - least - most;
        return qRgba(qRed(pixel) + move, qGreen(pixel) + move, qBlue(pixel) + move, qAlpha(pixel));
    });
}

void frame(QImage &drawing, const QRectF &place, double width, const QColor &ink)
{
    QImage line = drawing;
    QPainter shape(&line);
    shape.setCompositionMode(QPainter::CompositionMode_SourceIn);
    shape.fillRect(line.rect(), ink);
    shape.end();
    const QImage whole = line;
    const double ratio = drawing.devicePixelRatio();
    const QRectF source(place.topLeft() * ratio, place.size() * ratio);
    QPainter hole(&line);
    hole.setRenderHint(QPainter::SmoothPixmapTransform);
    hole.setCompositionMode(QPainter::CompositionMode_DestinationOut);
    hole.drawImage(place.adjusted(width, width, -width, -width), whole, source);
    hole.end();
    QPainter(&drawing).drawImage(QPointF(), line);
}

// Red is told from white by its least part: by its brightness it would end up too pale.
void fade(QImage &drawing, const QColor &darkest)
{
    const int least = qGray(darkest.rgb());
    changePixels(drawing, [least](QRgb pixel) {
        const int own = std::min({qRed(pixel), qGreen(pixel), qBlue(pixel)});
        const int grey = (least * qAlpha(pixel) + (255 - least) * own) / 255;
        return qRgba(grey, grey, grey, qAlpha(pixel));
    });
}

} // namespace tarvelo::widgets
