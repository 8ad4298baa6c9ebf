#pragma once

#include <QDateTime>

#include <memory>

namespace tarvelo::platform {

// One calendar with its locale, time zone and week rules: takes instants apart into civil days and
// puts them together again. Movable; main thread only.
class CivilCalendar final
{
public:
    struct Day
    {
        int era = 0;
        int year = 0;  // within the era
        int month = 0; // from 1
        int day = 0;   // from 1
        bool operator==(const Day &) const = default;
    };

    // `locale` is an ICU identifier whose calendar keyword chooses the calendar.
    CivilCalendar(const QByteArray &locale, const QString &timeZone, bool gregorian);
    CivilCalendar(CivilCalendar &&) noexcept;
    CivilCalendar &operator=(CivilCalendar &&) noexcept;
    ~CivilCalendar();

    // 1 = Sunday ... 7 = Saturday.
    int firstWeekday() const;
    // A value outside 1..7 is ignored.
    void setFirstWeekday(int weekday);
    int minimumDaysInFirstWeek() const;

    Day day(const QDateTime &moment) const;
    int weekday(const QDateTime &moment) const;     // 1 = Sunday
    int weekOfMonth(const QDateTime &moment) const; // can be 0
    int daysInMonth(const QDateTime &moment) const;
    int weeksInMonth(const QDateTime &moment) const;
    // The first instant of the civil day: 00:00, or the first moment after it where a clock change
    // skips midnight.
    QDateTime startOfDay(const QDateTime &moment) const;
    QDateTime startOfMonth(const QDateTime &moment) const;
    // The same time of day, so many days or months on; a day that the month does not have becomes
    // its last.
    QDateTime addDays(const QDateTime &moment, int days) const;
    QDateTime addMonths(const QDateTime &moment, int months) const;

private:
    struct Handle;
    std::unique_ptr<Handle> m_handle;
};

} // namespace tarvelo::platform
