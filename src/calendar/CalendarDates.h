#pragma once

#include "platform/CivilCalendar.h"

#include <QDateTime>
#include <QString>
#include <QStringList>

#include <compare>

namespace tarvelo::platform {
class Dates;
}

namespace tarvelo::calendar {

// The dates of one month calendar: which month it shows, and where a day stands in its grid. Two
// calendars are in play on purpose: the view's own, Gregorian with the week that the view begins
// with, says what a month is and in which week a day lies; the user's says what a day is, how the
// weekday letters are ordered, and so which column a day stands in. An invalid QDateTime is no
// date.
class CalendarDates final
{
public:
    struct GridPosition
    {
        int row;
        int col;
        bool operator==(const GridPosition &) const = default;
    };

    // `calendarStartDay` counts from 1 = Sunday; 0 leaves the locale's own first weekday. `dates`
    // must outlive this object.
    CalendarDates(const platform::Dates &dates, int calendarStartDay);

    int calendarStartDay() const { return m_calendarStartDay; }
    const QDateTime &monthShowing() const { return m_monthShowing; }
    bool justForFixing() const { return m_justForFixing; }

    // The day's first moment by the user's calendar; no date means now.
    QDateTime dateWithOutTime(const QDateTime &date) const;
    QDateTime firstDayOfMonthContainingDate(const QDateTime &date) const;
    int dayOfWeekForDate(const QDateTime &date) const; // 1 = Sunday
    // Can be 0: the days before the first week of the month.
    int weekNumberInMonthForDate(const QDateTime &date) const;
    int numberOfWeeksInMonthContainingDate(const QDateTime &date) const;
    // Compares the month numbers alone, not the years. Wanted: the layout stops by it at the
    // month's end, and nothing else may be read into it.
    bool dateIsInMonthShowing(const QDateTime &date) const;
    bool dateIsToday(const QDateTime &date) const;
    QDateTime nextDay(const QDateTime &date) const;
    // Seven short names in the order of the user's week.
    QStringList getDaysOfTheWeek() const;

    // The month's name with the year of the week, not of the calendar: a January that begins in
    // the last week of the old year carries the old year. Wanted, leave it.
    QString monthTitle(const QDateTime &date) const;
    // The month on display against the present one.
    std::strong_ordering comparedWithCurrentMonth() const;
    // Today's first moment, by writing the day and reading it back.
    QDateTime todayNormalised() const;
    QDateTime nextMonth() const;
    // A moment in the month before the one on display.
    QDateTime previousMonth() const;
    // By the user's calendar.
    int numberOfDaysInMonthShowing() const;

    void setCalendarStartDay(int day) { m_calendarStartDay = day; }
    // Any moment of the month.
    void setMonthShowing(const QDateTime &date);
    // Days are asked for from the first of the month on, see the definition.
    GridPosition gridPositionOfDate(const QDateTime &date);

private:
    const platform::Dates &m_dates;
    int m_calendarStartDay;
    platform::CivilCalendar m_calendar;
    platform::CivilCalendar m_userCalendar;
    QDateTime m_monthShowing;
    bool m_justForFixing = false;
};

} // namespace tarvelo::calendar
