#pragma once

#include <QColor>
#include <QWidget>

namespace tarvelo::widgets {

// A view filled with one colour; without one nothing is drawn.
class ColorView final : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QColor baseColor READ baseColor WRITE setBaseColor)

public:
    explicit ColorView(QWidget *parent = nullptr);

    QColor baseColor() const { return m_baseColor; }
    void setBaseColor(const QColor &color);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QColor m_baseColor;
};

} // namespace tarvelo::widgets
