#include "calendar/CalendarDates.h"

#include "platform/Dates.h"
#include "platform/Region.h"
#include "support/FakeClock.h"
#include "support/TestCase.h"

#include <QSet>
#include <QTimeZone>

using tarvelo::calendar::CalendarDates;
using tarvelo::platform::CivilCalendar;
using tarvelo::platform::Dates;
using tarvelo::tests::FakeClock;

namespace {

QDateTime local(const char *zone, int year, int month, int day, int hour = 0, int minute = 0)
{
    return QDateTime(QDate(year, month, day), QTime(hour, minute), QTimeZone(QByteArray(zone)))
        .toUTC();
}

QDateTime utc(int year, int month, int day, int hour = 0)
{
    return local("UTC", year, month, day, hour);
}

} // namespace

class CalendarDatesTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private:
    FakeClock m_clock;
    std::unique_ptr<Dates> m_dates;

    CalendarDates inRegion(const char *locale, const char *zone = "UTC", int startDay = 0)
    {
        m_dates = std::make_unique<Dates>(
            m_clock, tarvelo::platform::Region{locale, QString::fromLatin1(zone)});
        return {*m_dates, startDay};
    }
    static QList<int> rowsOfMonth(CalendarDates &days)
    {
        QList<int> rows;
        for (QDateTime day = days.monthShowing(); days.dateIsInMonthShowing(day);
             day = days.nextDay(day))
            rows.append(days.gridPositionOfDate(day).row);
        return rows;
    }
    static void addRegions()
    {
        QTest::addColumn<QByteArray>("locale");
        QTest::addColumn<QByteArray>("zone");
        QTest::addColumn<int>("startDay");
        const auto row = [](const char *locale, const char *zone, int startDay) {
            QTest::addRow("%s, %s, %d", locale, zone, startDay)
                << QByteArray(locale) << QByteArray(zone) << startDay;
        };
        for (const char *locale :
             {"en_US", "en_GB", "de_DE", "ar_EG", "fa_IR", "th_TH@calendar=buddhist"}) {
            for (const char *zone : {"UTC", "Europe/Berlin", "America/New_York", "Pacific/Apia"})
                row(locale, zone, 0);
        }
        row("en_US", "UTC", 1);
        row("de_DE", "Europe/Berlin", 1);
        row("de_DE", "Pacific/Apia", 7);
    }

protected:
    void prepare() override { m_clock.set(utc(2024, 3, 5, 9)); }

private Q_SLOTS:
    void noDateWithoutTimeIsTodayAtMidnight()
    {
        const CalendarDates days = inRegion("de_DE", "Europe/Berlin");

        QCOMPARE(days.dateWithOutTime({}), local("Europe/Berlin", 2024, 3, 5));
    }

    void aDateLosesItsTimeInTheUsersZone()
    {
        const QDateTime moment = utc(2024, 3, 5, 3);

        QCOMPARE(inRegion("en_US", "America/New_York").dateWithOutTime(moment),
                 local("America/New_York", 2024, 3, 4));
        QCOMPARE(inRegion("fa_IR", "UTC").dateWithOutTime(moment), utc(2024, 3, 5));
        QCOMPARE(inRegion("th_TH", "Pacific/Apia").dateWithOutTime(moment),
                 local("Pacific/Apia", 2024, 3, 5));
    }

    void theFirstOfAMonthIsGregorianForEveryUser()
    {
        for (const char *locale : {"en_US", "fa_IR", "th_TH", "ar_EG"}) {
            const CalendarDates days = inRegion(locale);

            QCOMPARE(days.firstDayOfMonthContainingDate(utc(2024, 3, 21, 17)), utc(2024, 3, 1));
        }
    }

    void theWeekdayDoesNotDependOnTheStartDay()
    {
        QCOMPARE(inRegion("de_DE", "UTC", 0).dayOfWeekForDate(utc(2024, 3, 3)), 1);
        QCOMPARE(inRegion("de_DE", "UTC", 4).dayOfWeekForDate(utc(2024, 3, 3)), 1);
        QCOMPARE(inRegion("en_US", "UTC", 1).dayOfWeekForDate(utc(2024, 3, 2)), 7);
    }

    void theWeekNumberFollowsTheStartDayAndTheLocale()
    {
        // The 3rd of March 2024 is a Sunday.
        QCOMPARE(inRegion("en_US", "UTC", 1).weekNumberInMonthForDate(utc(2024, 3, 3)), 2);
        QCOMPARE(inRegion("en_US", "UTC", 2).weekNumberInMonthForDate(utc(2024, 3, 3)), 1);
        QCOMPARE(inRegion("de_DE", "UTC", 0).weekNumberInMonthForDate(utc(2024, 3, 3)), 0);
    }

    void aMonthSpansItsWeeks()
    {
        QCOMPARE(inRegion("en_US").numberOfWeeksInMonthContainingDate(utc(2015, 2, 14)), 4);
        QCOMPARE(inRegion("en_US").numberOfWeeksInMonthContainingDate(utc(2024, 3, 14)), 6);
    }

    void theMonthShowingIsComparedByItsNumberAlone()
    {
        CalendarDates days = inRegion("en_US");

        days.setMonthShowing(utc(2024, 3, 17, 12));

        QVERIFY(days.dateIsInMonthShowing(utc(2019, 3, 15)));
        QVERIFY(!days.dateIsInMonthShowing(utc(2024, 4, 1)));
        QCOMPARE(days.monthShowing(), utc(2024, 3, 1));
    }

    void todayIsOneDayOfOneYear()
    {
        const CalendarDates days = inRegion("en_US", "Pacific/Apia");

        QVERIFY(days.dateIsToday(local("Pacific/Apia", 2024, 3, 5, 23, 59)));
        QVERIFY(!days.dateIsToday(local("Pacific/Apia", 2024, 3, 6)));
        QVERIFY(!days.dateIsToday(local("Pacific/Apia", 2024, 4, 5)));
        QVERIFY(!days.dateIsToday(local("Pacific/Apia", 2023, 3, 5)));
    }

    void theNextDayKeepsTheTimeOverClockChanges()
    {
        const CalendarDates days = inRegion("de_DE", "Europe/Berlin");

        QCOMPARE(days.nextDay(local("Europe/Berlin", 2024, 3, 31)),
                 local("Europe/Berlin", 2024, 4, 1));
        QCOMPARE(days.nextDay(local("Europe/Berlin", 2024, 10, 27)),
                 local("Europe/Berlin", 2024, 10, 28));
    }

    void weekdaysStandInTheOrderOfTheUsersWeek_data()
    {
        QTest::addColumn<QByteArray>("locale");
        QTest::addColumn<QString>("names");
        QTest::newRow("Sunday") << QByteArray("en_US")
                                << QStringLiteral("Sun Mon Tue Wed Thu Fri Sat");
        QTest::newRow("Monday") << QByteArray("en_GB")
                                << QStringLiteral("Mon Tue Wed Thu Fri Sat Sun");
        QTest::newRow("Saturday") << QByteArray("en_AE")
                                  << QStringLiteral("Sat Sun Mon Tue Wed Thu Fri");
    }
    void weekdaysStandInTheOrderOfTheUsersWeek()
    {
        QFETCH(QByteArray, locale);
        QFETCH(QString, names);

        // The start day of the view has no say in it.
        QCOMPARE(inRegion(locale.constData(), "UTC", 4).getDaysOfTheWeek().join(u' '), names);
    }

    void theTitleShowsTheYearOfTheWeek()
    {
        QCOMPARE(inRegion("en_GB").monthTitle(utc(2022, 1, 1)), QStringLiteral("January 2021"));
        QCOMPARE(inRegion("en_GB").monthTitle(utc(2024, 3, 1)), QStringLiteral("March 2024"));
        QCOMPARE(inRegion("en_US").monthTitle(utc(2022, 1, 1)), QStringLiteral("January 2022"));
    }

    void theMonthShowingIsComparedWithThePresentOne_data()
    {
        QTest::addColumn<QByteArray>("locale");
        for (const char *locale : {"en_US", "de_DE", "ar_EG", "th_TH"})
            QTest::newRow(locale) << QByteArray(locale);
    }
    void theMonthShowingIsComparedWithThePresentOne()
    {
        QFETCH(QByteArray, locale);
        CalendarDates days = inRegion(locale.constData(), "America/New_York");

        days.setMonthShowing(m_clock.now());
        QVERIFY(days.comparedWithCurrentMonth() == 0);
        days.setMonthShowing(days.previousMonth());
        QVERIFY(days.comparedWithCurrentMonth() < 0);
        days.setMonthShowing(local("America/New_York", 2024, 4, 15));
        QVERIFY(days.comparedWithCurrentMonth() > 0);
    }

    void whereMonthsAreNotGregorianThePresentOneNeverMatches()
    {
        CalendarDates days = inRegion("fa_IR");

        days.setMonthShowing(m_clock.now());

        // The reference is the first of the Persian month, 20 February.
        QVERIFY(days.comparedWithCurrentMonth() > 0);
    }

    void todayIsNormalisedByWritingAndReading()
    {
        for (const char *locale : {"en_US", "de_DE", "ar_EG", "fa_IR", "th_TH"})
            QCOMPARE(inRegion(locale, "Europe/Berlin").todayNormalised(),
                     local("Europe/Berlin", 2024, 3, 5));
    }

    void monthsAreSteppedForwardAndBack_data()
    {
        QTest::addColumn<QByteArray>("zone");
        for (const char *zone : {"UTC", "Europe/Berlin", "America/New_York", "Pacific/Apia"})
            QTest::newRow(zone) << QByteArray(zone);
    }
    void monthsAreSteppedForwardAndBack()
    {
        QFETCH(QByteArray, zone);
        CalendarDates days = inRegion("en_US", zone.constData());
        const char *name = zone.constData();

        for (int year = 2010; year <= 2025; ++year) {
            for (int month = 1; month <= 12; ++month) {
                const QDateTime first = local(name, year, month, 1);
                days.setMonthShowing(first);
                QCOMPARE(days.nextMonth(),
                         QDateTime(QDate(year, month, 1).addMonths(1), QTime(0, 0), QTimeZone(zone))
                             .toUTC());
                days.setMonthShowing(days.previousMonth());
                QCOMPARE(days.monthShowing(), QDateTime(QDate(year, month, 1).addMonths(-1),
                                                        QTime(0, 0), QTimeZone(zone))
                                                  .toUTC());
            }
        }
    }

    void steppingBackFromMarchLandsInFebruary()
    {
        CalendarDates days = inRegion("en_US");
        days.setMonthShowing(utc(2024, 3, 1));

        QCOMPARE(days.previousMonth(), utc(2024, 3, 1).addSecs(-100000));
        days.setMonthShowing(days.previousMonth());

        QCOMPARE(days.monthShowing(), utc(2024, 2, 1));
    }

    void theDaysOfAMonthAreTheUsersCalendars()
    {
        CalendarDates gregorian = inRegion("en_US");
        gregorian.setMonthShowing(utc(2024, 2, 1));
        QCOMPARE(gregorian.numberOfDaysInMonthShowing(), 29);

        CalendarDates persian = inRegion("fa_IR");
        persian.setMonthShowing(utc(2024, 2, 1));
        QCOMPARE(persian.numberOfDaysInMonthShowing(), 30);
    }

    void columnsFollowTheUsersWeekAndRowsTheViews()
    {
        CalendarDates days = inRegion("de_DE", "UTC", 1);
        days.setMonthShowing(utc(2024, 9, 1));

        // A Sunday: last of the user's week, first of the view's.
        QCOMPARE(days.gridPositionOfDate(utc(2024, 9, 8)).col, 6);
        QCOMPARE(days.gridPositionOfDate(utc(2024, 9, 9)).col, 0);
        QCOMPARE(days.gridPositionOfDate(utc(2024, 9, 8)).row,
                 days.gridPositionOfDate(utc(2024, 9, 9)).row);
    }

    void aMonthThatBeginsInWeekNoughtMovesDownForGood()
    {
        // The 1st of October 2022 is a Saturday, in Germany a day of week 0.
        CalendarDates days = inRegion("de_DE");
        days.setMonthShowing(utc(2022, 8, 1));
        QCOMPARE(rowsOfMonth(days).first(), 0);
        QVERIFY(!days.justForFixing());

        days.setMonthShowing(utc(2022, 10, 1));
        const QList<int> october = rowsOfMonth(days);
        QCOMPARE(october.mid(0, 4), (QList<int>{0, 0, 1, 1}));
        QVERIFY(days.justForFixing());

        days.setMonthShowing(utc(2022, 8, 1));
        const QList<int> august = rowsOfMonth(days);
        QCOMPARE(august.first(), 1);
        QCOMPARE(august.last(), 5);
        QVERIFY(days.justForFixing());

        days.setMonthShowing(utc(2022, 10, 1));
        QCOMPARE(rowsOfMonth(days), october);
    }

    void aSaturdayTheFirstAloneStandsAboveAWeekOfSundays()
    {
        // Four days make a first week, and the week begins on Sunday.
        CalendarDates days = inRegion("de_DE", "UTC", 1);
        days.setMonthShowing(utc(2022, 10, 1));

        QCOMPARE(rowsOfMonth(days).mid(0, 3), (QList<int>{0, 1, 1}));
    }

    void everyDayOfEveryMonthHasACellOfItsOwn_data() { addRegions(); }
    void everyDayOfEveryMonthHasACellOfItsOwn()
    {
        QFETCH(QByteArray, locale);
        QFETCH(QByteArray, zone);
        QFETCH(int, startDay);
        CalendarDates days = inRegion(locale.constData(), zone.constData(), startDay);
        days.setMonthShowing(local(zone.constData(), 1970, 1, 15));

        for (int month = 0; month < 131 * 12; ++month) {
            QSet<int> cells;
            int count = 0;
            for (QDateTime day = days.monthShowing(); days.dateIsInMonthShowing(day);
                 day = days.nextDay(day), ++count) {
                const auto position = days.gridPositionOfDate(day);
                QVERIFY(position.row >= 0 && position.row < 6);
                QVERIFY(position.col >= 0 && position.col < 7);
                cells.insert(position.row * 7 + position.col);
            }
            QVERIFY(count >= 28 && count <= 31);
            QCOMPARE(cells.size(), count);
            days.setMonthShowing(days.nextMonth());
        }
        QCOMPARE(days.monthShowing(), local(zone.constData(), 2101, 1, 1));
    }

    void theMonthThatLostADayShowsTheOthers()
    {
        CalendarDates days = inRegion("en_US", "Pacific/Apia");
        days.setMonthShowing(local("Pacific/Apia", 2011, 12, 5));

        QCOMPARE(rowsOfMonth(days).size(), 30);
    }

    void theStartDayIsKeptAsGiven()
    {
        CalendarDates days = inRegion("de_DE", "UTC", 0);

        QCOMPARE(days.calendarStartDay(), 0);
        days.setCalendarStartDay(5);
        QCOMPARE(days.calendarStartDay(), 5);
    }
};

QTEST_GUILESS_MAIN(CalendarDatesTest)
#include "CalendarDatesTest.moc"
