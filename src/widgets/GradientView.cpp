#include "widgets/GradientView.h"

#include <QLinearGradient>
#include <QPainter>

#include <algorithm>

namespace tarvelo::widgets {

void GradientLayer::paint(QPainter &painter, const QRectF &bounds) const
{
    if (m_colors.isEmpty())
        return;
    QLinearGradient gradient(bounds.bottomLeft(), bounds.topLeft());
    const auto steps = std::max<qsizetype>(m_colors.size() - 1, 1);
    for (qsizetype i = 0; i < m_colors.size(); ++i)
        gradient.setColorAt(double(i) / double(steps), m_colors.at(i));
    painter.fillRect(bounds, gradient);
}

GradientView::GradientView(QWidget *parent)
    : QWidget(parent)
{
    resize(0, 0);
}

std::optional<QColor> GradientView::getCGColorFromNSColor(const QColor &color)
{
    if (!color.isValid())
        return std::nullopt;
    return color.toRgb();
}

void GradientView::setColors(const QList<QColor> &colors)
{
    QList<QColor> layerColors;
    for (const QColor &color : colors) {
        if (const auto layerColor = getCGColorFromNSColor(color))
            layerColors.append(*layerColor);
    }
    m_layer.setColors(layerColors);
    update();
}

void GradientView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    m_layer.paint(painter, rect());
}

} // namespace tarvelo::widgets
