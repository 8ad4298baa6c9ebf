#pragma once

#include <QSize>
#include <QWidget>

namespace tarvelo::widgets {

// A bar that fills from the left with a level between 0 and 1.
class LevelIndicator final : public QWidget
{
    Q_OBJECT

public:
    explicit LevelIndicator(QWidget *parent = nullptr);

    float floatValue() const { return m_value; }
    void setFloatValue(float value);

    QSize sizeHint() const override { return {160, 8}; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    float m_value = 0;
};

} // namespace tarvelo::widgets
