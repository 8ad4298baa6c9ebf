#include "platform/Dates.h"

#include "support/FakeClock.h"
#include "support/TestCase.h"

#include <QSet>

using tarvelo::platform::Dates;
using tarvelo::tests::FakeClock;

namespace {

QDateTime at(const char *isoText)
{
    return QDateTime::fromString(QString::fromLatin1(isoText), Qt::ISODateWithMs);
}

} // namespace

class DatesTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private:
    FakeClock m_clock;

    Dates dates(const char *locale, const char *zone = "UTC")
    {
        return {m_clock, {locale, QString::fromLatin1(zone)}};
    }
    static void addZones()
    {
        QTest::addColumn<QByteArray>("zone");
        for (const char *zone : {"UTC", "Europe/Berlin", "America/New_York", "Pacific/Apia"})
            QTest::newRow(zone) << QByteArray(zone);
    }
    static void addLocales()
    {
        QTest::addColumn<QByteArray>("locale");
        for (const char *locale : {"en_US", "en_GB", "de_DE", "ar_EG", "fa_IR", "th_TH"})
            QTest::newRow(locale) << QByteArray(locale);
    }

private Q_SLOTS:
    void nowIsTheClocksMoment() { QCOMPARE(dates("en_US").now(), m_clock.now()); }

    void aDayIsWrittenInTheUsersCalendarAndNumerals_data()
    {
        QTest::addColumn<QByteArray>("locale");
        QTest::addColumn<QString>("text");
        QTest::newRow("en_US") << QByteArray("en_US") << QStringLiteral("2024-03-05");
        QTest::newRow("en_GB") << QByteArray("en_GB") << QStringLiteral("2024-03-05");
        QTest::newRow("de_DE") << QByteArray("de_DE") << QStringLiteral("2024-03-05");
        QTest::newRow("ar_EG") << QByteArray("ar_EG") << QStringLiteral("٢٠٢٤-٠٣-٠٥");
        QTest::newRow("fa_IR") << QByteArray("fa_IR") << QStringLiteral("۱۴۰۲-۱۲-۱۵");
        QTest::newRow("th_TH") << QByteArray("th_TH") << QStringLiteral("2567-03-05");
        QTest::newRow("th_TH, named")
            << QByteArray("th_TH@calendar=buddhist") << QStringLiteral("2567-03-05");
    }
    void aDayIsWrittenInTheUsersCalendarAndNumerals()
    {
        QFETCH(QByteArray, locale);
        QFETCH(QString, text);
        const Dates users = dates(locale.constData());

        QCOMPARE(users.format(at("2024-03-05T09:00:00Z"), QStringLiteral("yyyy-MM-dd")), text);
    }

    void theFixedLocaleNeverFollowsTheUser_data() { addLocales(); }
    void theFixedLocaleNeverFollowsTheUser()
    {
        QFETCH(QByteArray, locale);
        const Dates users = dates(locale.constData());

        QCOMPARE(users.formatFixed(at("2024-03-05T09:07:03Z"),
                                   QStringLiteral("yyyy-MM-dd HH:mm:ss EEEE")),
                 QStringLiteral("2024-03-05 09:07:03 Tuesday"));
    }

    void theFixedLocaleCountsDaysInTheUsersZone()
    {
        const QDateTime moment = at("2024-03-05T23:30:00Z");

        QCOMPARE(dates("en_US", "Europe/Berlin").formatFixed(moment, QStringLiteral("yyyy-MM-dd")),
                 QStringLiteral("2024-03-06"));
        QCOMPARE(
            dates("en_US", "America/New_York").formatFixed(moment, QStringLiteral("yyyy-MM-dd")),
            QStringLiteral("2024-03-05"));
    }

    void aDayLastsFromMidnightToMidnightOfTheUser_data() { addLocales(); }
    void aDayLastsFromMidnightToMidnightOfTheUser()
    {
        QFETCH(QByteArray, locale);
        const Dates users = dates(locale.constData(), "Europe/Berlin");
        const QDateTime evening = at("2024-03-05T22:30:00Z");

        QVERIFY(users.isSameDay(evening, at("2024-03-05T05:00:00Z")));
        QVERIFY(users.isSameDay(evening, evening));
        QVERIFY(!users.isSameDay(evening, at("2024-03-05T23:30:00Z")));
        QVERIFY(!users.isSameDay(evening, at("2025-03-05T22:30:00Z")));
    }

    void aDayIsStoredAsTheUserWritesItAndAskedForAsIsoDoes_data() { addLocales(); }
    void aDayIsStoredAsTheUserWritesItAndAskedForAsIsoDoes()
    {
        QFETCH(QByteArray, locale);
        const Dates users = dates(locale.constData(), "Europe/Berlin");
        const QDateTime moment = at("2024-03-05T23:30:00Z");

        QCOMPARE(users.storedDay(moment), users.format(moment, QStringLiteral("yyyy-MM-dd")));
        QCOMPARE(users.askedDay(moment), QStringLiteral("2024-03-06"));
        QCOMPARE(users.readStoredDay(users.storedDay(moment)), at("2024-03-05T23:00:00Z"));
    }

    void onlyWhereTheCalendarIsGregorianAndTheDigitsAreLatinBothAreOne()
    {
        const QDateTime moment = at("2024-03-05T09:00:00Z");

        QCOMPARE(dates("de_DE").storedDay(moment), dates("de_DE").askedDay(moment));
        QCOMPARE(dates("th_TH").storedDay(moment), QStringLiteral("2567-03-05"));
        QCOMPARE(dates("ar_EG").storedDay(moment), QStringLiteral("٢٠٢٤-٠٣-٠٥"));
        QVERIFY(!dates("de_DE").readStoredDay(QStringLiteral("2024-31-03")).isValid());
    }

    void theYearOfTheWeekIsNotTheYearAtYearEnds_data()
    {
        QTest::addColumn<QByteArray>("locale");
        QTest::addColumn<QString>("moment");
        QTest::addColumn<QString>("title");
        const auto row = [](const char *locale, const char *moment, const char *title) {
            QTest::addRow("%s %s", locale, moment)
                << QByteArray(locale) << QString::fromLatin1(moment) << QString::fromUtf8(title);
        };
        row("de_DE", "2021-01-01T00:00:00Z", "Januar 2020");
        row("de_DE", "2020-01-01T00:00:00Z", "Januar 2020");
        row("de_DE", "2024-12-30T00:00:00Z", "Dezember 2025");
        row("en_GB", "2022-01-01T00:00:00Z", "January 2021");
        row("en_US", "2022-01-01T00:00:00Z", "January 2022");
        row("en_US", "2023-12-31T00:00:00Z", "December 2024");
        row("th_TH", "2022-01-01T00:00:00Z", "มกราคม 2022");
        row("ar_EG", "2022-01-01T00:00:00Z", "يناير ٢٠٢٢");
    }
    void theYearOfTheWeekIsNotTheYearAtYearEnds()
    {
        QFETCH(QByteArray, locale);
        QFETCH(QString, moment);
        QFETCH(QString, title);

        const QString text =
            dates(locale.constData())
                .format(QDateTime::fromString(moment, Qt::ISODate), QStringLiteral("MMMM YYYY"));

        QCOMPARE(text, title);
    }

    void aPatternReadsWhatItWrote_data() { addLocales(); }
    void aPatternReadsWhatItWrote()
    {
        QFETCH(QByteArray, locale);
        const Dates users = dates(locale.constData(), "Europe/Berlin");
        const QString pattern = QStringLiteral("yyyy-MM-dd");

        const QString text = users.format(at("2024-10-27T15:00:00Z"), pattern);

        QCOMPARE(users.parse(text, pattern), at("2024-10-26T22:00:00Z"));
    }

    void aStyleReadsWhatItWroteAndDropsTheTime_data() { addLocales(); }
    void aStyleReadsWhatItWroteAndDropsTheTime()
    {
        QFETCH(QByteArray, locale);
        const Dates users = dates(locale.constData(), "America/New_York");

        const QString text =
            users.format(at("2024-03-10T15:00:00Z"), Dates::Style::Medium, Dates::Style::None);

        QCOMPARE(users.parse(text, Dates::Style::Medium, Dates::Style::None),
                 at("2024-03-10T05:00:00Z"));
    }

    void aDayIsReadBackInEveryZone_data() { addZones(); }
    void aDayIsReadBackInEveryZone()
    {
        QFETCH(QByteArray, zone);
        const Dates users = dates("en_US", zone.constData());
        const QString pattern = QStringLiteral("yyyy-MM-dd");
        QDateTime moment = at("2011-12-01T12:00:00Z");

        for (int day = 0; day < 366; ++day, moment = moment.addDays(1)) {
            const QString text = users.format(moment, pattern);
            const QDateTime start = users.parse(text, pattern);

            QCOMPARE(users.format(start, pattern), text);
            QCOMPARE(start, users.userCalendar().startOfDay(moment));
        }
    }

    void theSkippedDayOfApiaIsNeverWritten()
    {
        const Dates users = dates("en_US", "Pacific/Apia");
        const QString pattern = QStringLiteral("yyyy-MM-dd");

        QCOMPARE(users.format(at("2011-12-30T09:59:59.999Z"), pattern),
                 QStringLiteral("2011-12-29"));
        QCOMPARE(users.format(at("2011-12-30T10:00:00Z"), pattern), QStringLiteral("2011-12-31"));
    }

    void aPatternReadsOneLatinDigitAmongTheUsersOwn()
    {
        const Dates users = dates("ar_EG");

        QCOMPARE(users.parse(QStringLiteral("٢٠٢٤-٠٣-1"), QStringLiteral("yyyy-MM-dd")),
                 at("2024-03-01T00:00:00Z"));
    }

    void aTextThatDoesNotFitIsNoMoment()
    {
        const Dates users = dates("en_US");
        const QString pattern = QStringLiteral("yyyy-MM-dd");

        for (const char *text : {"", "tomorrow", "2024-03", "2024-03-05 and more", "2024-02-31"})
            QVERIFY2(!users.parse(QString::fromLatin1(text), pattern).isValid(), text);
    }

    void aDayWithoutMidnightIsReadAsItsFirstMoment()
    {
        const Dates users = dates("en_US", "Asia/Beirut");

        QCOMPARE(users.parse(QStringLiteral("2024-03-31"), QStringLiteral("yyyy-MM-dd")),
                 at("2024-03-30T22:00:00Z"));
    }

    void millisecondsAreKept()
    {
        QCOMPARE(
            dates("en_US").format(at("2024-03-05T09:07:03.045Z"), QStringLiteral("HH:mm:ss.SSS")),
            QStringLiteral("09:07:03.045"));
    }

    void noMomentIsNoText()
    {
        const Dates users = dates("en_US");

        QCOMPARE(users.format({}, QStringLiteral("d")), QString());
        QCOMPARE(users.formatFixed({}, QStringLiteral("d")), QString());
        QCOMPARE(users.format({}, Dates::Style::Short, Dates::Style::Short), QString());
    }

    void stylesAreTheUsersOwn()
    {
        const QDateTime moment = at("2024-03-05T09:07:03Z");

        QCOMPARE(dates("de_DE").format(moment, Dates::Style::Medium, Dates::Style::None),
                 QStringLiteral("05.03.2024"));
        QCOMPARE(dates("de_DE").format(moment, Dates::Style::Short, Dates::Style::None),
                 QStringLiteral("05.03.24"));
        QCOMPARE(dates("en_GB").format(moment, Dates::Style::None, Dates::Style::Short),
                 QStringLiteral("09:07"));
        QCOMPARE(dates("en_GB").format(moment, Dates::Style::Full, Dates::Style::None),
                 QStringLiteral("Tuesday, 5 March 2024"));
    }

    void theTwoCalendarsStayDistinct()
    {
        const Dates users = dates("th_TH");
        const QDateTime moment = at("2024-03-05T09:00:00Z");

        QCOMPARE(users.userCalendar().day(moment).year, 2567);
        QCOMPARE(users.gregorianCalendar(0).day(moment).year, 2024);
    }

    void theGregorianCalendarTakesAFirstWeekdayOrKeepsTheLocales()
    {
        const Dates users = dates("de_DE");

        QCOMPARE(users.gregorianCalendar(0).firstWeekday(), 2);
        QCOMPARE(users.gregorianCalendar(1).firstWeekday(), 1);
        QCOMPARE(users.userCalendar().firstWeekday(), 2);
    }

    void weekdaySymbolsBeginWithSunday()
    {
        const QStringList english = dates("en_US").shortWeekdaySymbols();
        const QStringList german = dates("de_DE").shortWeekdaySymbols();

        QCOMPARE(english, QStringLiteral("Sun Mon Tue Wed Thu Fri Sat").split(u' '));
        QCOMPARE(german.size(), 7);
        QVERIFY(german.first().startsWith(u"So"));
        QVERIFY(german.last().startsWith(u"Sa"));
    }

    void weekdaySymbolsTellTheDaysApartByTheirFirstLetter_data()
    {
        QTest::addColumn<QByteArray>("locale");
        for (const char *locale : {"ar_EG", "zh_CN", "fa_IR", "th_TH"})
            QTest::newRow(locale) << QByteArray(locale);
    }
    void weekdaySymbolsTellTheDaysApartByTheirFirstLetter()
    {
        QFETCH(QByteArray, locale);

        const QStringList symbols = dates(locale.constData()).shortWeekdaySymbols();

        QCOMPARE(symbols.size(), 7);
        QSet<QString> letters;
        for (const QString &symbol : symbols)
            letters.insert(symbol.left(1));
        QVERIFY(letters.size() > 3);
    }
};

QTEST_GUILESS_MAIN(DatesTest)
#include "DatesTest.moc"
