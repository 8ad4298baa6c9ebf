#include "lectures/RowSwipe.h"

#include "widgets/Colours.h"
#include "widgets/Faces.h"
#include "widgets/Lines.h"

#include <QAbstractAnimation>
#include <QApplication>
#include <QColor>
#include <QEasingCurve>
#include <QEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QPoint>
#include <QRect>
#include <QVariant>
#include <QWheelEvent>
#include <QWidget>

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace tarvelo::lectures {

namespace {

const QColor Regular(120, 116, 128);

constexpr int TitleMargin = 22;
constexpr int MoveMilliseconds = 200;
// Fingers that rest so long are taken to have left, where the system does not say so.
constexpr int RestMilliseconds = 250;

// How far a swipe goes across, in points to the right.
int acrossOf(const QWheelEvent &event)
{
    const QPoint delta = event.pixelDelta().isNull() ? event.angleDelta() : event.pixelDelta();
    if (event.modifiers() & Qt::ShiftModifier)
        return delta.x() != 0 ? delta.x() : delta.y();
    return std::abs(delta.x()) > std::abs(delta.y()) ? delta.x() : 0;
}

// A wheel goes from notch to notch; a touchpad follows the fingers.
bool hasNotches(const QWheelEvent &event)
{
    return event.pixelDelta().isNull() && event.angleDelta().manhattanLength() >= 120;
}

} // namespace

RowActionButton::RowActionButton(QWidget *parent)
    : QAbstractButton(parent)
{
    setObjectName(QStringLiteral("rowActionButton"));
    setFont(widgets::fixedFace(14));
    setFocusPolicy(Qt::TabFocus);
    setCursor(Qt::PointingHandCursor);
    hide();
}

void RowActionButton::setAction(const RowAction &action)
{
    m_action = action;
    setText(action.title);
    setAccessibleName(action.title);
}

QSize RowActionButton::sizeHint() const
{
    return {fontMetrics().horizontalAdvance(text()) + 2 * TitleMargin, fontMetrics().height()};
}

// The title keeps its distance from the row that moves aside.
void RowActionButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const QColor ground = m_action.style == RowAction::Style::Destructive ? widgets::Red : Regular;
    const QColor pressed = widgets::colours().isBold ? QColor(Qt::black) : ground.darker(115);
    painter.fillRect(rect(), isDown() ? pressed : ground);
    painter.setPen(Qt::white);
    QRect title(0, 0, sizeHint().width(), height());
    if (layoutDirection() == Qt::RightToLeft)
        title.moveRight(rect().right());
    painter.drawText(title, Qt::AlignCenter, text());
    painter.setRenderHint(QPainter::Antialiasing);
    if (hasFocus())
        painter.drawRect(widgets::lineIn(painter, rect(), 4));
}

RowSwipe::RowSwipe(QWidget &viewport)
    : QObject(&viewport)
    , m_viewport(viewport)
{
    m_animation.setEasingCurve(QEasingCurve::OutCubic);
    connect(&m_animation, &QVariantAnimation::valueChanged, this, [this](const QVariant &value) {
        if (m_animation.state() == QAbstractAnimation::Running)
            setOffset(value.toInt());
    });
    connect(&m_animation, &QVariantAnimation::finished, this, [this] {
        if (m_offset == 0)
            coverAtOnce();
    });
}

int RowSwipe::fullOffset() const
{
    return m_button->sizeHint().width();
}

bool RowSwipe::isHalfOpen() const
{
    return m_offset * 2 >= fullOffset();
}

void RowSwipe::turnTo(int row, const RowAction &action)
{
    m_animation.stop();
    if (row == m_row)
        return;
    coverAtOnce();
    m_row = row;
    if (!m_button) {
        m_button = new RowActionButton(&m_viewport);
        connect(m_button, &QAbstractButton::clicked, this, &RowSwipe::run);
    }
    m_button->setAction(action);
    qApp->installEventFilter(this);
}

// Fingers that go towards the leading edge uncover what lies at the trailing one.
bool RowSwipe::swipe(const QWheelEvent &event, int row,
                     const std::function<QList<RowAction>()> &actions)
{
    if (event.phase() == Qt::ScrollEnd && m_row >= 0) {
        settle();
        return true;
    }
    const int across = acrossOf(event);
    if (across == 0)
        return false;
    const QList<RowAction> offered = actions();
    if (offered.isEmpty()) {
        cover();
        return true;
    }
    const int points = m_viewport.layoutDirection() == Qt::RightToLeft ? across : -across;
    if (hasNotches(event))
        moveToEnd(row, offered.first(), points > 0);
    else
        moveBy(row, offered.first(), points);
    return true;
}

void RowSwipe::moveBy(int row, const RowAction &action, int points)
{
    if (row != m_row && points <= 0)
        return;
    turnTo(row, action);
    setOffset(m_offset + points);
    if (m_offset == 0)
        coverAtOnce();
    else
        animate(isHalfOpen() ? fullOffset() : 0,
                double(RestMilliseconds) / (RestMilliseconds + MoveMilliseconds));
}

void RowSwipe::moveToEnd(int row, const RowAction &action, bool open)
{
    if (row != m_row && !open)
        return;
    turnTo(row, action);
    animate(open ? fullOffset() : 0, 0);
}

void RowSwipe::settle()
{
    if (m_row >= 0)
        animate(isHalfOpen() ? fullOffset() : 0, 0);
}

void RowSwipe::cover()
{
    if (m_row >= 0)
        animate(0, 0);
}

void RowSwipe::coverAtOnce()
{
    m_animation.stop();
    if (m_row < 0)
        return;
    qApp->removeEventFilter(this);
    setOffset(0);
    m_row = -1;
}

void RowSwipe::animate(int to, double restPart)
{
    m_animation.stop();
    m_animation.setKeyValues({});
    m_animation.setDuration(restPart > 0 ? RestMilliseconds + MoveMilliseconds : MoveMilliseconds);
    m_animation.setStartValue(m_offset);
    if (restPart > 0)
        m_animation.setKeyValueAt(restPart, m_offset);
    m_animation.setEndValue(to);
    m_animation.start();
}

void RowSwipe::setOffset(int offset)
{
    m_offset = std::clamp(offset, 0, fullOffset());
    m_button->setVisible(m_offset > 0);
    Q_EMIT moved();
}

// The row is given back only after the action, so that a row that it removes leaves as it is.
void RowSwipe::run()
{
    const auto handler = m_button->action().handler;
    const int row = m_row;
    if (handler)
        handler(row);
    if (m_row == row)
        cover();
}

bool RowSwipe::eventFilter(QObject *watched, QEvent *event)
{
    if (!watched->isWidgetType())
        return false;
    if (event->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape) {
        cover();
        return true;
    }
    if (event->type() == QEvent::MouseButtonPress && watched != m_button)
        cover();
    return false;
}

} // namespace tarvelo::lectures
