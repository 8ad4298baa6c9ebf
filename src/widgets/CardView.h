#pragma once

#include <QWidget>

namespace tarvelo::widgets {

// The face of a window without a border: a card with round corners and a thin line around it, in
// the colours of its palette. It gives its window its shape, and is to fill it.
class CardView final : public QWidget
{
    Q_OBJECT

public:
    explicit CardView(QWidget *parent = nullptr);

protected:
    void resizeEvent(QResizeEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
};

} // namespace tarvelo::widgets
