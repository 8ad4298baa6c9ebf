#include "calendar/CKCalendarView.h"

#include "calendar/DateButton.h"
#include "platform/Frames.h"
#include "widgets/CustomButton.h"
#include "widgets/GradientView.h"
#include "widgets/ImageView.h"

#include <QDateTime>
#include <QLabel>
#include <QRectF>

#include <compare>
#include <cstddef>

namespace tarvelo::calendar {

using platform::setFrame;

namespace {

constexpr double TitleHeight = 65;
constexpr double HeaderHeight = 51;
// Where the weekday letters stand, whatever the calendar's height: just above row 0.
constexpr double LettersY = 328;

// Desktops that have a version number count it like this; here there is none, and the constant says
// "new enough".
constexpr qint32 SystemVersion = 0x1080;
constexpr qint32 LastVersionWithWideCells = 4223;

} // namespace

void CKCalendarView::layoutSubviews()
{
    m_laidOutWidth = width();
    const double width = m_laidOutWidth;
    m_cellWidth = (width - 34) / 7;
    const double height = 6 * m_cellWidth + 50;
    QRectF frame = platform::frameOf(*this);
    frame.setHeight(height + 17 + TitleHeight);
    setFrame(*this, frame);

    setFrame(*m_highlight, {1, 1, width - 2, 1});
    setFrame(*m_titleLabel, {0, height - 38, width, TitleHeight});
    if (m_imgMonthBG)
        setFrame(*m_imgMonthBG, {2, height - 18, width - 4, 85});
    layoutNavigation(height);
    layoutCurrentMonthButtons();
    setFrame(*m_calendarContainer, {17, 0, width - 34, height});
    // Where it was put when it was made: from the bottom, which the container's new height moved.
    setFrame(*m_imgWeekDaysBG, m_weekDaysBGFrame);
    setFrame(*m_daysHeader, {0, 0, width - 34, HeaderHeight});
    layoutWeekdayLetters();
    removeDayCells();
    placeDayCells();
}

void CKCalendarView::layoutNavigation(double height)
{
    const double width = m_laidOutWidth;
    setFrame(*m_prevButton, {100, height + 5, 10, 20});
    setFrame(*m_nextButton, {width - 100, height + 5, 10, 20});
    setFrame(*m_proceedToCurrentMonthButton, {105, height - 1, 32, 32});
    setFrame(*m_backToCurrentMonthButton, {width - 130, height - 1, 32, 32});
}

void CKCalendarView::layoutCurrentMonthButtons()
{
    const auto order = m_days.comparedWithCurrentMonth();
    m_proceedToCurrentMonthButton->setVisible(std::is_lt(order));
    m_backToCurrentMonthButton->setVisible(std::is_gt(order));
}

void CKCalendarView::layoutWeekdayLetters()
{
    double x = -2;
    for (QLabel *letter : m_dayOfWeekLabels) {
        setFrame(*letter, {x, LettersY, m_cellWidth, HeaderHeight});
        x += m_cellWidth;
    }
}

// A cell stays a child of the container all its life, and is in the view when it shows: taking the
// cell that has the focus or the mouse out for the time of a layout would lose both.
void CKCalendarView::removeDayCells()
{
    m_cellsInView = 0;
}

void CKCalendarView::placeDayCells()
{
    QDateTime day = firstDayOfMonthContainingDate(monthShowing());
    for (; dateIsInMonthShowing(day) && m_cellsInView < CellCount; day = nextDay(day))
        addDayCell(m_cellsInView, day);
    hideRemovedDayCells();
}

void CKCalendarView::addDayCell(int index, const QDateTime &day)
{
    DateButton *cell = m_dateButtons.at(static_cast<size_t>(index));
    cell->setDate(day);
    setFrame(*cell, calculateDayCellFrame(day));
    // Over the weekday letters, which reach into the first row and would keep the mouse from it.
    cell->raise();
    cell->show();
    cell->setMouseReady();
    cell->update();
    ++m_cellsInView;
}

void CKCalendarView::hideRemovedDayCells()
{
    for (int index = CellCount - 1; index >= m_cellsInView; --index) {
        DateButton *cell = m_dateButtons.at(static_cast<size_t>(index));
        if (cell->hasFocus() && m_cellsInView > 0)
            m_dateButtons.at(static_cast<size_t>(m_cellsInView - 1))->setFocus(Qt::TabFocusReason);
        cell->hide();
    }
}

QRectF CKCalendarView::calculateDayCellFrame(const QDateTime &date)
{
    const auto [row, col] = m_days.gridPositionOfDate(date);
    const double headerY = 0;
    m_version = SystemVersion;
    if (m_version > LastVersionWithWideCells)
        return {m_cellWidth * col + 3, 297 - (row * m_cellWidth + headerY), m_cellWidth - 8,
                m_cellWidth - 8};
    return {m_cellWidth * col + 1, 277 - (row * m_cellWidth + headerY), m_cellWidth, m_cellWidth};
}

// The height is this view's own doing; only another width moves anything.
void CKCalendarView::resizeEvent(QResizeEvent *)
{
    if (width() != m_laidOutWidth)
        layoutSubviews();
}

} // namespace tarvelo::calendar
