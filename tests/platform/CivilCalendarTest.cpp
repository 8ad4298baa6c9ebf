#include "platform/CivilCalendar.h"

#include "support/TestCase.h"

#include <QTimeZone>

using tarvelo::platform::CivilCalendar;

namespace {

QDateTime at(const char *isoText)
{
    return QDateTime::fromString(QString::fromLatin1(isoText), Qt::ISODateWithMs);
}

// The clock on the wall in `zone`, as an instant.
QDateTime local(const char *zone, int year, int month, int day, int hour = 0, int minute = 0)
{
    return QDateTime(QDate(year, month, day), QTime(hour, minute), QTimeZone(QByteArray(zone)))
        .toUTC();
}

CivilCalendar gregorian(const char *locale, const char *zone)
{
    return {locale, QString::fromLatin1(zone), true};
}

CivilCalendar users(const char *locale, const char *zone)
{
    return {locale, QString::fromLatin1(zone), false};
}

} // namespace

class CivilCalendarTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aLocaleHasItsOwnWeekRules_data()
    {
        QTest::addColumn<QByteArray>("locale");
        QTest::addColumn<int>("firstWeekday");
        QTest::addColumn<int>("minimumDays");
        QTest::newRow("en_US") << QByteArray("en_US") << 1 << 1;
        QTest::newRow("en_GB") << QByteArray("en_GB") << 2 << 4;
        QTest::newRow("de_DE") << QByteArray("de_DE") << 2 << 4;
        QTest::newRow("ar_EG") << QByteArray("ar_EG") << 7 << 1;
        QTest::newRow("fa_IR") << QByteArray("fa_IR") << 7 << 1;
        QTest::newRow("th_TH") << QByteArray("th_TH") << 1 << 1;
    }
    void aLocaleHasItsOwnWeekRules()
    {
        QFETCH(QByteArray, locale);
        QFETCH(int, firstWeekday);
        QFETCH(int, minimumDays);

        const CivilCalendar calendar(locale, QStringLiteral("UTC"), false);

        QCOMPARE(calendar.firstWeekday(), firstWeekday);
        QCOMPARE(calendar.minimumDaysInFirstWeek(), minimumDays);
    }

    void aFirstWeekdayThatIsNoWeekdayIsIgnored()
    {
        CivilCalendar calendar = gregorian("de_DE", "UTC");

        for (const int none : {0, 8, -1}) {
            calendar.setFirstWeekday(none);

            QCOMPARE(calendar.firstWeekday(), 2);
        }
        calendar.setFirstWeekday(7);
        QCOMPARE(calendar.firstWeekday(), 7);
    }

    void aDayIsTakenApartInTheCalendarAndTheZone()
    {
        const QDateTime moment = at("2024-03-05T23:30:00Z");

        QCOMPARE(gregorian("en_US", "UTC").day(moment), (CivilCalendar::Day{1, 2024, 3, 5}));
        QCOMPARE(gregorian("de_DE", "Europe/Berlin").day(moment),
                 (CivilCalendar::Day{1, 2024, 3, 6}));
        QCOMPARE(users("th_TH", "UTC").day(moment).year, 2567);
        QCOMPARE(users("fa_IR", "UTC").day(moment), (CivilCalendar::Day{0, 1402, 12, 15}));
        QCOMPARE(gregorian("fa_IR", "UTC").day(moment).year, 2024);
    }

    void theEraTellsYearsBeforeTheFirstOneApart()
    {
        const CivilCalendar calendar = gregorian("en_US", "UTC");

        QVERIFY(calendar.day(at("2024-03-05T00:00:00Z")).era !=
                calendar.day(QDateTime(QDate(-44, 3, 15), QTime(12, 0), Qt::UTC)).era);
    }

    void theWeekdayDoesNotDependOnTheFirstWeekday()
    {
        CivilCalendar calendar = gregorian("en_US", "America/New_York");
        const QDateTime tuesday = local("America/New_York", 2024, 3, 5, 23, 59);

        for (int first = 1; first <= 7; ++first) {
            calendar.setFirstWeekday(first);

            QCOMPARE(calendar.weekday(tuesday), 3);
        }
    }

    void theWeekOfMonthFollowsTheRulesOfTheLocale()
    {
        const QDateTime saturdayTheFirst = at("2022-10-01T12:00:00Z");
        const QDateTime sundayTheSecond = at("2022-10-02T12:00:00Z");
        const QDateTime mondayTheThird = at("2022-10-03T12:00:00Z");

        QCOMPARE(gregorian("en_US", "UTC").weekOfMonth(saturdayTheFirst), 1);
        QCOMPARE(gregorian("en_US", "UTC").weekOfMonth(sundayTheSecond), 2);
        QCOMPARE(gregorian("de_DE", "UTC").weekOfMonth(saturdayTheFirst), 0);
        QCOMPARE(gregorian("de_DE", "UTC").weekOfMonth(sundayTheSecond), 0);
        QCOMPARE(gregorian("de_DE", "UTC").weekOfMonth(mondayTheThird), 1);
    }

    void aMonthSpansItsDaysAndWeeks()
    {
        const CivilCalendar calendar = gregorian("en_US", "UTC");

        QCOMPARE(calendar.daysInMonth(at("2024-02-10T00:00:00Z")), 29);
        QCOMPARE(calendar.daysInMonth(at("2023-02-10T00:00:00Z")), 28);
        QCOMPARE(calendar.weeksInMonth(at("2015-02-10T00:00:00Z")), 4);
        QCOMPARE(calendar.weeksInMonth(at("2024-03-10T00:00:00Z")), 6);
        QCOMPARE(gregorian("de_DE", "UTC").weeksInMonth(at("2022-10-10T00:00:00Z")), 6);
        QCOMPARE(users("fa_IR", "UTC").daysInMonth(at("2024-03-05T00:00:00Z")), 29);
    }

    void aDayStartsAtItsMidnight_data()
    {
        QTest::addColumn<QByteArray>("zone");
        for (const char *zone : {"UTC", "Europe/Berlin", "America/New_York", "Pacific/Apia"})
            QTest::newRow(zone) << QByteArray(zone);
    }
    void aDayStartsAtItsMidnight()
    {
        QFETCH(QByteArray, zone);
        const CivilCalendar calendar = users("de_DE", zone.constData());
        const QDateTime moment = local(zone.constData(), 2024, 3, 5, 17, 45);

        QCOMPARE(calendar.startOfDay(moment), local(zone.constData(), 2024, 3, 5));
        QCOMPARE(calendar.startOfMonth(moment), local(zone.constData(), 2024, 3, 1));
        QCOMPARE(calendar.startOfDay(moment).timeSpec(), Qt::UTC);
    }

    void aDayWithoutMidnightStartsAtItsFirstMoment()
    {
        const CivilCalendar calendar = gregorian("en_US", "Asia/Beirut");
        const QDateTime noon = at("2024-03-31T09:00:00Z");

        // At midnight the clocks went from 00:00 to 01:00.
        QCOMPARE(calendar.startOfDay(noon), at("2024-03-30T22:00:00Z"));
        QCOMPARE(calendar.day(calendar.startOfDay(noon)).day, 31);
    }

    void aDayWithTwoMidnightsStartsAtTheFirst()
    {
        const CivilCalendar calendar = gregorian("en_US", "America/Havana");
        const QDateTime noon = at("2023-11-05T17:00:00Z");

        // At 01:00 the clocks went back to 00:00.
        QCOMPARE(calendar.startOfDay(noon), at("2023-11-05T04:00:00Z"));
    }

    void theTimeOfDayIsKeptOverBothClockChanges_data()
    {
        QTest::addColumn<QByteArray>("zone");
        QTest::addColumn<QDate>("eve");
        QTest::newRow("Berlin spring") << QByteArray("Europe/Berlin") << QDate(2024, 3, 30);
        QTest::newRow("Berlin autumn") << QByteArray("Europe/Berlin") << QDate(2024, 10, 26);
        QTest::newRow("New York spring") << QByteArray("America/New_York") << QDate(2024, 3, 9);
        QTest::newRow("New York autumn") << QByteArray("America/New_York") << QDate(2024, 11, 2);
    }
    void theTimeOfDayIsKeptOverBothClockChanges()
    {
        QFETCH(QByteArray, zone);
        QFETCH(QDate, eve);
        const CivilCalendar calendar = gregorian("en_US", zone.constData());
        const QTimeZone timeZone(zone);

        for (const QTime time : {QTime(0, 0), QTime(9, 30)}) {
            QDateTime day = QDateTime(eve, time, timeZone).toUTC();
            for (int later = 1; later <= 2; ++later) {
                day = calendar.addDays(day, 1);

                QCOMPARE(day, QDateTime(eve.addDays(later), time, timeZone).toUTC());
            }
        }
    }

    void theDayThatApiaSkippedIsSkipped()
    {
        const CivilCalendar calendar = gregorian("en_US", "Pacific/Apia");
        const QDateTime eve = at("2011-12-29T10:00:00Z"); // 29 December 2011, 00:00

        const QDateTime next = calendar.addDays(eve, 1);

        QCOMPARE(calendar.day(eve), (CivilCalendar::Day{1, 2011, 12, 29}));
        QCOMPARE(calendar.day(next), (CivilCalendar::Day{1, 2011, 12, 31}));
        QCOMPARE(next, at("2011-12-30T10:00:00Z"));
    }

    void aMonthOnKeepsTheDayOrTakesTheLast()
    {
        const CivilCalendar calendar = gregorian("en_US", "Europe/Berlin");

        QCOMPARE(calendar.addMonths(local("Europe/Berlin", 2024, 3, 1), 1),
                 local("Europe/Berlin", 2024, 4, 1));
        QCOMPARE(calendar.addMonths(local("Europe/Berlin", 2024, 1, 31), 1),
                 local("Europe/Berlin", 2024, 2, 29));
        QCOMPARE(calendar.addMonths(local("Europe/Berlin", 2024, 12, 1), 1),
                 local("Europe/Berlin", 2025, 1, 1));
    }

    void noMomentGivesNone()
    {
        const CivilCalendar calendar = gregorian("en_US", "UTC");

        QVERIFY(!calendar.startOfDay({}).isValid());
        QVERIFY(!calendar.startOfMonth({}).isValid());
        QVERIFY(!calendar.addDays({}, 1).isValid());
        QVERIFY(!calendar.addMonths({}, 1).isValid());
        QCOMPARE(calendar.day({}), CivilCalendar::Day());
        QCOMPARE(calendar.weekday({}), 0);
        QCOMPARE(calendar.weekOfMonth({}), 0);
        QCOMPARE(calendar.daysInMonth({}), 0);
        QCOMPARE(calendar.weeksInMonth({}), 0);
    }
};

QTEST_GUILESS_MAIN(CivilCalendarTest)
#include "CivilCalendarTest.moc"
