#pragma once

#include "widgets/ImageButton.h"
#include "widgets/TrackingRects.h"

#include <QRectF>
#include <QString>

class QWidget;

namespace tarvelo::platform {
class Image;
}

namespace tarvelo::widgets {

// A button that notices the mouse over it and knows two image names for it. It keeps the names but
// never swaps the images, which is wanted, so leave it; the day cell of the calendar is the button
// that swaps.
class CustomButton : public ImageButton
{
    Q_OBJECT
    Q_PROPERTY(QString normalImage READ normalImage WRITE setNormalImage)
    Q_PROPERTY(QString hoverImage READ hoverImage WRITE setHoverImage)

public:
    enum class ImageScaling { ProportionallyDown, AxesIndependently };

    explicit CustomButton(QWidget *parent = nullptr);

    const QString &normalImage() const { return m_strNormalImage; }
    const QString &hoverImage() const { return m_strHoverImage; }
    int trackingRectCount() const { return m_tracking.count(); }

    void setNormalImage(const QString &name) { m_strNormalImage = name; }
    void setHoverImage(const QString &name) { m_strHoverImage = name; }
    void setImageScaling(ImageScaling scaling);
    void setPlate(const QRectF &plate) { m_plate = plate; }
    // Tracks the mouse over the present bounds. To be called after each change of the frame.
    void setMouseReady();
    // For a button that a window's layout made: begins to track the mouse.
    Q_INVOKABLE void awakeFromNib();

protected:
    virtual void mouseEntered();
    virtual void mouseExited();
    void leaveEvent(QEvent *event) override;
    QRectF imageRect(const platform::Image &image) const override;
    QRectF plate() const override { return m_plate; }
    // Only by a mouse that it noticed: one that is kept from it does not show either.
    bool isTurnedTo() const override { return m_isMouseNoticed; }

private:
    TrackingRects m_tracking;
    int m_trackingTag = 0;
    bool m_isMouseNoticed = false;
    QString m_strNormalImage;
    QString m_strHoverImage;
    QRectF m_plate;
    ImageScaling m_scaling = ImageScaling::ProportionallyDown;
};

} // namespace tarvelo::widgets
