#include "widgets/PopOver.h"

#include "platform/WindowLevel.h"
#include "widgets/Lines.h"

#include <QApplication>
#include <QEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>
#include <QPen>
#include <QPointF>
#include <QPolygonF>
#include <QRectF>
#include <QScreen>
#include <QSize>
#include <QVBoxLayout>
#include <QWindow>

#include <algorithm>

namespace tarvelo::widgets {

namespace {

constexpr int ArrowLength = 10;
constexpr int ArrowHalfWidth = 10;
constexpr int Radius = 10;
// The arrow stays clear of the round corners.
constexpr int ArrowInset = Radius + ArrowHalfWidth;

bool isVertical(Qt::Edge edge)
{
    return edge == Qt::TopEdge || edge == Qt::BottomEdge;
}

Qt::Edge opposite(Qt::Edge edge)
{
    switch (edge) {
    case Qt::TopEdge:
        return Qt::BottomEdge;
    case Qt::BottomEdge:
        return Qt::TopEdge;
    case Qt::LeftEdge:
        return Qt::RightEdge;
    case Qt::RightEdge:
        return Qt::LeftEdge;
    }
    return edge;
}

// The middle of an edge of `rect`, on the line where the rectangle ends.
QPoint middleOf(const QRect &rect, Qt::Edge edge)
{
    switch (edge) {
    case Qt::TopEdge:
        return {rect.center().x(), rect.y()};
    case Qt::BottomEdge:
        return {rect.center().x(), rect.y() + rect.height()};
    case Qt::LeftEdge:
        return {rect.x(), rect.center().y()};
    case Qt::RightEdge:
        return {rect.x() + rect.width(), rect.center().y()};
    }
    return rect.center();
}

int within(int value, int low, int high)
{
    return std::max(low, std::min(value, high));
}

} // namespace

PopOver::PopOver(std::unique_ptr<QWidget> content)
    : QWidget(nullptr, Qt::Tool | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint)
    , m_content(content.release())
{
    // Where windows have no shapes (Wayland), what lies outside the outline is see-through.
    setAttribute(Qt::WA_TranslucentBackground);
    setFocusPolicy(Qt::StrongFocus);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(m_content);
}

void PopOver::showRelativeTo(const QRect &rect, QWidget &view, Qt::Edge preferredEdge)
{
    m_anchorWindow = view.window();
    // Who does not see it hears what it says.
    if (const auto *label = m_content->findChild<QLabel *>())
        setAccessibleName(label->text());
    m_anchorCorner = m_anchorWindow->pos();
    place({view.mapToGlobal(rect.topLeft()), rect.size()}, preferredEdge);
    if (QWindow *over = m_anchorWindow->windowHandle()) {
        winId();
        windowHandle()->setTransientParent(over);
    }
    qApp->removeEventFilter(this);
    qApp->installEventFilter(this);
    show();
    raise();
    activateWindow();
    QWidget *first = nextInFocusChain();
    while (first != this && !(first->focusPolicy() & Qt::TabFocus && first->isVisible()))
        first = first->nextInFocusChain();
    first->setFocus(Qt::PopupFocusReason);
}

QRect PopOver::placeAt(const QRect &anchor, Qt::Edge edge) const
{
    const QSize size =
        m_content->sizeHint() + (isVertical(edge) ? QSize(0, ArrowLength) : QSize(ArrowLength, 0));
    const QPoint tip = middleOf(anchor, edge);
    QRect frame({0, 0}, size);
    frame.moveCenter(tip);
    if (isVertical(edge))
        frame.moveTop(edge == Qt::BottomEdge ? tip.y() : tip.y() - size.height());
    else
        frame.moveLeft(edge == Qt::RightEdge ? tip.x() : tip.x() - size.width());
    return frame;
}

void PopOver::place(const QRect &anchor, Qt::Edge preferredEdge)
{
    const QRect screen = m_anchorWindow->screen()->availableGeometry();
    m_edge = preferredEdge;
    QRect frame = placeAt(anchor, preferredEdge);
    const QRect other = placeAt(anchor, opposite(preferredEdge));
    const auto fits = [&](const QRect &placed) {
        return isVertical(m_edge)
                   ? placed.top() >= screen.top() && placed.bottom() <= screen.bottom()
                   : placed.left() >= screen.left() && placed.right() <= screen.right();
    };
    if (!fits(frame) && fits(other)) {
        m_edge = opposite(preferredEdge);
        frame = other;
    }
    const QPoint tip = middleOf(anchor, m_edge);
    frame.moveLeft(within(frame.left(), screen.left(), screen.right() + 1 - frame.width()));
    frame.moveTop(within(frame.top(), screen.top(), screen.bottom() + 1 - frame.height()));

    layout()->setContentsMargins(
        m_edge == Qt::RightEdge ? ArrowLength : 0, m_edge == Qt::BottomEdge ? ArrowLength : 0,
        m_edge == Qt::LeftEdge ? ArrowLength : 0, m_edge == Qt::TopEdge ? ArrowLength : 0);
    setGeometry(frame);
    m_tip = tip - frame.topLeft();
    if (isVertical(m_edge))
        m_tip.setX(within(m_tip.x(), ArrowInset, frame.width() - ArrowInset));
    else
        m_tip.setY(within(m_tip.y(), ArrowInset, frame.height() - ArrowInset));
    platform::setWindowShape(*this, outline(bubble(), 0));
}

QRectF PopOver::bubble() const
{
    return rect().marginsRemoved(layout()->contentsMargins());
}

QPainterPath PopOver::outline(const QRectF &bubble, double inset) const
{
    const QPointF into = m_edge == Qt::BottomEdge  ? QPointF(0, 1)
                         : m_edge == Qt::TopEdge   ? QPointF(0, -1)
                         : m_edge == Qt::RightEdge ? QPointF(1, 0)
                                                   : QPointF(-1, 0);
    // The arrow reaches into the bubble, so that the two become one.
    const QPointF foot = m_tip + into * (ArrowLength + 1);
    const QPointF along = QPointF(into.y(), into.x()) * (ArrowHalfWidth - inset);
    const QPointF tip = m_tip + into * inset;
    QPainterPath arrow;
    arrow.addPolygon(QPolygonF{{tip, foot + along, foot - along, tip}});
    QPainterPath path;
    path.addRoundedRect(bubble, Radius, Radius);
    return path.united(arrow);
}

void PopOver::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    // Without a compositor the pixels that the line half covers would be black.
    if (!mask().isEmpty())
        painter.fillRect(rect(), palette().color(QPalette::Shadow));
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(palette().color(QPalette::Shadow));
    painter.setBrush(palette().color(QPalette::Window));
    const QRectF middleOfLine = lineIn(painter, bubble());
    painter.drawPath(outline(middleOfLine, painter.pen().widthF() / 2));
}

void PopOver::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    qApp->removeEventFilter(this);
    // Without this the keyboard would be with no window where the desktop has no manager of them.
    if (m_anchorWindow && m_anchorWindow->isVisible())
        m_anchorWindow->activateWindow();
    Q_EMIT closed();
}

bool PopOver::eventFilter(QObject *watched, QEvent *event)
{
    auto *widget = qobject_cast<QWidget *>(watched);
    if (!widget)
        return false;
    if (event->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape) {
        close();
        return true;
    }
    const bool isElsewhere = widget->window() != this;
    if (isElsewhere &&
        (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::Wheel))
        close();
    else if (widget == m_anchorWindow)
        anchorEvent(*event);
    return false;
}

void PopOver::anchorEvent(const QEvent &event)
{
    const bool isMinimised =
        event.type() == QEvent::WindowStateChange && m_anchorWindow->isMinimized();
    if (event.type() == QEvent::Hide || event.type() == QEvent::Close || isMinimised)
        close();
    else if (event.type() == QEvent::Move) {
        move(pos() + m_anchorWindow->pos() - m_anchorCorner);
        m_anchorCorner = m_anchorWindow->pos();
    }
}

} // namespace tarvelo::widgets
