#pragma once

#include "platform/CivilCalendar.h"
#include "platform/Clock.h"
#include "platform/Region.h"

#include <QDateTime>
#include <QString>
#include <QStringList>

#include <memory>

namespace tarvelo::platform {

// Moments as texts and texts as moments, the way the user writes them. An instant is a QDateTime,
// an absent one an invalid QDateTime. The user's calendar is the locale's own (Buddhist in
// Thailand, Persian in Iran), its numerals too, except where a fixed locale is asked for.
// Formatters are kept, since day cells format at every redraw. Main thread only.
class Dates final
{
public:
    enum class Style { None, Short, Medium, Full };

    // The locale under which days are written for the store, whatever the user's settings.
    static constexpr const char *FixedLocale = "en-US";

    // `clock` must outlive this object.
    Dates(Clock &clock, Region region);
    Dates(const Dates &) = delete;
    Dates &operator=(const Dates &) = delete;
    ~Dates();

    Clock &clock() const { return m_clock; }
    const Region &region() const { return m_region; }
    QDateTime now() const { return m_clock.now(); }

    // The calendar of the user's locale and settings, in the user's time zone.
    CivilCalendar userCalendar() const;
    // A Gregorian calendar under the user's locale. `firstWeekday` counts from 1 = Sunday; a value
    // that is no weekday, 0 among them, leaves the locale's own first weekday in place.
    CivilCalendar gregorianCalendar(int firstWeekday) const;

    // Patterns are those of Unicode's date formats: "YYYY" is the year of the week, "yyyy" the
    // calendar's year. An invalid moment gives an empty text.
    QString format(const QDateTime &moment, const QString &pattern) const;
    QString formatFixed(const QDateTime &moment, const QString &pattern) const;
    QString format(const QDateTime &moment, Style date, Style time) const;
    // Invalid when the text does not fit.
    QDateTime parse(const QString &text, const QString &pattern) const;
    QDateTime parse(const QString &text, Style date, Style time) const;

    // By the way in which the user writes days.
    bool isSameDay(const QDateTime &one, const QDateTime &other) const;

    // -- The days of lectures. A row stores the day of the user's own calendar, in its digits; a
    // day is looked for as ISO 8601 has it, whatever the user's settings. Under another calendar
    // than the Gregorian one a lecture is not found under its day: this difference is wanted as it
    // is.
    QString storedDay(const QDateTime &moment) const;
    QString askedDay(const QDateTime &moment) const;
    // Invalid for what is no day of the user's calendar.
    QDateTime readStoredDay(const QString &day) const;

    // The user's short weekday names, Sunday first: always seven.
    QStringList shortWeekdaySymbols() const;

private:
    struct Formatters;

    Clock &m_clock;
    Region m_region;
    std::unique_ptr<Formatters> m_formatters;
};

} // namespace tarvelo::platform
