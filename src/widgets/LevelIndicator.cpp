#include "widgets/LevelIndicator.h"

#include <QAccessible>
#include <QPainter>

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
    painter.setPen(Qt::NoPen);
    const QRectF bar(rect());
    const double radius = bar.height() / 2;
    painter.setBrush(palette().color(QPalette::Mid));
    painter.drawRoundedRect(bar, radius, radius);
    painter.setBrush(palette().color(QPalette::Highlight));
    painter.drawRoundedRect(
        QRectF(bar.topLeft(), QSizeF(bar.width() * double(m_value), bar.height())), radius, radius);
}

} // namespace tarvelo::widgets
