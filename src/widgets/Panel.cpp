#include "widgets/Panel.h"

#include "widgets/Colours.h"
#include "widgets/ControlPainting.h"
#include "widgets/Lines.h"

#include <QPainter>
#include <QRectF>

namespace tarvelo::widgets {

void Panel::paintEvent(QPaintEvent *)
{
    const Colours colours = widgets::colours();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(colours.isBold ? colours.outline : colours.panel);
    painter.setBrush(colours.panel);
    painter.drawRoundedRect(lineIn(painter, rect()), ControlRadius, ControlRadius);
}

} // namespace tarvelo::widgets
