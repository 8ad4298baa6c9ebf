#include "widgets/ControlPainting.h"

#include <QPainter>
#include <QStyleOption>

#include <algorithm>

namespace tarvelo::widgets {

namespace {

constexpr double HalfLine = 0.5;
constexpr double RingWidth = 2;
constexpr double IndicatorSide = 16;
constexpr double IndicatorRadius = 4;
constexpr double GrooveHeight = 4;
constexpr double ScrollHandleWidth = 6;
// In per cent, as against a control under the mouse.
constexpr int PressedShade = 106;

bool is(const QStyleOption &option, QStyle::StateFlag state)
{
    return option.state.testFlag(state);
}

QColor outlineOf(const QStyleOption &option)
{
    return option.palette.color(QPalette::Shadow);
}

QColor accentOf(const QStyleOption &option)
{
    const QColor accent = option.palette.color(QPalette::Highlight);
    if (is(option, QStyle::State_Sunken))
        return accent.darker(130);
    return is(option, QStyle::State_MouseOver) ? accent.darker(112) : accent;
}

QColor groundOf(const QStyleOption &option)
{
    if (!is(option, QStyle::State_Enabled))
        return option.palette.color(QPalette::Base);
    if (is(option, QStyle::State_Sunken))
        return option.palette.color(QPalette::Midlight).darker(PressedShade);
    return option.palette.color(is(option, QStyle::State_MouseOver) ? QPalette::Midlight
                                                                    : QPalette::Base);
}

// The middle of a line of one point that runs along the inside of `rect`.
QRectF lineIn(const QRectF &rect)
{
    return rect.adjusted(HalfLine, HalfLine, -HalfLine, -HalfLine);
}

QRectF indicatorIn(const QRect &rect)
{
    QRectF box(0, 0, IndicatorSide, IndicatorSide);
    box.moveCenter(QRectF(rect).center());
    return lineIn(QRectF(box.toAlignedRect()));
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

void fillChosen(QPainter &painter, const QStyleOption &option, bool isChosen)
{
    const bool isEnabled = is(option, QStyle::State_Enabled);
    const bool isFilled = isChosen && isEnabled;
    painter.setPen(isFilled ? accentOf(option) : outlineOf(option));
    painter.setBrush(isFilled ? accentOf(option) : groundOf(option));
}

QColor markOf(const QStyleOption &option)
{
    return is(option, QStyle::State_Enabled) ? option.palette.color(QPalette::HighlightedText)
                                             : option.palette.color(QPalette::WindowText);
}

} // namespace

void paintButton(QPainter &painter, const QStyleOption &option, bool isDefault)
{
    const Restored restored(painter);
    const bool isFilled = isDefault && is(option, QStyle::State_Enabled);
    painter.setPen(isFilled ? accentOf(option) : outlineOf(option));
    painter.setBrush(isFilled ? accentOf(option) : groundOf(option));
    painter.drawRoundedRect(lineIn(option.rect), ControlRadius, ControlRadius);
}

void paintKeyboardRing(QPainter &painter, const QStyleOption &option, bool isOnAccent)
{
    const Restored restored(painter);
    const double inset = 0.5 * RingWidth + (isOnAccent ? 2.5 : 0);
    const auto role = isOnAccent ? QPalette::HighlightedText : QPalette::Highlight;
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(option.palette.color(role), RingWidth));
    painter.drawRoundedRect(QRectF(option.rect).adjusted(inset, inset, -inset, -inset),
                            ControlRadius - inset / 2, ControlRadius - inset / 2);
}

void paintField(QPainter &painter, const QStyleOption &option)
{
    const Restored restored(painter);
    painter.setPen(outlineOf(option));
    painter.setBrush(option.palette.brush(QPalette::Base));
    painter.drawRoundedRect(lineIn(option.rect), ControlRadius, ControlRadius);
}

void paintCheckBox(QPainter &painter, const QStyleOption &option)
{
    const Restored restored(painter);
    const QRectF box = indicatorIn(option.rect);
    fillChosen(painter, option, is(option, QStyle::State_On));
    painter.drawRoundedRect(box, IndicatorRadius, IndicatorRadius);
    if (is(option, QStyle::State_On)) {
        painter.setPen(QPen(markOf(option), 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.setBrush(Qt::NoBrush);
        painter.drawPolyline(QPolygonF{box.topLeft() + QPointF(3.5, 7.8),
                                       box.topLeft() + QPointF(6.3, 10.6),
                                       box.topLeft() + QPointF(11.5, 4.6)});
    }
}

void paintRadioButton(QPainter &painter, const QStyleOption &option)
{
    const Restored restored(painter);
    const QRectF circle = indicatorIn(option.rect);
    fillChosen(painter, option, is(option, QStyle::State_On));
    painter.drawEllipse(circle);
    if (!is(option, QStyle::State_On))
        return;
    painter.setPen(Qt::NoPen);
    painter.setBrush(markOf(option));
    painter.drawEllipse(circle.center(), 3, 3);
}

void paintHeaderSection(QPainter &painter, const QStyleOption &option)
{
    const QRect &rect = option.rect;
    painter.fillRect(rect, option.palette.color(QPalette::Base));
    painter.fillRect(QRect(rect.left(), rect.bottom(), rect.width(), 1),
                     option.palette.color(QPalette::Mid));
}

// Its filled part begins where the time does, at the right in a window that runs to the left.
void paintSlider(QPainter &painter, const QStyleOptionSlider &option, const QRect &groove,
                 const QRect &handle)
{
    const Restored restored(painter);
    const bool isEnabled = is(option, QStyle::State_Enabled);
    const QPointF middle = QRectF(handle).center();
    QRectF bar(groove);
    bar.setTop(middle.y() - GrooveHeight / 2);
    bar.setHeight(GrooveHeight);
    painter.setPen(Qt::NoPen);
    painter.setBrush(outlineOf(option));
    painter.drawRoundedRect(bar, GrooveHeight / 2, GrooveHeight / 2);
    if (isEnabled) {
        if (option.upsideDown)
            bar.setLeft(middle.x());
        else
            bar.setRight(middle.x());
        painter.setBrush(option.palette.color(QPalette::Highlight));
        painter.drawRoundedRect(bar, GrooveHeight / 2, GrooveHeight / 2);
    }
    QStyleOption knob(option);
    knob.state.setFlag(QStyle::State_MouseOver,
                       is(option, QStyle::State_MouseOver) &&
                           option.activeSubControls == QStyle::SC_SliderHandle);
    knob.state.setFlag(QStyle::State_Sunken,
                       is(option, QStyle::State_Sunken) &&
                           option.activeSubControls == QStyle::SC_SliderHandle);
    painter.setPen(QPen(outlineOf(knob), 1.5));
    painter.setBrush(groundOf(knob));
    const double radius = SliderHandleSide / 2.0 - 1;
    painter.drawEllipse(middle, radius, radius);
}

void paintScrollBar(QPainter &painter, const QStyleOptionSlider &option, const QRect &handle)
{
    const Restored restored(painter);
    painter.fillRect(option.rect, option.palette.color(QPalette::Base));
    if (option.maximum <= option.minimum)
        return;
    const bool isTurnedTo = is(option, QStyle::State_MouseOver) || is(option, QStyle::State_Sunken);
    painter.setPen(Qt::NoPen);
    painter.setBrush(option.palette.color(isTurnedTo ? QPalette::WindowText : QPalette::Shadow));
    QRectF bar(handle);
    const double across = std::min(bar.width(), bar.height());
    const double inset = (across - ScrollHandleWidth) / 2;
    bar.adjust(inset, inset, -inset, -inset);
    painter.drawRoundedRect(bar, ScrollHandleWidth / 2, ScrollHandleWidth / 2);
}

} // namespace tarvelo::widgets
