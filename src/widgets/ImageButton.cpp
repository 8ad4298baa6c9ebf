#include "widgets/ImageButton.h"

#include "widgets/Colours.h"
#include "widgets/ControlPainting.h"
#include "widgets/DrawingStates.h"
#include "widgets/Lines.h"

#include <QColor>
#include <QEvent>
#include <QFocusEvent>
#include <QHelpEvent>
#include <QImage>
#include <QMarginsF>
#include <QPainter>
#include <QPalette>
#include <QPen>
#include <QPointF>
#include <QSizeF>
#include <QToolTip>
#include <QTransform>

#include <algorithm>

namespace tarvelo::widgets {

using platform::Image;

namespace {
constexpr double NarrowWidth = 18;
constexpr double RingWidth = 2;
// Of the ground of a drawing, and of what is around a title.
constexpr double Corner = 6;
constexpr float HoverShade = 0.1F;
constexpr float PressedShade = 0.22F;

QMarginsF margins(double width)
{
    return {width, width, width, width};
}

// A ring around a button as narrow as an arrow would cover it: such a button is underlined.
void paintRing(QPainter &painter, const QPen &pen, const QRectF &place, double radius)
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(pen);
    const QRectF line = lineIn(painter, place);
    if (place.width() < NarrowWidth)
        painter.drawLine(line.bottomLeft(), line.bottomRight());
    else
        painter.drawRoundedRect(line, radius - pen.widthF() / 2, radius - pen.widthF() / 2);
}
} // namespace

ImageButton::ImageButton(QWidget *parent)
    : QPushButton(parent)
{
    setAttribute(Qt::WA_Hover);
    connect(this, &QPushButton::clicked, this, [this] {
        // Copied, since an action may exchange itself.
        const Action action = m_action;
        if (action.run)
            action.run(this);
    });
}

void ImageButton::setImage(const Image &image)
{
    m_image = image;
    update();
}

void ImageButton::setAlternateImage(const Image &image)
{
    m_alternateImage = image;
    update();
}

void ImageButton::setLook(const QString &image, const QString &alternate, const QString &toolTip)
{
    setImage(platform::imageNamed(image));
    setAlternateImage(platform::imageNamed(alternate));
    setToolTip(toolTip);
    setAccessibleName(toolTip);
}

QSize ImageButton::sizeHint() const
{
    return m_image.isNull() ? QPushButton::sizeHint() : m_image.size().toSize();
}

QRectF ImageButton::imageRect(const Image &image) const
{
    const QSizeF size =
        image.size().boundedTo(image.size().scaled(this->size(), Qt::KeepAspectRatio));
    return {(width() - size.width()) / 2, (height() - size.height()) / 2, size.width(),
            size.height()};
}

void ImageButton::setKeys(const QKeySequence &keys)
{
    m_keys = keys;
    setAccessibleDescription(keys.toString(QKeySequence::NativeText));
}

bool ImageButton::event(QEvent *event)
{
    if (event->type() != QEvent::ToolTip || m_keys.isEmpty())
        return QPushButton::event(event);
    QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(),
                       QStringLiteral("%1 (%2)").arg(toolTip(), accessibleDescription()), this);
    return true;
}

// Around a drawing, which it leaves whole, the ring has the drawing's shape. Where it has to lie on
// one it lies in a light one, so that it is seen on a drawing of its own colour too.
void ImageButton::paintFocus(QPainter &painter) const
{
    if (!hasFocus() || !m_showsFocus)
        return;
    const QRectF drawing = imageRect(m_image);
    const bool isAround =
        m_image.isRound() ||
        (!m_image.isNull() && focusRect().contains(drawing.marginsAdded(margins(RingWidth))));
    QRectF place = focusRect();
    double radius = Corner;
    if (isAround) {
        place = place.intersected(drawing.marginsAdded(margins(2 * RingWidth)));
        radius = m_image.isRound() ? place.width() / 2 : Corner + drawing.left() - place.left();
    } else {
        paintRing(painter, QPen(palette().color(QPalette::Base), 2 * RingWidth), place, radius);
    }
    paintRing(painter, QPen(palette().color(QPalette::Highlight), RingWidth), place, radius);
}

// A button that Return presses when it has the keyboard shows that to everybody.
void ImageButton::focusInEvent(QFocusEvent *event)
{
    const Qt::FocusReason reason = event->reason();
    if (reason == Qt::MouseFocusReason)
        m_showsFocus = false;
    else if (autoDefault() ||
             (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason))
        m_showsFocus = true;
    QPushButton::focusInEvent(event);
}

// A drawing that is as narrow as an arrow has no ground that could tell.
float ImageButton::shadeOf(const QRectF &drawing) const
{
    const float shade = isDown() ? PressedShade : HoverShade;
    return drawing.width() < NarrowWidth ? std::min(1.0F, shade * 5) : shade;
}

// A shade darker for who turns to it, and two while it is pressed, or with a thick line around it
// and white on black. One that is as narrow as an arrow is underlined instead.
void ImageButton::showState(QImage &drawing, const Image &image) const
{
    const QColor ink = palette().color(QPalette::WindowText);
    if (!colours().isBold)
        return shade(drawing, ink, shadeOf(imageRect(image)));
    if (!isEnabled())
        return fade(drawing, palette().color(QPalette::WindowText));
    if (isDown())
        exchangeBlackAndWhite(drawing);
    const QRectF edge = plate().isEmpty() ? imageRect(image) : plate();
    if (edge.width() >= NarrowWidth)
        return frame(drawing, edge, BoldLine, ink);
    QPainter painter(&drawing);
    painter.fillRect(QRectF(edge.left(), edge.bottom() - BoldLine, edge.width(), BoldLine), ink);
}

void ImageButton::paintTile(QPainter &painter) const
{
    if (!isEnabled() || plate().isEmpty())
        return;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colours().tile);
    const double radius = std::min(ControlRadius, plate().width() / 3);
    painter.drawRoundedRect(plate(), radius, radius);
}

void ImageButton::paintChanged(QPainter &painter, const Image &image) const
{
    const QTransform device = painter.deviceTransform();
    const double ratio = device.m11();
    const QPointF origin = device.map(QPointF());
    const QPointF corner = (QPointF(origin.toPoint()) - origin) / ratio;
    QImage canvas((QSizeF(size() + QSize(1, 1)) * ratio).toSize(),
                  QImage::Format_ARGB32_Premultiplied);
    canvas.setDevicePixelRatio(ratio);
    canvas.fill(Qt::transparent);
    QPainter drawing(&canvas);
    // On the same pixels as at rest.
    drawing.translate(-corner);
    paintTile(drawing);
    image.paint(drawing, imageRect(image));
    drawing.end();
    showState(canvas, image);
    painter.drawImage(corner, canvas);
}

void ImageButton::paintEvent(QPaintEvent *event)
{
    if (m_image.isNull() && m_alternateImage.isNull()) {
        QPushButton::paintEvent(event);
        // The style's own mark is hardly another colour than the edge of the button.
        QPainter painter(this);
        paintFocus(painter);
        return;
    }
    const bool isBold = colours().isBold;
    // Of its own image a button knows no other state where states are bold.
    const bool alternate = isDown() && !m_alternateImage.isNull() && (!isBold || m_image.isNull());
    const Image &shown = alternate ? m_alternateImage : m_image;
    QPainter painter(this);
    if (!isEnabled() && !isBold)
        painter.setOpacity(0.35);
    const bool isChanged = isEnabled() ? (isTurnedTo() || isDown()) && !alternate : isBold;
    if (isChanged)
        paintChanged(painter, shown);
    else
        shown.paint(painter, imageRect(shown));
    painter.setOpacity(1);
    paintFocus(painter);
}

} // namespace tarvelo::widgets
