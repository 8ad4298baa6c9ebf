#include "widgets/SlidingWindow.h"

namespace tarvelo::widgets {

namespace {
constexpr int SlideMilliseconds = 200;
}

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

} // namespace tarvelo::widgets
