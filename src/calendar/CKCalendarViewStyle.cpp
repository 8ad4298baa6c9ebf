#include "calendar/CKCalendarView.h"

#include "calendar/DateButton.h"
#include "platform/Images.h"
#include "widgets/Colours.h"
#include "widgets/CustomButton.h"
#include "widgets/Faces.h"
#include "widgets/GradientView.h"

#include <QColor>
#include <QFont>
#include <QLabel>
#include <QPalette>

#include <optional>

namespace tarvelo::calendar {

namespace {

constexpr QColor LightGrey(170, 170, 170);
constexpr QColor Brown(153, 102, 51);

// Following the desktop's palette, not fixed to what it is now.
void setLabelColor(QLabel &label)
{
    label.setPalette(QPalette());
}

} // namespace

void CKCalendarView::setDefaultStyle()
{
    setLabelColor(*m_titleLabel);
    setTitleFont(widgets::fixedFace(18));
    setDayOfWeekFont(widgets::fixedFace(15));
    for (QLabel *letter : m_dayOfWeekLabels)
        setLabelColor(*letter);
    setDateFont(widgets::fixedFace(14));
    setDateTextColor(palette().color(QPalette::WindowText));
    setSelectedDateTextColor(palette().color(QPalette::Disabled, QPalette::WindowText));
    setSelectedDateBackgroundColor(LightGrey);
    setCurrentDateTextColor(Qt::white);
    setCurrentDateBackgroundColor(LightGrey);
}

QFont CKCalendarView::titleFont() const
{
    return m_titleLabel->font();
}

void CKCalendarView::setTitleFont(const QFont &font)
{
    m_titleLabel->setFont(font);
}

QColor CKCalendarView::titleColor() const
{
    return m_titleLabel->palette().color(QPalette::WindowText);
}

void CKCalendarView::setTitleColor(const QColor &color)
{
    widgets::setColour(*m_titleLabel, QPalette::WindowText, color);
}

void CKCalendarView::setButtonColor(const QColor &color)
{
    m_prevButton->setImage(imageNamedWithColor(QStringLiteral("arrowleft"), color));
    m_nextButton->setImage(imageNamedWithColor(QStringLiteral("arrowright"), color));
}

platform::Image CKCalendarView::imageNamedWithColor(const QString &name, const QColor &)
{
    return platform::imageNamed(name);
}

void CKCalendarView::setInnerBorderColor(const QColor &color)
{
    widgets::Layer layer = m_calendarContainer->layer();
    layer.borderColor = color;
    m_calendarContainer->setLayer(layer);
}

std::optional<QFont> CKCalendarView::dayOfWeekFont() const
{
    if (m_dayOfWeekLabels.isEmpty())
        return std::nullopt;
    return m_dayOfWeekLabels.last()->font();
}

void CKCalendarView::setDayOfWeekFont(const QFont &font)
{
    for (QLabel *letter : m_dayOfWeekLabels)
        letter->setFont(font);
}

QColor CKCalendarView::dayOfWeekTextColor() const
{
    return m_dayOfWeekLabels.isEmpty()
               ? QColor()
               : m_dayOfWeekLabels.last()->palette().color(QPalette::WindowText);
}

void CKCalendarView::setDayOfWeekTextColor(const QColor &color)
{
    for (QLabel *letter : m_dayOfWeekLabels)
        widgets::setColour(*letter, QPalette::WindowText, color);
}

void CKCalendarView::setDayOfWeekBottomColorTopColor(const QColor &bottomColor,
                                                     const QColor &topColor)
{
    m_daysHeader->setColors({topColor, bottomColor});
}

QFont CKCalendarView::dateFont() const
{
    return m_dateButtons.back()->font();
}

void CKCalendarView::setDateFont(const QFont &font)
{
    for (DateButton *cell : m_dateButtons)
        cell->setFont(font);
}

QColor CKCalendarView::dateTextColor() const
{
    return palette().color(QPalette::WindowText);
}

QColor CKCalendarView::dateBackgroundColor() const
{
    return Brown;
}

QColor CKCalendarView::dateBorderColor() const
{
    return Qt::black;
}

std::optional<QColor> CKCalendarView::getCGColorFromNSColor(const QColor &color)
{
    return widgets::GradientView::getCGColorFromNSColor(color);
}

} // namespace tarvelo::calendar
