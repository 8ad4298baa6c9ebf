#pragma once

#include <QFrame>

class QWidget;

namespace tarvelo::widgets {

// The line between two areas of a window. It is one point thick for the layout, and on the screen
// as thick as all such lines are.
class Hairline final : public QFrame
{
    Q_OBJECT

public:
    explicit Hairline(QWidget *parent = nullptr);

protected:
    void paintEvent(QPaintEvent *event) override;
};

} // namespace tarvelo::widgets
