#include "widgets/CardView.h"

#include "platform/WindowLevel.h"
#include "widgets/Lines.h"

#include <QColor>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>
#include <QRectF>

namespace tarvelo::widgets {

namespace {

constexpr double Radius = 12;

QPainterPath roundedRect(const QRectF &rect, double radius)
{
    QPainterPath path;
    path.addRoundedRect(rect, radius, radius);
    return path;
}

} // namespace

CardView::CardView(QWidget *parent)
    : QWidget(parent)
{
}

// Where windows have no shapes (Wayland) they can be seen through, and the corners are clear.
void CardView::resizeEvent(QResizeEvent *)
{
    platform::setWindowShape(*window(), roundedRect(rect(), Radius));
}

void CardView::paintEvent(QPaintEvent *)
{
    const QColor line = palette().color(QPalette::Shadow);
    QPainter painter(this);
    // In a shape, without a compositor, the pixels that the line half covers would be black; with
    // none the corners would be as white as the window is behind its content.
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.fillRect(rect(), window()->mask().isEmpty() ? QColor(Qt::transparent) : line);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(line);
    painter.setBrush(palette().color(QPalette::Window));
    painter.drawPath(roundedRect(lineIn(painter, rect()), Radius - 0.5));
}

} // namespace tarvelo::widgets
