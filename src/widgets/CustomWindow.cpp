#include "widgets/CustomWindow.h"

#include "platform/Frames.h"
#include "platform/WindowLevel.h"

#include <QEasingCurve>
#include <QEventLoop>
#include <QLabel>
#include <QLayout>
#include <QMouseEvent>
#include <QRect>
#include <QRegion>
#include <QSize>
#include <QSizeF>
#include <QTransform>
#include <QVariant>
#include <QVariantAnimation>
#include <QWindow>

#include <utility>

namespace tarvelo::widgets {

using platform::frameOnScreen;
using platform::setFrameOnScreen;

namespace {

constexpr int ShrinkMilliseconds = 200;

} // namespace

struct CustomWindow::Shape
{
    QRect geometry;
    QSize minimum;
    QRegion mask;
    QLayout::SizeConstraint constraint = QLayout::SetDefaultConstraint;
    std::unique_ptr<QLabel> picture;
};

CustomWindow::CustomWindow(const QRectF &contentRect, int, int, bool)
    : QWidget(nullptr, Qt::Window | Qt::FramelessWindowHint | Qt::WindowCloseButtonHint)
{
    setWindowOpacity(1.0);
    setAttribute(Qt::WA_TranslucentBackground);
    setFrameOnScreen(*this, contentRect);
}

CustomWindow::~CustomWindow() = default;

bool CustomWindow::isSheet() const
{
    return windowType() == Qt::Sheet || (parentWidget() && windowModality() == Qt::WindowModal);
}

// Reckoned from the screen: the window system may say where in the window the mouse is before it
// has moved the window.
QPointF CustomWindow::locationInWindow(const QMouseEvent &event) const
{
    return platform::placeOnScreen(event.globalPosition()) - frameOnScreen(*this).topLeft();
}

void CustomWindow::mouseDown(QMouseEvent *event)
{
    m_initialLocation = locationInWindow(*event);
}

void CustomWindow::mouseDragged(QMouseEvent *event)
{
    if (isSheet())
        return;
    // Windows there do not know where they are, and the desktop alone can move them.
    if (platform::isOnWayland()) {
        m_isDragged = false;
        windowHandle()->startSystemMove();
        return;
    }
    const QRectF visible = platform::visibleFrame(*screen());
    QRectF frame = frameOnScreen(*this);
    frame.translate(locationInWindow(*event) - m_initialLocation);
    // The only clamp: a window that is taken off another edge can be taken back by what still
    // shows, and one whose top has gone below a panel cannot.
    if (frame.y() + frame.height() > visible.y() + visible.height())
        frame.moveTop(visible.y() + (visible.height() - frame.height()));
    setFrameOnScreen(*this, frame);
}

// A press on a control arrives here too when it has nothing to do, as one on a button that is
// disabled. It was not meant for the window.
bool CustomWindow::isOnControl(const QPoint &place) const
{
    const QWidget *view = childAt(place);
    while (view && view != this && view->focusPolicy() == Qt::NoFocus)
        view = view->parentWidget();
    return view && view != this;
}

void CustomWindow::mousePressEvent(QMouseEvent *event)
{
    m_isDragged = event->button() == Qt::LeftButton && !isOnControl(event->position().toPoint());
    if (m_isDragged)
        mouseDown(event);
}

void CustomWindow::mouseMoveEvent(QMouseEvent *event)
{
    if (m_isDragged && event->buttons() & Qt::LeftButton)
        mouseDragged(event);
}

void CustomWindow::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        m_isDragged = false;
}

void CustomWindow::closeEvent(QCloseEvent *event)
{
    QWidget::closeEvent(event);
    if (isVisible() && !isMinimized())
        shrink();
}

// In the window's stead a picture of it shrinks: controls have a smallest size.
void CustomWindow::showPictureInsteadOfContent()
{
    m_shape->picture = std::make_unique<QLabel>(this);
    m_shape->picture->setScaledContents(true);
    m_shape->picture->setPixmap(grab());
    m_shape->picture->setGeometry(rect());
    m_shape->picture->show();
}

void CustomWindow::fitPicture()
{
    m_shape->picture->setGeometry(rect());
    const QSizeF whole = m_shape->geometry.size();
    if (!m_shape->mask.isEmpty())
        setMask(QTransform::fromScale(width() / whole.width(), height() / whole.height())
                    .map(m_shape->mask));
}

// Whoever closes it has a window that is closed when that returns, as with any other window, so
// that the program can end. What the user does meanwhile waits until then.
void CustomWindow::shrink()
{
    m_shape = std::make_unique<Shape>(
        Shape{geometry(), minimumSize(), mask(),
              layout() ? layout()->sizeConstraint() : QLayout::SetDefaultConstraint, nullptr});
    showPictureInsteadOfContent();
    if (layout())
        layout()->setSizeConstraint(QLayout::SetNoConstraint);
    setMinimumSize(0, 0);

    const QRect whole = geometry();
    const QRectF frame = frameOnScreen(*this);
    QVariantAnimation animation;
    animation.setDuration(ShrinkMilliseconds);
    animation.setEasingCurve(QEasingCurve::InQuad);
    animation.setStartValue(frame);
    animation.setEndValue(
        QRectF(frame.x() + frame.width() * 0.5, frame.y() + frame.height() * 0.5, 1, 1));
    connect(&animation, &QVariantAnimation::valueChanged, this, [this](const QVariant &value) {
        if (!m_shape)
            return;
        setFrameOnScreen(*this, value.toRectF());
        fitPicture();
    });
    QEventLoop end;
    connect(&animation, &QVariantAnimation::finished, &end, &QEventLoop::quit);
    animation.start();
    end.exec(QEventLoop::ExcludeUserInputEvents);
    // Who was hidden on the way may have heard of an earlier, smaller shape after that.
    if (!isVisible())
        setGeometry(whole);
}

void CustomWindow::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    m_isDragged = false;
    const std::unique_ptr<Shape> shape = std::move(m_shape);
    if (!shape)
        return;
    if (layout())
        layout()->setSizeConstraint(shape->constraint);
    setMinimumSize(shape->minimum);
    setGeometry(shape->geometry);
    setMask(shape->mask);
}

} // namespace tarvelo::widgets
