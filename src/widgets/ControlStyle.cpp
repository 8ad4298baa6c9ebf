#include "widgets/ControlStyle.h"

#include "platform/Images.h"
#include "widgets/ControlPainting.h"
#include "widgets/LabelText.h"
#include "widgets/Lines.h"
#include "widgets/MenuPainting.h"

#include <QAbstractItemView>
#include <QAbstractScrollArea>
#include <QApplication>
#include <QFrame>
#include <QLabel>
#include <QMenu>
#include <QPainter>
#include <QPen>
#include <QPixmap>
#include <QSizeF>
#include <QStyleOption>
#include <QStyleOptionButton>
#include <QStyleOptionComplex>
#include <QStyleOptionFrame>
#include <QStyleOptionMenuItem>
#include <QStyleOptionSlider>
#include <QWidget>

#include <algorithm>
#include <optional>

namespace tarvelo::widgets {

namespace {

// Everything stands on a grid of four points.
constexpr int Margin = 20;
constexpr int GapAcross = 8;
constexpr int GapDown = 12;
constexpr QSize SmallestButton(84, 32);
constexpr QSize RoomAroundTitle(28, 14);
constexpr int ScrollBarWidth = 12;
constexpr int ShortestScrollHandle = 28;
constexpr int ListRowHeight = 32;
// Above the first command of a menu and below the last one.
constexpr int MenuMargin = 4;

bool isDefault(const QStyleOption &option)
{
    const auto *button = qstyleoption_cast<const QStyleOptionButton *>(&option);
    return button && button->features.testFlag(QStyleOptionButton::DefaultButton);
}

bool isWithoutWords(const QStyleOption &option)
{
    const auto *button = qstyleoption_cast<const QStyleOptionButton *>(&option);
    return button && button->text.isEmpty() && button->icon.isNull();
}

// One without a title.
bool isSeparator(const QStyleOption &option)
{
    const auto *item = qstyleoption_cast<const QStyleOptionMenuItem *>(&option);
    return item && item->menuItemType == QStyleOptionMenuItem::Separator && item->text.isEmpty();
}

bool isOnAccent(const QStyleOption &option)
{
    return isDefault(option) && option.state.testFlag(QStyle::State_Enabled);
}

// A title of a colour of its own keeps it.
bool hasLightTitle(const QStyleOption &option)
{
    const QPalette &palette = option.palette;
    return isInverted(option) &&
           palette.color(QPalette::ButtonText) == palette.color(QPalette::WindowText);
}

// The corners of what scrolls stay inside of the round ones around it.
bool hasRoundFrame(const QWidget *widget)
{
    const auto *area = qobject_cast<const QAbstractScrollArea *>(widget);
    return area && area->frameShape() == QFrame::StyledPanel;
}

// A scroll bar that does not paint all of itself lies over what scrolls.
bool isSeenThrough(const QWidget *bar)
{
    return bar && !bar->testAttribute(Qt::WA_OpaquePaintEvent);
}

// In the accent of the window, also on a list that marks its rows by a pale colour of its own.
void paintRing(QPainter &painter, const QStyleOption &option, const QWidget *widget)
{
    QStyleOption ring(option);
    if (widget)
        ring.palette = widget->window()->palette();
    const bool isOnAccent =
        option.state.testFlag(QStyle::State_Selected) &&
        option.palette.color(QPalette::Highlight) == ring.palette.color(QPalette::Highlight);
    paintKeyboardRing(painter, ring, isOnAccent);
}

QRect sliderPart(const QStyleOptionSlider &option, QStyle::SubControl part)
{
    const QRect &rect = option.rect;
    if (part == QStyle::SC_SliderGroove)
        return rect;
    const int at =
        QStyle::sliderPositionFromValue(option.minimum, option.maximum, option.sliderPosition,
                                        rect.width() - SliderHandleSide, option.upsideDown);
    return {rect.left() + at, rect.top() + (rect.height() - SliderHandleSide) / 2, SliderHandleSide,
            SliderHandleSide};
}

// As large as message boxes show it, and no larger: one that is scaled would be soft.
QPixmap warningFor(const QStyle &style, const QWidget *widget)
{
    const int side = style.pixelMetric(QStyle::PM_MessageBoxIconSize, nullptr, widget);
    return platform::imageNamed(QStringLiteral("warning"))
        .pixmap(QSizeF(side, side),
                widget ? widget->devicePixelRatioF() : qApp->devicePixelRatio());
}

// There are no buttons at its ends. One that lies begins where the words do.
QRect scrollBarPart(const QStyleOptionSlider &option, QStyle::SubControl part)
{
    const bool isAcross = option.orientation == Qt::Horizontal;
    const int length = isAcross ? option.rect.width() : option.rect.height();
    const int range = std::max(1, option.maximum - option.minimum + option.pageStep);
    const int handle = std::clamp(length * option.pageStep / range,
                                  std::min(ShortestScrollHandle, length), length);
    const int at = QStyle::sliderPositionFromValue(
        option.minimum, option.maximum, option.sliderPosition, length - handle, option.upsideDown);
    const auto along = [&](int from, int to) {
        const QRect &bar = option.rect;
        if (!isAcross)
            return QRect(bar.left(), bar.top() + from, bar.width(), to - from);
        return QStyle::visualRect(option.direction, bar,
                                  {bar.left() + from, bar.top(), to - from, bar.height()});
    };
    switch (part) {
    case QStyle::SC_ScrollBarSlider:
        return along(at, at + handle);
    case QStyle::SC_ScrollBarGroove:
        return option.rect;
    case QStyle::SC_ScrollBarSubPage:
        return along(0, at);
    case QStyle::SC_ScrollBarAddPage:
        return along(at + handle, length);
    default:
        return {};
    }
}

// Those that are the same in every control of one font.
std::optional<int> lengthOf(QStyle::PixelMetric metric, const QWidget *widget)
{
    switch (metric) {
    case QStyle::PM_LayoutLeftMargin:
    case QStyle::PM_LayoutTopMargin:
    case QStyle::PM_LayoutRightMargin:
    case QStyle::PM_LayoutBottomMargin:
        return Margin;
    case QStyle::PM_LayoutHorizontalSpacing:
    case QStyle::PM_CheckBoxLabelSpacing:
    case QStyle::PM_RadioButtonLabelSpacing:
    case QStyle::PM_HeaderMargin:
        return GapAcross;
    case QStyle::PM_LayoutVerticalSpacing:
        return GapDown;
    case QStyle::PM_IndicatorWidth:
    case QStyle::PM_IndicatorHeight:
    case QStyle::PM_ExclusiveIndicatorWidth:
    case QStyle::PM_ExclusiveIndicatorHeight:
        return indicatorSide(widget ? widget->font() : QApplication::font()) +
               2 * RoomAroundIndicator;
    case QStyle::PM_SliderLength:
    case QStyle::PM_SliderThickness:
    case QStyle::PM_SliderControlThickness:
        return SliderHandleSide;
    case QStyle::PM_MenuVMargin:
        return MenuMargin;
    case QStyle::PM_ScrollBarExtent:
        return ScrollBarWidth;
    case QStyle::PM_ScrollBarSliderMin:
        return ShortestScrollHandle;
    default:
        return {};
    }
}

} // namespace

ControlStyle::ControlStyle()
    : QProxyStyle(QStringLiteral("Fusion"))
{
}

void ControlStyle::polish(QWidget *widget)
{
    QProxyStyle::polish(widget);
    if (auto *label = qobject_cast<QLabel *>(widget))
        giveRoomBelow(*label);
}

void ControlStyle::drawItemText(QPainter *painter, const QRect &rect, int flags,
                                const QPalette &palette, bool enabled, const QString &text,
                                QPalette::ColorRole textRole) const
{
    if (!isBrokenFromTheRight(text, flags))
        return QProxyStyle::drawItemText(painter, rect, flags, palette, enabled, text, textRole);
    const QPen pen = painter->pen();
    if (textRole != QPalette::NoRole)
        painter->setPen(palette.color(textRole));
    paintBrokenFromTheRight(*painter, rect, flags, text);
    painter->setPen(pen);
}

void ControlStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option,
                                 QPainter *painter, const QWidget *widget) const
{
    const auto *frame = qstyleoption_cast<const QStyleOptionFrame *>(option);
    switch (element) {
    case PE_PanelButtonCommand:
        return paintButton(*painter, *option, isDefault(*option));
    case PE_FrameFocusRect:
        if (option->state.testFlag(State_KeyboardFocusChange))
            paintRing(*painter, *option, widget);
        return;
    case PE_PanelLineEdit:
        if (frame && frame->lineWidth > 0)
            return paintField(*painter, *option);
        break;
    case PE_Frame:
        if (hasRoundFrame(widget))
            return paintField(*painter, *option);
        break;
    case PE_IndicatorCheckBox:
        return paintCheckBox(*painter, *option);
    case PE_IndicatorRadioButton:
        return paintRadioButton(*painter, *option);
    case PE_PanelMenu:
        return paintMenuPanel(*painter, *option);
    case PE_IndicatorArrowLeft:
    case PE_IndicatorArrowRight:
        if (qobject_cast<const QMenu *>(widget))
            return paintSubmenuArrow(*painter, *option, element == PE_IndicatorArrowLeft);
        break;
    default:
        break;
    }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void ControlStyle::drawControl(ControlElement element, const QStyleOption *option,
                               QPainter *painter, const QWidget *widget) const
{
    switch (element) {
    case CE_PushButton:
        drawControl(CE_PushButtonBevel, option, painter, widget);
        drawControl(CE_PushButtonLabel, option, painter, widget);
        if (option->state.testFlag(State_HasFocus) &&
            option->state.testFlag(State_KeyboardFocusChange))
            paintKeyboardRing(*painter, *option, isOnAccent(*option) && !isInverted(*option));
        return;
    case CE_PushButtonLabel:
        if (isOnAccent(*option) || hasLightTitle(*option)) {
            QStyleOptionButton label(*qstyleoption_cast<const QStyleOptionButton *>(option));
            label.palette.setBrush(QPalette::ButtonText,
                                   label.palette.brush(inkOn(*option, isOnAccent(*option))));
            return QProxyStyle::drawControl(element, &label, painter, widget);
        }
        break;
    case CE_CheckBox:
        if (isWithoutWords(*option))
            return drawBox(*option, painter, widget);
        break;
    case CE_MenuItem:
        if (isSeparator(*option))
            return paintMenuSeparator(*painter, *option);
        break;
    case CE_HeaderSection:
    case CE_HeaderEmptyArea:
        return paintHeaderSection(*painter, *option);
    default:
        break;
    }
    QProxyStyle::drawControl(element, option, painter, widget);
}

// The ring lies around the box, and leaves a point between them.
void ControlStyle::drawBox(const QStyleOption &option, QPainter *painter,
                           const QWidget *widget) const
{
    QStyleOption box(option);
    box.rect = subElementRect(SE_CheckBoxIndicator, &option, widget);
    drawPrimitive(PE_IndicatorCheckBox, &box, painter, widget);
    if (box.state.testFlag(State_HasFocus))
        drawPrimitive(PE_FrameFocusRect, &box, painter, widget);
}

void ControlStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                                      QPainter *painter, const QWidget *widget) const
{
    const auto *slider = qstyleoption_cast<const QStyleOptionSlider *>(option);
    if (slider && control == CC_Slider && slider->orientation == Qt::Horizontal)
        paintSlider(*painter, *slider, sliderPart(*slider, SC_SliderGroove),
                    sliderPart(*slider, SC_SliderHandle));
    else if (slider && control == CC_ScrollBar)
        paintScrollBar(*painter, *slider, scrollBarPart(*slider, SC_ScrollBarSlider),
                       isSeenThrough(widget));
    else
        QProxyStyle::drawComplexControl(control, option, painter, widget);
}

QRect ControlStyle::subElementRect(SubElement element, const QStyleOption *option,
                                   const QWidget *widget) const
{
    // A label asks as the frame that it is, too.
    const bool isForLayout = element == SE_LabelLayoutItem || element == SE_FrameLayoutItem;
    if (const int room = isForLayout ? roomBelow(widget) : 0; room > 0)
        return option->rect.adjusted(0, 0, 0, -room);
    return QProxyStyle::subElementRect(element, option, widget);
}

QRect ControlStyle::subControlRect(ComplexControl control, const QStyleOptionComplex *option,
                                   SubControl part, const QWidget *widget) const
{
    const auto *slider = qstyleoption_cast<const QStyleOptionSlider *>(option);
    if (slider && control == CC_ScrollBar)
        return scrollBarPart(*slider, part);
    const bool isOurs = part == SC_SliderGroove || part == SC_SliderHandle;
    if (slider && control == CC_Slider && slider->orientation == Qt::Horizontal && isOurs)
        return sliderPart(*slider, part);
    return QProxyStyle::subControlRect(control, option, part, widget);
}

QSize ControlStyle::sizeFromContents(ContentsType type, const QStyleOption *option,
                                     const QSize &contents, const QWidget *widget) const
{
    if (type == CT_PushButton)
        return (contents + RoomAroundTitle).expandedTo(SmallestButton);
    const QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
    return type == CT_ItemViewItem ? size.expandedTo(QSize(0, ListRowHeight)) : size;
}

int ControlStyle::pixelMetric(PixelMetric metric, const QStyleOption *option,
                              const QWidget *widget) const
{
    if (const auto length = lengthOf(metric, widget))
        return *length;
    if (metric == PM_ScrollView_ScrollBarOverlap)
        return isSeenThrough(widget) ? ScrollBarWidth : 0;
    if (metric == PM_DefaultFrameWidth && hasRoundFrame(widget))
        return 3;
    if (metric == PM_FocusFrameHMargin && qobject_cast<const QAbstractItemView *>(widget))
        return GapAcross - 1;
    return QProxyStyle::pixelMetric(metric, option, widget);
}

// On whole pixels of the window, for which such a drawing is made.
void ControlStyle::drawItemPixmap(QPainter *painter, const QRect &rect, int alignment,
                                  const QPixmap &pixmap) const
{
    const QSize size = pixmap.deviceIndependentSize().toSize();
    const QRect place =
        alignedRect(painter->layoutDirection(), Qt::Alignment(alignment), size, rect);
    painter->drawPixmap(onPixels(*painter, place).topLeft(), pixmap);
}

QPixmap ControlStyle::standardPixmap(StandardPixmap standard, const QStyleOption *option,
                                     const QWidget *widget) const
{
    if (standard == SP_MessageBoxWarning)
        return warningFor(*this, widget);
    return QProxyStyle::standardPixmap(standard, option, widget);
}

QIcon ControlStyle::standardIcon(StandardPixmap standard, const QStyleOption *option,
                                 const QWidget *widget) const
{
    if (standard == SP_MessageBoxWarning)
        return warningFor(*this, widget);
    return QProxyStyle::standardIcon(standard, option, widget);
}

} // namespace tarvelo::widgets
