#include "widgets/SlidingWindow.h"

namespace tarvelo::widgets {

namespace {
constexpr int SlideMilliseconds = 200;

// Whether any of `widget` lies within all that it is in, up to `window`.
bool isInSight(const QWidget &widget, const QWidget &window)
{
    QRect rect = widget.rect();
    for (const QWidget *view = &widget; view != &window; view = view->parentWidget())
        rect = rect.translated(view->pos()) & view->parentWidget()->rect();
    return !rect.isEmpty();
}
} // namespace

SlidingWindow::SlidingWindow(QWidget *parent)
    : QWidget(parent)
{
    m_slide.setDuration(SlideMilliseconds);
    m_slide.setEasingCurve(QEasingCurve::InOutQuad);
    connect(&m_slide, &QVariantAnimation::valueChanged, this,
            [this](const QVariant &value) { setFixedWidth(value.toInt()); });
}

void SlidingWindow::setFrameSize(int width, int height)
{
    setFixedHeight(height);
    setFrameWidth(width, false);
}

void SlidingWindow::setFrameWidth(int width, bool animate)
{
    m_slide.stop();
    m_frameWidth = width;
    if (!animate || !isVisible() || this->width() == width) {
        setFixedWidth(width);
        return;
    }
    m_slide.setStartValue(this->width());
    m_slide.setEndValue(width);
    m_slide.start();
}

bool SlidingWindow::canTakeFocusByTab(const QWidget &widget) const
{
    return widget.window() == this && widget.isEnabled() && widget.isVisible() &&
           widget.focusPolicy() & Qt::TabFocus && !widget.focusProxy() && isInSight(widget, *this);
}

// Those between are not touched: a text that got the keyboard in passing would count as edited.
bool SlidingWindow::focusNextPrevChild(bool next)
{
    const auto after = [next](const QWidget *widget) {
        return next ? widget->nextInFocusChain() : widget->previousInFocusChain();
    };
    QWidget *const start = focusWidget() ? focusWidget() : this;
    for (QWidget *widget = after(start); widget != start; widget = after(widget)) {
        if (!canTakeFocusByTab(*widget))
            continue;
        widget->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
        return true;
    }
    return false;
}

} // namespace tarvelo::widgets
