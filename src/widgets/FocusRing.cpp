#include "widgets/FocusRing.h"

#include "widgets/ControlPainting.h"

#include <QEvent>
#include <QFocusEvent>
#include <QPainter>
#include <QPalette>
#include <QPen>
#include <QRectF>
#include <QWidget>

namespace tarvelo::widgets {

namespace {

// The ring lies on the outline of the control, in its middle.
constexpr double Radius = ControlRadius - 0.5;

// Lies over the view, out of the mouse's way.
class Ring final : public QWidget
{
public:
    explicit Ring(QWidget &view)
        : QWidget(&view)
    {
        setObjectName(QStringLiteral("focusRing"));
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setAttribute(Qt::WA_NoSystemBackground);
        view.installEventFilter(this);
        hide();
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::FocusIn)
            setVisible(isWanted(static_cast<QFocusEvent *>(event)->reason()));
        else if (event->type() == QEvent::FocusOut)
            hide();
        if (event->type() == QEvent::FocusIn || event->type() == QEvent::Resize) {
            setGeometry(parentWidget()->rect());
            raise();
        }
        return QWidget::eventFilter(watched, event);
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
        painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), Radius, Radius);
    }

private:
    bool isWanted(Qt::FocusReason reason) const
    {
        return reason != Qt::MouseFocusReason ||
               parentWidget()->testAttribute(Qt::WA_InputMethodEnabled);
    }
};

} // namespace

void showFocusRing(QWidget &view)
{
    new Ring(view);
}

} // namespace tarvelo::widgets
