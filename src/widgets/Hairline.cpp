#include "widgets/Hairline.h"

#include "widgets/Colours.h"
#include "widgets/Lines.h"

#include <QPainter>

namespace tarvelo::widgets {

Hairline::Hairline(QWidget *parent)
    : QFrame(parent)
{
}

void Hairline::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    drawHairline(painter, rect(), colours().hairline);
}

} // namespace tarvelo::widgets
