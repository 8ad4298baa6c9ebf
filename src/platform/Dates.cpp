#include "platform/Dates.h"

#include <QHash>

#include <unicode/udat.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <utility>

namespace tarvelo::platform {

namespace {

struct CloseFormatter
{
    void operator()(UDateFormat *formatter) const { udat_close(formatter); }
};
using Formatter = std::shared_ptr<UDateFormat>;

const QString DayPattern = QStringLiteral("yyyy-MM-dd");

UDateFormatStyle styleOf(Dates::Style style)
{
    switch (style) {
    case Dates::Style::None:
        return UDAT_NONE;
    case Dates::Style::Short:
        return UDAT_SHORT;
    case Dates::Style::Medium:
        return UDAT_MEDIUM;
    case Dates::Style::Full:
        return UDAT_FULL;
    }
    return UDAT_NONE;
}

Formatter openFormatter(UDateFormatStyle time, UDateFormatStyle date, const QByteArray &locale,
                        const QString &timeZone, const QString &pattern)
{
    UErrorCode status = U_ZERO_ERROR;
    return {udat_open(time, date, locale.constData(), QStringView(timeZone).utf16(),
                      static_cast<int32_t>(timeZone.size()), QStringView(pattern).utf16(),
                      static_cast<int32_t>(pattern.size()), &status),
            CloseFormatter()};
}

QString textOf(UDateFormat *formatter, UDate moment)
{
    std::array<UChar, 256> buffer{};
    UErrorCode status = U_ZERO_ERROR;
    const int32_t length = udat_format(formatter, moment, buffer.data(),
                                       static_cast<int32_t>(buffer.size()), nullptr, &status);
    return U_SUCCESS(status) ? QStringView(buffer.data(), length).toString() : QString();
}

QString format(const Formatter &formatter, const QDateTime &moment)
{
    if (!moment.isValid() || !formatter)
        return {};
    return textOf(formatter.get(), static_cast<UDate>(moment.toMSecsSinceEpoch()));
}

// Only a text that is used up to its end counts as read.
bool read(UDateFormat *formatter, const QString &text, bool lenient, UDate *moment)
{
    udat_setLenient(formatter, lenient ? 1 : 0);
    int32_t position = 0;
    UErrorCode status = U_ZERO_ERROR;
    *moment = udat_parse(formatter, QStringView(text).utf16(), static_cast<int32_t>(text.size()),
                         &position, &status);
    return U_SUCCESS(status) && position == text.size();
}

// The numbers in a text, in Latin digits and without leading zeros.
QStringList numbersIn(const QString &text)
{
    QStringList numbers;
    bool inNumber = false;
    for (const QChar character : text) {
        if (character.isDigit() && !inNumber)
            numbers.append(QString());
        inNumber = character.isDigit();
        const bool leadingZero = inNumber && numbers.last().isEmpty() && !character.digitValue();
        if (inNumber && !leadingZero)
            numbers.last().append(QString::number(character.digitValue()));
    }
    return numbers;
}

// The strict reading refuses a day written with one digit where the pattern has two, and a day that
// has no midnight. A lenient one is taken as well when it names the same numbers, which the 31st of
// February, read leniently, does not.
QDateTime parse(const Formatter &formatter, const QString &text)
{
    if (!formatter || text.isEmpty())
        return {};
    UDate moment = 0;
    if (read(formatter.get(), text, false, &moment) ||
        (read(formatter.get(), text, true, &moment) &&
         numbersIn(textOf(formatter.get(), moment)) == numbersIn(text)))
        return QDateTime::fromMSecsSinceEpoch(static_cast<qint64>(moment), Qt::UTC);
    return {};
}

QStringList weekdaySymbols(UDateFormat *formatter, UDateFormatSymbolType width)
{
    QStringList symbols;
    // Their indexes are those of the weekdays: 1 to 7.
    for (int32_t weekday = 1; weekday <= 7; ++weekday) {
        std::array<UChar, 128> buffer{};
        UErrorCode status = U_ZERO_ERROR;
        const int32_t length = udat_getSymbols(formatter, width, weekday, buffer.data(),
                                               static_cast<int32_t>(buffer.size()), &status);
        symbols.append(U_SUCCESS(status) ? QStringView(buffer.data(), length).toString()
                                         : QString());
    }
    return symbols;
}

bool allBeginAlike(const QStringList &symbols)
{
    return std::all_of(symbols.cbegin(), symbols.cend(), [&symbols](const QString &symbol) {
        return symbol.left(1) == symbols.constFirst().left(1);
    });
}

} // namespace

struct Dates::Formatters
{
    QHash<QString, Formatter> byPattern;
    QHash<QString, Formatter> fixedByPattern;
    QHash<int, Formatter> byStyles;

    static Formatter ofPattern(QHash<QString, Formatter> &known, const QByteArray &locale,
                               const QString &timeZone, const QString &pattern)
    {
        Formatter &formatter = known[pattern];
        if (!formatter)
            formatter = openFormatter(UDAT_PATTERN, UDAT_PATTERN, locale, timeZone, pattern);
        return formatter;
    }
    Formatter ofPattern(const Region &region, const QString &pattern)
    {
        return ofPattern(byPattern, region.locale, region.timeZone, pattern);
    }
    Formatter ofStyles(const Region &region, Style date, Style time)
    {
        Formatter &formatter = byStyles[static_cast<int>(date) * 16 + static_cast<int>(time)];
        if (!formatter)
            formatter =
                openFormatter(styleOf(time), styleOf(date), region.locale, region.timeZone, {});
        return formatter;
    }
};

Dates::Dates(Clock &clock, Region region)
    : m_clock(clock)
    , m_region(std::move(region))
    , m_formatters(std::make_unique<Formatters>())
{
}

Dates::~Dates() = default;

CivilCalendar Dates::userCalendar() const
{
    return {m_region.locale, m_region.timeZone, false};
}

CivilCalendar Dates::gregorianCalendar(int firstWeekday) const
{
    CivilCalendar calendar(m_region.locale, m_region.timeZone, true);
    calendar.setFirstWeekday(firstWeekday);
    return calendar;
}

QString Dates::format(const QDateTime &moment, const QString &pattern) const
{
    return platform::format(m_formatters->ofPattern(m_region, pattern), moment);
}

QString Dates::formatFixed(const QDateTime &moment, const QString &pattern) const
{
    return platform::format(Formatters::ofPattern(m_formatters->fixedByPattern, FixedLocale,
                                                  m_region.timeZone, pattern),
                            moment);
}

QString Dates::format(const QDateTime &moment, Style date, Style time) const
{
    return platform::format(m_formatters->ofStyles(m_region, date, time), moment);
}

QDateTime Dates::parse(const QString &text, const QString &pattern) const
{
    return platform::parse(m_formatters->ofPattern(m_region, pattern), text);
}

QDateTime Dates::parse(const QString &text, Style date, Style time) const
{
    return platform::parse(m_formatters->ofStyles(m_region, date, time), text);
}

bool Dates::isSameDay(const QDateTime &one, const QDateTime &other) const
{
    return format(one, Style::Short, Style::None) == format(other, Style::Short, Style::None);
}

QString Dates::storedDay(const QDateTime &moment) const
{
    return format(moment, DayPattern);
}

QString Dates::askedDay(const QDateTime &moment) const
{
    return formatFixed(moment, DayPattern);
}

QDateTime Dates::readStoredDay(const QString &day) const
{
    return parse(day, DayPattern);
}

QStringList Dates::shortWeekdaySymbols() const
{
    const Formatter formatter = m_formatters->ofStyles(m_region, Style::Short, Style::None);
    QStringList symbols;
    // Arabic and Chinese short names all begin with the same letter, which tells no day from
    // another where only first letters are shown: such languages give their shorter names.
    for (const auto width : {UDAT_SHORT_WEEKDAYS, UDAT_SHORTER_WEEKDAYS, UDAT_NARROW_WEEKDAYS}) {
        symbols = weekdaySymbols(formatter.get(), width);
        if (!allBeginAlike(symbols))
            break;
    }
    return symbols;
}

} // namespace tarvelo::platform
