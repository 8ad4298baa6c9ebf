#include "widgets/CEStyle.h"

#include <QPainter>

namespace tarvelo::widgets {

CEStyle::CEStyle(QWidget *parent)
    : QWidget(parent)
{
}

void CEStyle::setBg(const QColor &color)
{
    m_bg = color;
    update();
}

void CEStyle::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), m_bg.isValid() ? m_bg : painter.pen().color());
}

} // namespace tarvelo::widgets
