#include "widgets/CustomButton.h"

namespace tarvelo::widgets {

CustomButton::CustomButton(QWidget *parent)
    : ImageButton(parent)
    , m_tracking(*this, {[this] { mouseEntered(); }, [this] { mouseExited(); }})
{
}

void CustomButton::setImageScaling(ImageScaling scaling)
{
    m_scaling = scaling;
    update();
}

void CustomButton::awakeFromNib()
{
    m_trackingTag = m_tracking.addTrackingRect(rect());
}

void CustomButton::setMouseReady()
{
    m_tracking.removeTrackingRect(m_trackingTag);
    m_trackingTag = m_tracking.addTrackingRect(rect());
}

void CustomButton::mouseEntered()
{
    m_isMouseNoticed = true;
    repaint();
}

void CustomButton::mouseExited()
{
    m_isMouseNoticed = false;
    repaint();
}

// A rectangle that was added under the mouse would not tell that it left.
void CustomButton::leaveEvent(QEvent *event)
{
    m_isMouseNoticed = false;
    ImageButton::leaveEvent(event);
}

QRectF CustomButton::imageRect(const platform::Image &image) const
{
    return m_scaling == ImageScaling::AxesIndependently ? QRectF(rect())
                                                        : ImageButton::imageRect(image);
}

} // namespace tarvelo::widgets
