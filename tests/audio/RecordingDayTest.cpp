#include "audio/RecordingDay.h"

#include "platform/Dates.h"
#include "support/FakeClock.h"
#include "support/TestCase.h"

using namespace Qt::StringLiterals;
using namespace tarvelo::audio;
using tarvelo::tests::FakeClock;

class RecordingDayTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theTimeOfTheFileIsTheDayOfTheUsersZone()
    {
        const tarvelo::platform::Dates dates(m_clock, {"en_US", u"Pacific/Auckland"_s});

        const QDateTime evening(QDate(2024, 3, 4), QTime(20, 0), Qt::UTC);

        QCOMPARE(dayOfRecording(u"/a/Audio - 20200101120000.m4a"_s, evening, dates),
                 u"2024-03-05"_s);
    }

    void aTimeThatCannotBeLeavesTheNameToTell_data()
    {
        QTest::addColumn<QDateTime>("modified");
        QTest::newRow("none") << QDateTime();
        QTest::newRow("the first there is") << QDateTime::fromSecsSinceEpoch(0);
        QTest::newRow("the future") << QDateTime(QDate(2099, 1, 1), QTime(0, 0));
    }
    void aTimeThatCannotBeLeavesTheNameToTell()
    {
        QFETCH(const QDateTime, modified);

        QCOMPARE(dayFor("en_US", "20231105101500", modified), u"2023-11-05"_s);
    }

    // The name has the year of the week, as the user's weeks are.
    void aNameFromTheDaysAroundNewYearTellsTheRightYear_data()
    {
        QTest::addColumn<QByteArray>("locale");
        QTest::addColumn<QDate>("day");
        for (const char *locale : {"en_US", "de_DE", "ar_EG", "th_TH", "fa_IR"})
            for (int offset = -5; offset <= 5; ++offset) {
                const QDate day = QDate(2023, 12, 31).addDays(offset);
                QTest::addRow("%s %s", locale, qPrintable(day.toString(Qt::ISODate)))
                    << QByteArray(locale) << day;
            }
    }
    void aNameFromTheDaysAroundNewYearTellsTheRightYear()
    {
        QFETCH(const QByteArray, locale);
        QFETCH(const QDate, day);
        const tarvelo::platform::Dates dates(m_clock, {locale, u"UTC"_s});
        const QString digits =
            dates.format(QDateTime(day, QTime(10, 15), Qt::UTC), u"YYYYMMddHHmmss"_s);

        QCOMPARE(dayOfRecording(u"/a//Audio - "_s + digits + u".m4a"_s, {}, dates),
                 day.toString(Qt::ISODate));
    }

    void aNameThatTellsNothingIsOfToday()
    {
        QCOMPARE(dayFor("en_US", "my lecture", {}), u"2024-03-05"_s);
        QCOMPARE(dayFor("en_US", "99999999999999", {}), u"2024-03-05"_s);
    }

private:
    QString dayFor(const char *locale, const char *name, const QDateTime &modified)
    {
        const tarvelo::platform::Dates dates(m_clock, {locale, u"UTC"_s});
        return dayOfRecording(u"/a//Audio - %1.m4a"_s.arg(QLatin1String(name)), modified, dates);
    }

    FakeClock m_clock;
};

QTEST_GUILESS_MAIN(RecordingDayTest)
#include "RecordingDayTest.moc"
