#include "widgets/LayerView.h"

#include "widgets/Lines.h"

#include <QPainter>
#include <QPen>
#include <QRectF>

namespace tarvelo::widgets {

LayerView::LayerView(QWidget *parent)
    : QWidget(parent)
{
}

void LayerView::setLayer(const Layer &layer)
{
    m_layer = layer;
    update();
}

void LayerView::setWantsLayer(bool wants)
{
    m_wantsLayer = wants;
    update();
}

void LayerView::paintEvent(QPaintEvent *)
{
    if (!m_wantsLayer || m_layer.borderWidth <= 0)
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(m_layer.borderColor, m_layer.borderWidth));
    painter.drawRoundedRect(lineIn(painter, rect()), m_layer.cornerRadius, m_layer.cornerRadius);
}

} // namespace tarvelo::widgets
