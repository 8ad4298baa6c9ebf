#include "app/DateHeader.h"
#include "platform/Dates.h"

#include "support/FakeClock.h"
#include "support/TestCase.h"

#include <QLabel>
#include <QTextBlock>
#include <QTextDocument>

using tarvelo::app::buildRankString;
using tarvelo::app::DateHeader;
using tarvelo::platform::Dates;
using tarvelo::tests::FakeClock;

namespace {

QDateTime day(const char *iso)
{
    return QDateTime(QDate::fromString(QLatin1String(iso), Qt::ISODate), QTime(12, 0), Qt::UTC);
}

DateHeader headerOf(const char *iso, const char *locale = "en_US")
{
    FakeClock clock;
    const Dates dates(clock, {locale, QStringLiteral("UTC")});
    return DateHeader::of(day(iso), dates);
}

// The positions of the letters that are drawn 18 points high.
QList<int> smallLettersOf(const QLabel &label)
{
    QTextDocument document;
    document.setHtml(label.text());
    QList<int> positions;
    const QTextBlock block = document.begin();
    for (auto it = block.begin(); !it.atEnd(); ++it) {
        const QTextFragment fragment = it.fragment();
        if (fragment.charFormat().property(QTextFormat::FontPixelSize).toInt() != 18)
            continue;
        for (int i = 0; i < fragment.length(); ++i)
            positions << fragment.position() + i;
    }
    return positions;
}

} // namespace

class DateHeaderTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aDayNumberHasItsOrdinal_data()
    {
        QTest::addColumn<int>("number");
        QTest::addColumn<QString>("ordinal");
        for (const auto &[number, ordinal] : {std::pair{1, "1st"},
                                              {2, "2nd"},
                                              {3, "3rd"},
                                              {4, "4th"},
                                              {10, "10th"},
                                              {11, "11th"},
                                              {12, "12th"},
                                              {13, "13th"},
                                              {20, "20th"},
                                              {21, "21st"},
                                              {22, "22nd"},
                                              {23, "23rd"},
                                              {30, "30th"},
                                              {31, "31st"},
                                              {0, "0th"},
                                              {101, "101st"},
                                              {111, "111th"}})
            QTest::newRow(ordinal) << number << QString::fromLatin1(ordinal);
    }

    void aDayNumberHasItsOrdinal()
    {
        QFETCH(int, number);

        QTEST(buildRankString(number), "ordinal");
    }

    void theHeaderNamesDayMonthAndYear()
    {
        QCOMPARE(headerOf("2024-03-05").text, QStringLiteral("5th March 2024"));
        QCOMPARE(headerOf("2024-03-22", "de_DE").text, QStringLiteral("22nd März 2024"));
    }

    void theYearIsThatOfTheWeek()
    {
        QCOMPARE(headerOf("2024-12-31").text, QStringLiteral("31st December 2025"));
        QCOMPARE(headerOf("2023-01-01", "de_DE").text, QStringLiteral("1st Januar 2022"));
    }

    void aDayInOtherNumeralsKeepsItsNumber()
    {
        const DateHeader header = headerOf("2024-03-21", "ar_EG");

        QVERIFY2(header.text.startsWith(QStringLiteral("21st ")), qPrintable(header.text));
        QCOMPARE(header.suffixStart, 2);
    }

    void aMonthOfSeveralWordsStaysWhole()
    {
        QCOMPARE(headerOf("2024-03-05", "vi_VN").text, QStringLiteral("5th tháng 3 2024"));
    }

    void theSuffixIsSmall()
    {
        QLabel label;

        headerOf("2024-03-09").show(label);
        QCOMPARE(smallLettersOf(label), (QList<int>{1, 2}));

        headerOf("2024-03-10").show(label);
        QCOMPARE(smallLettersOf(label), (QList<int>{2, 3}));
    }

    void theLabelKeepsItsFontColourAndAlignment()
    {
        QLabel label;
        label.setFont(QFont(QStringLiteral("Serif"), 26));
        label.setAlignment(Qt::AlignCenter);
        const QFont font = label.font();

        headerOf("2024-03-09").show(label);

        QCOMPARE(label.font(), font);
        QCOMPARE(label.alignment(), Qt::AlignCenter);
        QVERIFY(!label.text().contains(QStringLiteral("color")));
        QCOMPARE(label.accessibleName(), QStringLiteral("9th March 2024"));
    }

    void theHeaderRunsInTheDirectionOfItsLabel()
    {
        QLabel label;
        label.setLayoutDirection(Qt::RightToLeft);

        headerOf("2024-03-21", "ar_EG").show(label);

        QTextDocument document;
        document.setHtml(label.text());
        QCOMPARE(document.begin().textDirection(), Qt::RightToLeft);
        QCOMPARE(smallLettersOf(label), (QList<int>{2, 3}));
    }

    void noDayIsNoHeader()
    {
        FakeClock clock;
        const Dates dates(clock, {"en_US", QStringLiteral("UTC")});
        QLabel label(QStringLiteral("All List"));

        DateHeader::of(QDateTime(), dates).show(label);

        QCOMPARE(label.text(), QString());
    }
};

QTEST_MAIN(DateHeaderTest)
#include "DateHeaderTest.moc"
