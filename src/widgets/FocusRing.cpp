#include "widgets/FocusRing.h"

#include "widgets/ControlPainting.h"
#include "widgets/Lines.h"
#include "widgets/MouseDownTextField.h"

#include <QEvent>
#include <QFocusEvent>
#include <QObject>
#include <QPainter>
#include <QPalette>
#include <QPen>
#include <QRect>
#include <QRectF>
#include <QWidget>

namespace tarvelo::widgets {

namespace {

// The ring lies on the outline of the control, in its middle.
constexpr double Radius = ControlRadius - 0.5;

// Between the letters of a heading, which begin at its edge, and the outside of the ring: as much
// as a field has.
constexpr int RoomAcross = 10;
// A line of text has some of its own.
constexpr int RoomDown = 2;

// Lies over the view, out of the mouse's way; around it, where it is a heading.
class Ring final : public QWidget
{
public:
    Ring(QWidget &view, QWidget &canvas)
        : QWidget(&canvas)
        , m_view(view)
        , m_heading(qobject_cast<const MouseDownTextField *>(&view))
    {
        setObjectName(QStringLiteral("focusRing"));
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setAttribute(Qt::WA_NoSystemBackground);
        view.installEventFilter(this);
        if (m_heading)
            connect(m_heading, &MouseDownTextField::borderChanged, this, &Ring::follow);
        hide();
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::FocusIn)
            setVisible(isWanted(static_cast<QFocusEvent *>(event)->reason()));
        else if (event->type() == QEvent::FocusOut)
            hide();
        if (event->type() == QEvent::FocusIn || event->type() == QEvent::Resize ||
            event->type() == QEvent::Move)
            follow();
        return QWidget::eventFilter(watched, event);
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
        painter.drawRoundedRect(lineIn(painter, rect()), Radius, Radius);
    }

private:
    bool isWanted(Qt::FocusReason reason) const
    {
        return reason != Qt::MouseFocusReason || m_view.testAttribute(Qt::WA_InputMethodEnabled);
    }
    void follow()
    {
        QRect place = parentWidget() == &m_view ? m_view.rect() : m_view.geometry();
        if (m_heading && !m_heading->isBordered())
            place.adjust(-RoomAcross, -RoomDown, RoomAcross, RoomDown);
        setGeometry(place);
        raise();
    }

    const QWidget &m_view;
    const MouseDownTextField *m_heading;
};

} // namespace

void showFocusRing(QWidget &view)
{
    const bool isHeading = qobject_cast<MouseDownTextField *>(&view) && view.parentWidget();
    new Ring(view, isHeading ? *view.parentWidget() : view);
}

} // namespace tarvelo::widgets
