#include "widgets/ControlPainting.h"

#include "widgets/Colours.h"
#include "widgets/Lines.h"

#include <QColor>
#include <QFlags>
#include <QFontInfo>
#include <QPainter>
#include <QPen>
#include <QPoint>
#include <QPointF>
#include <QPolygonF>
#include <QRect>
#include <QStyle>
#include <QStyleOption>
#include <QStyleOptionSlider>

#include <algorithm>

namespace tarvelo::widgets {

namespace {

constexpr double Line = 1;
constexpr double RingWidth = 2;
constexpr int SmallestIndicator = 16;
// What is drawn in one is measured for the path of the smallest.
constexpr double IndicatorPath = SmallestIndicator - 1;
constexpr double IndicatorRadius = 4;
constexpr double GrooveHeight = 4;
constexpr double ScrollHandleWidth = 6;
// In per cent, as against a control under the mouse.
constexpr int PressedShade = 106;

enum class Turn { None, Mouse, Press };

bool is(const QStyleOption &option, QStyle::StateFlag state)
{
    return option.state.testFlag(state);
}

QColor outlineOf(const QStyleOption &option)
{
    return option.palette.color(QPalette::Shadow);
}

Turn turnOf(const QStyleOption &option)
{
    if (!is(option, QStyle::State_Enabled))
        return Turn::None;
    if (is(option, QStyle::State_Sunken))
        return Turn::Press;
    return is(option, QStyle::State_MouseOver) ? Turn::Mouse : Turn::None;
}

bool isFramed(const QStyleOption &option)
{
    return colours().isBold && turnOf(option) == Turn::Mouse;
}

QColor accentOf(const QStyleOption &option)
{
    const QColor accent = option.palette.color(QPalette::Highlight);
    if (isInverted(option))
        return option.palette.color(QPalette::Base);
    if (colours().isBold || turnOf(option) == Turn::None)
        return accent;
    return accent.darker(turnOf(option) == Turn::Press ? 130 : 112);
}

QColor groundOf(const QStyleOption &option)
{
    if (isInverted(option))
        return option.palette.color(QPalette::WindowText);
    if (colours().isBold || turnOf(option) == Turn::None)
        return option.palette.color(QPalette::Base);
    const QColor turnedTo = option.palette.color(QPalette::Midlight);
    return turnOf(option) == Turn::Press ? turnedTo.darker(PressedShade) : turnedTo;
}

QRectF indicatorIn(const QRect &rect)
{
    const int side = std::min(rect.width(), rect.height()) - 2 * RoomAroundIndicator;
    QRectF box(0, 0, side, side);
    box.moveCenter(QRectF(rect).center());
    return box.toAlignedRect();
}

// Its own painter state ends with each drawing.
class Restored final
{
public:
    explicit Restored(QPainter &painter)
        : m_painter(painter)
    {
        painter.save();
        painter.setRenderHint(QPainter::Antialiasing);
    }
    ~Restored() { m_painter.restore(); }
    Restored(const Restored &) = delete;
    Restored &operator=(const Restored &) = delete;

private:
    QPainter &m_painter;
};

// Fills `place` and draws the outline along its inside. The innermost point of a thick black one is
// light where it lies on the accent, which is as dark.
void paintGround(QPainter &painter, const QStyleOption &option, const QRectF &place, double radius,
                 bool isFilled)
{
    constexpr double Light = 1;
    const bool hasLight = isFilled && isFramed(option);
    const bool isThick = isFramed(option) || (isFilled && isInverted(option));
    const double width = !isThick ? Line : hasLight ? BoldLine - Light : BoldLine;
    const QColor fill = isFilled ? accentOf(option) : groundOf(option);
    const QColor accent = isThick ? option.palette.color(QPalette::Highlight) : fill;
    painter.setPen(QPen(isFilled && !hasLight ? accent : outlineOf(option), width));
    painter.setBrush(fill);
    const double inside = radius - (width - Line) / 2;
    painter.drawRoundedRect(lineIn(painter, place), inside, inside);
    if (!hasLight)
        return;
    painter.setPen(QPen(option.palette.color(QPalette::HighlightedText), Light));
    painter.drawRoundedRect(lineIn(painter, place, width), radius - width, radius - width);
}

// Shades would hide a title that stands out from white by little, as a red one does, and buttons
// stand beside each other: it is the outline that tells.
bool staysLight(const QStyleOption &option)
{
    return !colours().isBold && turnOf(option) != Turn::None;
}

void paintLightButton(QPainter &painter, const QStyleOption &option)
{
    const double width = turnOf(option) == Turn::Press ? 2 * Line : Line;
    painter.setPen(QPen(option.palette.color(QPalette::WindowText), width));
    painter.setBrush(option.palette.color(QPalette::Base));
    painter.drawRoundedRect(lineIn(painter, option.rect), ControlRadius, ControlRadius);
}

bool isTicked(const QStyleOption &option)
{
    return is(option, QStyle::State_On) && is(option, QStyle::State_Enabled);
}

QColor markOf(const QStyleOption &option)
{
    return option.palette.color(is(option, QStyle::State_Enabled) ? inkOn(option, true)
                                                                  : QPalette::WindowText);
}

// The more one turns to it the wider, where it can get no darker.
double scrollHandleWidth(const QStyleOption &option)
{
    if (!colours().isBold)
        return ScrollHandleWidth;
    return ScrollHandleWidth + BoldLine * static_cast<int>(turnOf(option));
}

QRectF barIn(const QRectF &groove, double height)
{
    QRectF bar(groove.left(), 0, groove.width(), height);
    bar.moveCenter({bar.center().x(), groove.center().y()});
    return bar;
}

void paintGroove(QPainter &painter, const QStyleOptionSlider &option, const QRectF &groove,
                 double handle)
{
    const auto paintBar = [&](const QRectF &bar, const QColor &colour) {
        painter.setBrush(colour);
        painter.drawRoundedRect(onPixels(painter, bar), bar.height() / 2, bar.height() / 2);
    };
    // Where red and black are hardly two shades, the part that was played is the thicker one.
    const bool isBold = colours().isBold;
    painter.setPen(Qt::NoPen);
    paintBar(barIn(groove, isBold ? GrooveHeight / 2 : GrooveHeight), outlineOf(option));
    if (!is(option, QStyle::State_Enabled) || option.sliderPosition <= option.minimum)
        return;
    QRectF filled = barIn(groove, isBold ? GrooveHeight * 3 / 2 : GrooveHeight);
    if (option.upsideDown)
        filled.setLeft(handle);
    else
        filled.setRight(handle);
    paintBar(filled, option.palette.color(QPalette::Highlight));
}

} // namespace

bool isInverted(const QStyleOption &option)
{
    return colours().isBold && turnOf(option) == Turn::Press;
}

QPalette::ColorRole inkOn(const QStyleOption &option, bool isFilled)
{
    if (isFilled)
        return isInverted(option) ? QPalette::Highlight : QPalette::HighlightedText;
    return isInverted(option) ? QPalette::HighlightedText : QPalette::WindowText;
}

int indicatorSide(const QFont &font)
{
    return std::max(SmallestIndicator, QFontInfo(font).pixelSize() * 2 / 3 * 2);
}

void paintButton(QPainter &painter, const QStyleOption &option, bool isDefault)
{
    const Restored restored(painter);
    const bool isFilled = isDefault && is(option, QStyle::State_Enabled);
    if (!isFilled && staysLight(option))
        paintLightButton(painter, option);
    else
        paintGround(painter, option, option.rect, ControlRadius, isFilled);
}

void paintSegment(QPainter &painter, const QStyleOption &option, const QRectF &place, double radius)
{
    const Restored restored(painter);
    const bool isFilled = is(option, QStyle::State_On);
    if (isFramed(option) || isInverted(option))
        return paintGround(painter, option, place, radius, isFilled);
    painter.setPen(Qt::NoPen);
    painter.setBrush(isFilled ? accentOf(option) : groundOf(option));
    painter.drawRoundedRect(place, radius, radius);
}

void paintKeyboardRing(QPainter &painter, const QStyleOption &option, bool isOnAccent)
{
    const Restored restored(painter);
    const double inset = isOnAccent ? 3 : 0;
    const auto role = isOnAccent ? QPalette::HighlightedText : QPalette::Highlight;
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(option.palette.color(role), RingWidth));
    const double radius = ControlRadius - inset / 2 - RingWidth / 4;
    painter.drawRoundedRect(lineIn(painter, option.rect, inset), radius, radius);
}

void paintField(QPainter &painter, const QStyleOption &option)
{
    const Restored restored(painter);
    painter.setPen(outlineOf(option));
    painter.setBrush(option.palette.brush(QPalette::Base));
    painter.drawRoundedRect(lineIn(painter, option.rect), ControlRadius, ControlRadius);
}

void paintCheckBox(QPainter &painter, const QStyleOption &option)
{
    const Restored restored(painter);
    const QRectF box = indicatorIn(option.rect);
    const double scale = (box.width() - 1) / IndicatorPath;
    paintGround(painter, option, box, IndicatorRadius * scale, isTicked(option));
    if (!is(option, QStyle::State_On))
        return;
    painter.translate(onPixels(painter, box).topLeft() + QPointF(Line / 2, Line / 2));
    painter.scale(scale, scale);
    painter.setPen(QPen(markOf(option), 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawPolyline(QPolygonF{{3.5, 7.8}, {6.3, 10.6}, {11.5, 4.6}});
}

void paintRadioButton(QPainter &painter, const QStyleOption &option)
{
    const Restored restored(painter);
    const QRectF circle = indicatorIn(option.rect);
    paintGround(painter, option, circle, (circle.width() - 1) / 2, isTicked(option));
    if (!is(option, QStyle::State_On))
        return;
    const double dot = 3 * (circle.width() - 1) / IndicatorPath;
    painter.setPen(Qt::NoPen);
    painter.setBrush(markOf(option));
    painter.drawEllipse(circle.center(), dot, dot);
}

void paintHeaderSection(QPainter &painter, const QStyleOption &option)
{
    const QRect &rect = option.rect;
    painter.fillRect(rect, option.palette.color(QPalette::Base));
    drawHairline(painter, QRect(rect.left(), rect.bottom(), rect.width(), 1),
                 option.palette.color(QPalette::Mid));
}

// Its filled part begins where the time does, at the right in a window that runs to the left.
void paintSlider(QPainter &painter, const QStyleOptionSlider &option, const QRect &groove,
                 const QRect &handle)
{
    const Restored restored(painter);
    const QPointF middle = QRectF(handle).center();
    QRectF bar(groove);
    bar.moveCenter({bar.center().x(), middle.y()});
    paintGroove(painter, option, bar, middle.x());
    QStyleOption knob(option);
    knob.state.setFlag(QStyle::State_MouseOver,
                       is(option, QStyle::State_MouseOver) &&
                           option.activeSubControls == QStyle::SC_SliderHandle);
    knob.state.setFlag(QStyle::State_Sunken,
                       is(option, QStyle::State_Sunken) &&
                           option.activeSubControls == QStyle::SC_SliderHandle);
    const double width = isFramed(knob) ? BoldLine : 1.5;
    painter.setPen(QPen(outlineOf(knob), width));
    painter.setBrush(groundOf(knob));
    const double radius = SliderHandleSide / 2.0 - (width + Line / 2) / 2;
    painter.drawEllipse(middle, radius, radius);
}

void paintScrollBar(QPainter &painter, const QStyleOptionSlider &option, const QRect &handle,
                    bool isSeenThrough)
{
    const Restored restored(painter);
    if (!isSeenThrough)
        painter.fillRect(option.rect, option.palette.color(QPalette::Base));
    if (option.maximum <= option.minimum)
        return;
    painter.setPen(Qt::NoPen);
    painter.setBrush(option.palette.color(turnOf(option) != Turn::None ? QPalette::WindowText
                                                                       : QPalette::Shadow));
    QRectF bar(handle);
    const double across = std::min(bar.width(), bar.height());
    const double width = scrollHandleWidth(option);
    const double inset = (across - width) / 2;
    bar.adjust(inset, inset, -inset, -inset);
    painter.drawRoundedRect(onPixels(painter, bar), width / 2, width / 2);
}

} // namespace tarvelo::widgets
