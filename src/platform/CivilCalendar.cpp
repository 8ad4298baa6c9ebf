#include "platform/CivilCalendar.h"

#include <QString>

#include <unicode/ucal.h>

#include <cstdint>

namespace tarvelo::platform {

namespace {

struct CloseCalendar
{
    void operator()(UCalendar *calendar) const { ucal_close(calendar); }
};
using CalendarHandle = std::unique_ptr<UCalendar, CloseCalendar>;

CalendarHandle openCalendar(const QByteArray &locale, const QString &timeZone, bool gregorian)
{
    UErrorCode status = U_ZERO_ERROR;
    CalendarHandle calendar(ucal_open(QStringView(timeZone).utf16(),
                                      static_cast<int32_t>(timeZone.size()), locale.constData(),
                                      gregorian ? UCAL_GREGORIAN : UCAL_DEFAULT, &status));
    // A day begins with its first moment: after a skipped midnight, and with the first of two.
    ucal_setAttribute(calendar.get(), UCAL_SKIPPED_WALL_TIME, UCAL_WALLTIME_NEXT_VALID);
    ucal_setAttribute(calendar.get(), UCAL_REPEATED_WALL_TIME, UCAL_WALLTIME_FIRST);
    return calendar;
}

} // namespace

struct CivilCalendar::Handle
{
    CalendarHandle calendar;

    void moveTo(const QDateTime &moment) const
    {
        UErrorCode status = U_ZERO_ERROR;
        ucal_setMillis(calendar.get(), static_cast<UDate>(moment.toMSecsSinceEpoch()), &status);
    }
    int field(UCalendarDateFields which) const
    {
        UErrorCode status = U_ZERO_ERROR;
        return ucal_get(calendar.get(), which, &status);
    }
    int fieldAt(const QDateTime &moment, UCalendarDateFields which) const
    {
        moveTo(moment);
        return field(which);
    }
    void clearTimeOfDay() const
    {
        for (const auto which : {UCAL_HOUR_OF_DAY, UCAL_MINUTE, UCAL_SECOND, UCAL_MILLISECOND})
            ucal_set(calendar.get(), which, 0);
    }
    void add(UCalendarDateFields which, int amount) const
    {
        UErrorCode status = U_ZERO_ERROR;
        ucal_add(calendar.get(), which, amount, &status);
    }
    QDateTime moment() const
    {
        UErrorCode status = U_ZERO_ERROR;
        const UDate milliseconds = ucal_getMillis(calendar.get(), &status);
        return QDateTime::fromMSecsSinceEpoch(static_cast<qint64>(milliseconds), Qt::UTC);
    }
};

CivilCalendar::CivilCalendar(const QByteArray &locale, const QString &timeZone, bool gregorian)
    : m_handle(std::make_unique<Handle>(Handle{openCalendar(locale, timeZone, gregorian)}))
{
}

CivilCalendar::CivilCalendar(CivilCalendar &&) noexcept = default;
CivilCalendar &CivilCalendar::operator=(CivilCalendar &&) noexcept = default;
CivilCalendar::~CivilCalendar() = default;

int CivilCalendar::firstWeekday() const
{
    return ucal_getAttribute(m_handle->calendar.get(), UCAL_FIRST_DAY_OF_WEEK);
}

void CivilCalendar::setFirstWeekday(int weekday)
{
    if (weekday >= UCAL_SUNDAY && weekday <= UCAL_SATURDAY)
        ucal_setAttribute(m_handle->calendar.get(), UCAL_FIRST_DAY_OF_WEEK, weekday);
}

int CivilCalendar::minimumDaysInFirstWeek() const
{
    return ucal_getAttribute(m_handle->calendar.get(), UCAL_MINIMAL_DAYS_IN_FIRST_WEEK);
}

CivilCalendar::Day CivilCalendar::day(const QDateTime &moment) const
{
    if (!moment.isValid())
        return {};
    m_handle->moveTo(moment);
    return {m_handle->field(UCAL_ERA), m_handle->field(UCAL_YEAR), m_handle->field(UCAL_MONTH) + 1,
            m_handle->field(UCAL_DATE)};
}

int CivilCalendar::weekday(const QDateTime &moment) const
{
    return moment.isValid() ? m_handle->fieldAt(moment, UCAL_DAY_OF_WEEK) : 0;
}

int CivilCalendar::weekOfMonth(const QDateTime &moment) const
{
    return moment.isValid() ? m_handle->fieldAt(moment, UCAL_WEEK_OF_MONTH) : 0;
}

int CivilCalendar::daysInMonth(const QDateTime &moment) const
{
    if (!moment.isValid())
        return 0;
    m_handle->moveTo(moment);
    UErrorCode status = U_ZERO_ERROR;
    return ucal_getLimit(m_handle->calendar.get(), UCAL_DATE, UCAL_ACTUAL_MAXIMUM, &status);
}

int CivilCalendar::weeksInMonth(const QDateTime &moment) const
{
    if (!moment.isValid())
        return 0;
    const QDateTime first = startOfMonth(moment);
    const QDateTime last = addDays(addMonths(first, 1), -1);
    return weekOfMonth(last) - weekOfMonth(first) + 1;
}

QDateTime CivilCalendar::startOfDay(const QDateTime &moment) const
{
    if (!moment.isValid())
        return {};
    m_handle->moveTo(moment);
    m_handle->clearTimeOfDay();
    return m_handle->moment();
}

QDateTime CivilCalendar::startOfMonth(const QDateTime &moment) const
{
    if (!moment.isValid())
        return {};
    m_handle->moveTo(moment);
    ucal_set(m_handle->calendar.get(), UCAL_DATE, 1);
    m_handle->clearTimeOfDay();
    return m_handle->moment();
}

QDateTime CivilCalendar::addDays(const QDateTime &moment, int days) const
{
    if (!moment.isValid())
        return {};
    m_handle->moveTo(moment);
    m_handle->add(UCAL_DATE, days);
    return m_handle->moment();
}

QDateTime CivilCalendar::addMonths(const QDateTime &moment, int months) const
{
    if (!moment.isValid())
        return {};
    m_handle->moveTo(moment);
    m_handle->add(UCAL_MONTH, months);
    return m_handle->moment();
}

} // namespace tarvelo::platform
