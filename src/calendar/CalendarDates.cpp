#include "calendar/CalendarDates.h"

#include "platform/Dates.h"

#include <QString>

namespace tarvelo::calendar {

using platform::Dates;

namespace {

// More than a day, less than the shortest month: from the first of a month it leads into the one
// before, whatever the clocks did in between.
constexpr qint64 StepBackSeconds = 100000;

QString dayPattern()
{
    return QStringLiteral("yyyy-MM-dd");
}

} // namespace

CalendarDates::CalendarDates(const platform::Dates &dates, int calendarStartDay)
    : m_dates(dates)
    , m_calendarStartDay(calendarStartDay)
    , m_calendar(dates.gregorianCalendar(calendarStartDay))
    , m_userCalendar(dates.userCalendar())
{
}

QDateTime CalendarDates::dateWithOutTime(const QDateTime &date) const
{
    return m_userCalendar.startOfDay(date.isValid() ? date : m_dates.now());
}

QDateTime CalendarDates::firstDayOfMonthContainingDate(const QDateTime &date) const
{
    return m_calendar.startOfMonth(date);
}

int CalendarDates::dayOfWeekForDate(const QDateTime &date) const
{
    return m_calendar.weekday(date);
}

int CalendarDates::weekNumberInMonthForDate(const QDateTime &date) const
{
    return m_calendar.weekOfMonth(date);
}

int CalendarDates::numberOfWeeksInMonthContainingDate(const QDateTime &date) const
{
    return m_calendar.weeksInMonth(date);
}

bool CalendarDates::dateIsInMonthShowing(const QDateTime &date) const
{
    return m_calendar.day(date).month == m_calendar.day(m_monthShowing).month;
}

bool CalendarDates::dateIsToday(const QDateTime &date) const
{
    const auto day = m_calendar.day(date);
    const auto today = m_calendar.day(m_dates.now());
    return day.day == today.day && day.month == today.month && day.year == today.year &&
           day.era == today.era;
}

QDateTime CalendarDates::nextDay(const QDateTime &date) const
{
    return m_calendar.addDays(date, 1);
}

QStringList CalendarDates::getDaysOfTheWeek() const
{
    const QStringList symbols = m_dates.shortWeekdaySymbols();
    const int first = m_userCalendar.firstWeekday();
    return symbols.mid(first - 1) + symbols.mid(0, first - 1);
}

QString CalendarDates::monthTitle(const QDateTime &date) const
{
    return m_dates.format(date, QStringLiteral("MMMM YYYY"));
}

std::strong_ordering CalendarDates::comparedWithCurrentMonth() const
{
    QDateTime reference = m_dates.now();
    const QStringList parts = m_dates.format(reference, dayPattern()).split(u'-');
    if (parts.size() == 3)
        reference =
            m_dates.parse(QStringLiteral("%1-%2-%3").arg(parts[0], parts[1]).arg(1), dayPattern());
    const QDateTime showing =
        m_dates.parse(m_dates.format(m_monthShowing, dayPattern()), dayPattern());
    return showing.toMSecsSinceEpoch() <=> reference.toMSecsSinceEpoch();
}

QDateTime CalendarDates::todayNormalised() const
{
    const QString today = m_dates.format(m_dates.now(), Dates::Style::Medium, Dates::Style::None);
    return m_dates.parse(today, Dates::Style::Medium, Dates::Style::None);
}

QDateTime CalendarDates::nextMonth() const
{
    return m_calendar.addMonths(m_monthShowing, 1);
}

QDateTime CalendarDates::previousMonth() const
{
    return firstDayOfMonthContainingDate(m_monthShowing).addSecs(-StepBackSeconds);
}

int CalendarDates::numberOfDaysInMonthShowing() const
{
    return m_userCalendar.daysInMonth(m_monthShowing);
}

void CalendarDates::setMonthShowing(const QDateTime &date)
{
    m_monthShowing = firstDayOfMonthContainingDate(date);
}

// A month whose first days lie in week 0 pushes its other days down by a row, so that week 1 stands
// under week 0. The flag stays set for good: once such a month was shown, a month that begins in
// week 1 leaves its top row empty. Wanted, so it is never cleared.
CalendarDates::GridPosition CalendarDates::gridPositionOfDate(const QDateTime &date)
{
    const int week = weekNumberInMonthForDate(date);
    int row = 0;
    if (week != 0)
        row = week - 1 + (m_justForFixing ? 1 : 0);
    else
        m_justForFixing = true;
    const int col = (dayOfWeekForDate(date) - m_userCalendar.firstWeekday() + 7) % 7;
    return {row, col};
}

} // namespace tarvelo::calendar
