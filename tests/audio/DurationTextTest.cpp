#include "audio/DurationText.h"

#include "support/TestCase.h"

#include <cmath>
#include <limits>

using tarvelo::audio::getDuration;
using tarvelo::audio::wholeSeconds;

class DurationTextTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aLengthHasTwoDigitHoursMinutesAndSeconds_data()
    {
        QTest::addColumn<qint32>("seconds");
        QTest::addColumn<QString>("text");
        const auto row = [](qint32 seconds, const char *text) {
            QTest::addRow("%d", seconds) << seconds << QString::fromLatin1(text);
        };
        row(0, "00:00:00");
        row(9, "00:00:09");
        row(10, "00:00:10");
        row(59, "00:00:59");
        row(60, "00:01:00");
        row(65, "00:01:05");
        row(600, "00:10:00");
        row(3599, "00:59:59");
        row(3600, "01:00:00");
        row(36000, "10:00:00");
        row(86399, "23:59:59");
    }
    void aLengthHasTwoDigitHoursMinutesAndSeconds()
    {
        QFETCH(qint32, seconds);
        QFETCH(QString, text);

        QCOMPARE(getDuration(seconds), text);
    }

    void hoursWrapAtTwentyFour()
    {
        QCOMPARE(getDuration(86400), QStringLiteral("00:00:00"));
        QCOMPARE(getDuration(25 * 3600), QStringLiteral("01:00:00"));
        QCOMPARE(getDuration(std::numeric_limits<qint32>::max()), QStringLiteral("03:14:07"));
    }

    void aLengthBelowZeroIsWrittenAsItsSecondsField()
    {
        QCOMPARE(getDuration(-5), QStringLiteral("00:00:0-5"));
        QCOMPARE(getDuration(-65), QStringLiteral("00:00:0-5"));
    }

    void digitsAreLatinInEveryLocale()
    {
        const QLocale before;
        QLocale::setDefault(QLocale(QLocale::Arabic, QLocale::Egypt));

        const QString text = getDuration(3725);

        QLocale::setDefault(before);
        QCOMPARE(text, QStringLiteral("01:02:05"));
    }

    void secondsAreCutTowardZero()
    {
        QCOMPARE(wholeSeconds(0.999), 0);
        QCOMPARE(wholeSeconds(65.999), 65);
        QCOMPARE(wholeSeconds(-1.9), -1);
    }

    void secondsThatNoNumberHoldsAreTheNearestOne()
    {
        QCOMPARE(wholeSeconds(1e12), std::numeric_limits<qint32>::max());
        QCOMPARE(wholeSeconds(-1e12), std::numeric_limits<qint32>::min());
        QCOMPARE(wholeSeconds(std::nan("")), 0);
    }
};

QTEST_GUILESS_MAIN(DurationTextTest)
#include "DurationTextTest.moc"
