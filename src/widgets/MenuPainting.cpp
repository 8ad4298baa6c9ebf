#include "widgets/MenuPainting.h"

#include "widgets/Colours.h"
#include "widgets/Lines.h"

#include <QColor>
#include <QFontMetrics>
#include <QPainter>
#include <QPalette>
#include <QPointF>
#include <QPolygonF>
#include <QRect>
#include <QRectF>
#include <QRgb>
#include <QStyleOption>

#include <algorithm>

namespace tarvelo::widgets {

namespace {

constexpr float FrameStrength = 0.451F;
constexpr float SeparatorStrength = 0.282F;
constexpr float ArrowStrength = 0.627F;
// In per cent, what a menu is lighter than a text's ground where that is dark.
constexpr int Lighter = 108;
constexpr int SeparatorInset = 5;
constexpr int SmallestArrow = 8;

float strengthOf(float usual)
{
    return colours().isBold ? 1 : usual;
}

QColor lineOf(const QStyleOption &option, float strength)
{
    const int grey = qGray(option.palette.color(QPalette::Text).rgb());
    QColor line(grey, grey, grey);
    line.setAlphaF(strengthOf(strength));
    return line;
}

} // namespace

void paintMenuPanel(QPainter &painter, const QStyleOption &option)
{
    const QColor ground = option.palette.color(QPalette::Base).lighter(Lighter);
    painter.fillRect(onPixels(painter, option.rect), ground);
    painter.fillRect(onPixels(painter, option.rect), lineOf(option, FrameStrength));
    painter.fillRect(onPixels(painter, option.rect, 1), ground);
}

void paintMenuSeparator(QPainter &painter, const QStyleOption &option)
{
    const QRect line(option.rect.left() + SeparatorInset, option.rect.center().y(),
                     option.rect.width() - 2 * SeparatorInset, 1);
    drawHairline(painter, line, lineOf(option, SeparatorStrength));
}

void paintSubmenuArrow(QPainter &painter, const QStyleOption &option, bool isToTheLeft)
{
    const int height = std::max(SmallestArrow, option.fontMetrics.ascent() / 3 * 2);
    QRect place(0, 0, height / 2, height);
    place.moveCenter(option.rect.center());
    const QPointF tip(isToTheLeft ? place.left() : place.left() + place.width(),
                      place.top() + height / 2.0);
    const int base = isToTheLeft ? place.left() + place.width() : place.left();
    QColor ink = option.palette.color(QPalette::WindowText);
    ink.setAlphaF(strengthOf(ArrowStrength));
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(ink);
    painter.drawPolygon(
        QPolygonF{QPointF(base, place.top()), tip, QPointF(base, place.top() + height)});
    painter.restore();
}

} // namespace tarvelo::widgets
