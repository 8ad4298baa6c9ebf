#include "widgets/LevelIndicator.h"

#include "widgets/Lines.h"

#include <QAccessible>
#include <QAccessibleValueChangeEvent>
#include <QPainter>
#include <QPalette>
#include <QRectF>
#include <QSizeF>
#include <QSizePolicy>

#include <algorithm>

namespace tarvelo::widgets {

LevelIndicator::LevelIndicator(QWidget *parent)
    : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void LevelIndicator::setFloatValue(float value)
{
    m_value = std::clamp(value, 0.0F, 1.0F);
    QAccessibleValueChangeEvent event(this, m_value);
    QAccessible::updateAccessibility(&event);
    update();
}

void LevelIndicator::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF bar(rect());
    const double radius = bar.height() / 2;
    painter.setPen(palette().color(QPalette::Mid));
    painter.setBrush(palette().color(QPalette::Midlight));
    painter.drawRoundedRect(lineIn(painter, bar), radius, radius);
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette().color(QPalette::Highlight));
    const QRectF heard(bar.topLeft(), QSizeF(bar.width() * double(m_value), bar.height()));
    painter.drawRoundedRect(onPixels(painter, heard), radius, radius);
}

} // namespace tarvelo::widgets
