#include "widgets/SlidingWindow.h"

#include <QEasingCurve>
#include <QRect>
#include <QShortcut>
#include <QVariant>

#include <algorithm>

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
    connect(new QShortcut(Qt::Key_F6, this), &QShortcut::activated, this,
            [this] { focusNextPane(1); });
    connect(new QShortcut(Qt::SHIFT | Qt::Key_F6, this), &QShortcut::activated, this,
            [this] { focusNextPane(-1); });
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

void SlidingWindow::focusNextPane(int step)
{
    const auto count = m_panes.size();
    const auto holdsFocus = [this](const Pane &pane) {
        return pane.part->isAncestorOf(focusWidget());
    };
    const auto from = std::find_if(m_panes.cbegin(), m_panes.cend(), holdsFocus);
    // From outside of all parts F6 leads to the first one, and Shift+F6 to the last one.
    auto at = from != m_panes.cend() ? from - m_panes.cbegin() : step > 0 ? -1 : count;
    for (qsizetype tried = 0; tried < count; ++tried) {
        at = (at + step + count) % count;
        QWidget *target = m_panes.at(at).first();
        if (target && canTakeFocusByTab(*target)) {
            target->setFocus(Qt::TabFocusReason);
            return;
        }
    }
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
