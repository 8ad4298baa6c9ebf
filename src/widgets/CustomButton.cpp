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
    repaint();
}

void CustomButton::mouseExited()
{
    repaint();
}

QRectF CustomButton::imageRect(const platform::Image &image) const
{
    return m_scaling == ImageScaling::AxesIndependently ? QRectF(rect())
                                                        : ImageButton::imageRect(image);
}

} // namespace tarvelo::widgets
