#include "widgets/ColorView.h"

#include <QPainter>

namespace tarvelo::widgets {

ColorView::ColorView(QWidget *parent)
    : QWidget(parent)
{
}

void ColorView::setBaseColor(const QColor &color)
{
    m_baseColor = color;
    update();
}

void ColorView::paintEvent(QPaintEvent *)
{
    if (!m_baseColor.isValid())
        return;
    QPainter painter(this);
    painter.fillRect(rect(), m_baseColor);
}

} // namespace tarvelo::widgets
