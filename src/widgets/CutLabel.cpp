#include "widgets/CutLabel.h"

#include <QEvent>
#include <QPainter>
#include <QRect>

namespace tarvelo::widgets {

QString CutLabel::shownText() const
{
    return fontMetrics().elidedText(text(), Qt::ElideRight, contentsRect().width());
}

// The tool tip itself stays: it is what screen readers have as well.
bool CutLabel::event(QEvent *event)
{
    if (event->type() != QEvent::ToolTip || isCut())
        return QLabel::event(event);
    event->ignore();
    return true;
}

void CutLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.drawText(contentsRect(), Qt::AlignVCenter | Qt::AlignLeading, shownText());
}

} // namespace tarvelo::widgets
