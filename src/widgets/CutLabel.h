#pragma once

#include <QLabel>

namespace tarvelo::widgets {

// One line of text, of which it shows as much as there is room for. The tool tip, which has the
// text whole, shows only where some of it is missing.
class CutLabel final : public QLabel
{
    Q_OBJECT

public:
    using QLabel::QLabel;

    bool isCut() const { return shownText() != text(); }

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QString shownText() const;
};

} // namespace tarvelo::widgets
