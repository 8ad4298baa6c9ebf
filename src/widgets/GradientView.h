#pragma once

#include <QColor>
#include <QList>
#include <QRectF>
#include <QWidget>

#include <optional>

class QPainter;

namespace tarvelo::widgets {

// What a view is backed by when it shows a gradient: colours in RGB, spread evenly from the bottom
// edge to the top one.
class GradientLayer final
{
public:
    const QList<QColor> &colors() const { return m_colors; }
    void setColors(const QList<QColor> &colors) { m_colors = colors; }

    // Without colours nothing is painted.
    void paint(QPainter &painter, const QRectF &bounds) const;

private:
    QList<QColor> m_colors;
};

// A view whose backing layer is a gradient.
class GradientView final : public QWidget
{
    Q_OBJECT

public:
    using LayerClass = GradientLayer;

    // Empty until it is given a frame.
    explicit GradientView(QWidget *parent = nullptr);

    const GradientLayer &gradientLayer() const { return m_layer; }
    // The colour in device RGB, none for an invalid one.
    static std::optional<QColor> getCGColorFromNSColor(const QColor &color);

    // The first colour is the one at the bottom.
    void setColors(const QList<QColor> &colors);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    GradientLayer m_layer;
};

} // namespace tarvelo::widgets
