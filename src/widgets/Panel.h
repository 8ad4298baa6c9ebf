#pragma once

#include <QFrame>

namespace tarvelo::widgets {

// The strip of a recorder or a player: a ground of its own with round corners, and a line around it
// where all grounds are white.
class Panel final : public QFrame
{
    Q_OBJECT

public:
    using QFrame::QFrame;

protected:
    void paintEvent(QPaintEvent *event) override;
};

} // namespace tarvelo::widgets
