#include "calendar/DateButton.h"

#include "calendar/CalendarDouble.h"
#include "platform/Dates.h"
#include "platform/Fonts.h"
#include "platform/Texts.h"
#include "support/FakeClock.h"
#include "support/LectureBuilder.h"
#include "support/TemporaryPlaces.h"
#include "support/TestCase.h"

#include <QDialog>
#include <QEnterEvent>
#include <QPainter>

using tarvelo::calendar::DateButton;
using tarvelo::platform::Dates;
using namespace tarvelo::tests;

namespace {

constexpr int Side = 51;
constexpr QColor Red(252, 39, 52);
constexpr QColor WithLectures(96, 90, 102);
constexpr QColor WithoutLectures(96, 92, 102);
constexpr QColor WeekendGrey(153, 153, 153);

QDateTime day(int number, int month = 3)
{
    return {QDate(2024, month, number), QTime(0, 0), Qt::UTC};
}

void moveMouseOver(DateButton &cell)
{
    const QPointF middle(cell.rect().center());
    QEnterEvent entering(middle, middle, middle);
    QCoreApplication::sendEvent(&cell, &entering);
}

void moveMouseAway(DateButton &cell)
{
    QEvent leaving(QEvent::Leave);
    QCoreApplication::sendEvent(&cell, &leaving);
}

} // namespace

class DateButtonTest final : public TestCase
{
    Q_OBJECT

private:
    FakeClock m_clock;
    std::unique_ptr<Dates> m_dates;
    std::unique_ptr<TemporaryPlaces> m_places;
    std::unique_ptr<tarvelo::store::LectureDatabase> m_lectures;
    CalendarDouble m_delegate;
    std::unique_ptr<QWidget> m_window;
    DateButton *m_cell = nullptr;

    void makeCell(const char *locale = "en_US")
    {
        m_dates = std::make_unique<Dates>(m_clock,
                                          tarvelo::platform::Region{locale, QStringLiteral("UTC")});
        m_window = std::make_unique<QWidget>();
        m_cell = new DateButton(*m_dates, m_window.get());
        m_cell->setGeometry(0, 0, Side, Side);
        // Without smoothed edges every pixel of the number has its very colour.
        QFont font = tarvelo::platform::fontNamed(QStringLiteral("Helvetica Neue Medium"), 14);
        font.setStyleStrategy(QFont::NoAntialias);
        m_cell->setFont(font);
        m_cell->setDelegate(&m_delegate);
    }
    void keepLectureOn(const char *date)
    {
        aLecture().on(date).insertInto(*m_lectures);
        m_delegate.database = m_lectures->connection();
    }
    QImage drawn() const
    {
        QImage image(Side, Side, QImage::Format_RGB32);
        image.fill(Qt::white);
        m_cell->render(&image, {}, {}, QWidget::DrawChildren);
        return image;
    }
    // Where the pixels of this very colour are, an empty rectangle when there are none.
    static QRect ink(const QImage &image, const QColor &color, const QRect &within)
    {
        QRect found;
        for (int y = within.top(); y <= within.bottom(); ++y)
            for (int x = within.left(); x <= within.right(); ++x)
                if (image.pixelColor(x, y) == color)
                    found |= QRect(x, y, 1, 1);
        return found;
    }
    static QRect everywhere() { return {0, 0, Side, Side}; }
    static QRect below(int y) { return {0, y, Side, Side - y}; }
    static QRect above(int y) { return {0, 0, Side, y}; }

protected:
    void prepare() override
    {
        m_clock.set(day(5).addSecs(9 * 3600));
        m_places = std::make_unique<TemporaryPlaces>();
        m_lectures = std::make_unique<tarvelo::store::LectureDatabase>(m_places->places(), m_clock);
        m_delegate.database = nullptr;
        m_delegate.databaseAsked = 0;
        makeCell();
    }
    void finish() override
    {
        m_window.reset();
        m_lectures.reset();
        m_places.reset();
    }

private Q_SLOTS:
    void theTitleIsTheDayOfTheMonthInTheUsersNumerals()
    {
        m_cell->setDate(day(7));
        QCOMPARE(m_cell->text(), QStringLiteral("7"));
        QCOMPARE(m_cell->date(), day(7));

        makeCell("ar_EG");
        m_cell->setDate(day(27));
        QCOMPARE(m_cell->text(), QStringLiteral("٢٧"));
    }

    void theWholeDateIsItsAccessibleName()
    {
        makeCell("en_GB");

        m_cell->setDate(day(5));

        QCOMPARE(m_cell->accessibleName(), QStringLiteral("Tuesday, 5 March 2024"));
    }

    void todayHasItsBoxUnderAllThreeNames()
    {
        m_cell->setDate(day(5));

        QVERIFY(m_cell->isDateToday());
        QCOMPARE(m_cell->image().name(), QStringLiteral("recordbox"));
        QCOMPARE(m_cell->normalImage(), QStringLiteral("recordbox"));
        QCOMPARE(m_cell->hoverImage(), QStringLiteral("recordbox"));
    }

    void anotherDayHasNoImageUntilTheMouseIsOverIt()
    {
        m_cell->setDate(day(5));
        m_cell->setDate(day(6));

        QVERIFY(!m_cell->isDateToday());
        QVERIFY(m_cell->image().isNull());
        QCOMPARE(m_cell->normalImage(), QString());
        QCOMPARE(m_cell->hoverImage(), QStringLiteral("selDateImg"));
    }

    void saturdayAndSundayAreWeekendDays()
    {
        for (int number = 1; number <= 28; ++number) {
            if (number == 5)
                continue;
            m_cell->setDate(day(number));

            const int weekday = day(number).date().dayOfWeek();
            QCOMPARE(m_cell->isSatOrSun(), weekday >= 6);
        }
    }

    void inGermanNoDayIsAWeekendDay()
    {
        makeCell("de_DE");

        for (int number = 1; number <= 31; ++number) {
            m_cell->setDate(day(number));

            QVERIFY(!m_cell->isSatOrSun());
        }
    }

    void todayKeepsTheWeekendMarkOfTheDayBefore()
    {
        m_cell->setDate(day(2));
        m_cell->setDate(day(5));

        QVERIFY(m_cell->isDateToday());
        QVERIFY(m_cell->isSatOrSun());
        const QRect number(14, 11, 24, 20);
        QVERIFY(ink(drawn(), Qt::white, number).isEmpty());
    }

    void everyDayButTodayAsksTheStoreWhenItIsSet()
    {
        m_cell->setDate(day(6));
        QCOMPARE(m_delegate.databaseAsked, 1);

        m_cell->setDate(day(5));
        QCOMPARE(m_delegate.databaseAsked, 1);
    }

    void everyRedrawAsksTheStoreAnew()
    {
        m_cell->setDate(day(5));

        drawn();
        drawn();

        QCOMPARE(m_delegate.databaseAsked, 2);
    }

    void theCountOfRecordsIsKeptButNeverFilled()
    {
        keepLectureOn("2024-03-06");

        m_cell->setDate(day(6));
        drawn();
        QCOMPARE(m_cell->getRecordCount(), QString());

        m_cell->setRecordCount(QStringLiteral("3"));
        QCOMPARE(m_cell->getRecordCount(), QStringLiteral("3"));
    }

    void withoutDelegateNothingIsAsked()
    {
        m_cell->setDelegate(nullptr);

        m_cell->setDate(day(6));
        drawn();

        QCOMPARE(m_delegate.databaseAsked, 0);
    }

    void withoutDatabaseADayHasNoLectures()
    {
        m_cell->setDate(day(6));

        const QImage image = drawn();

        QVERIFY(ink(image, Red, everywhere()).isEmpty());
        QVERIFY(!ink(image, WithoutLectures, everywhere()).isEmpty());
        QVERIFY(ink(image, WithLectures, everywhere()).isEmpty());
    }

    void aFailedQueryMeansNoLectures()
    {
        m_places->makeFolder();
        m_delegate.database = m_lectures->openDb(); // without any table
        m_cell->setDate(day(6));

        QVERIFY(ink(drawn(), Red, everywhere()).isEmpty());
    }

    void aDayWithoutLecturesHasNoBadge()
    {
        keepLectureOn("2024-03-07");
        m_cell->setDate(day(6));

        const QImage image = drawn();

        QVERIFY(ink(image, Red, everywhere()).isEmpty());
        QVERIFY(!ink(image, WithoutLectures, everywhere()).isEmpty());
    }

    void aDayWithLecturesHasADarkNumberAndABadge()
    {
        keepLectureOn("2024-03-06");
        m_cell->setDate(day(6));

        const QImage image = drawn();

        QVERIFY(!ink(image, WithLectures, everywhere()).isEmpty());
        QVERIFY(ink(image, WithoutLectures, everywhere()).isEmpty());
        QVERIFY(!ink(image, Red, above(9)).isEmpty());
        QVERIFY(ink(image, Red, below(9)).isEmpty());
    }

    void theDayIsAskedForInFixedDigitsOfTheSameCalendar_data()
    {
        QTest::addColumn<QByteArray>("locale");
        for (const char *locale :
             {"ar_EG", "fa_IR", "th_TH", "th_TH@calendar=buddhist", "hi_IN@numbers=deva"})
            QTest::newRow(locale) << QByteArray(locale);
    }
    void theDayIsAskedForInFixedDigitsOfTheSameCalendar()
    {
        QFETCH(QByteArray, locale);
        keepLectureOn("2024-03-06");
        makeCell(locale.constData());

        m_cell->setDate(day(6));
        QVERIFY(!ink(drawn(), Red, above(9)).isEmpty());

        m_cell->setDate(day(7));
        QVERIFY(ink(drawn(), Red, above(9)).isEmpty());
    }

    void whoDoesNotSeeTheBadgeHearsOfIt()
    {
        keepLectureOn("2024-03-06");
        m_cell->setDate(day(6));
        drawn();
        QCOMPARE(m_cell->accessibleDescription(), tarvelo::platform::text("DAY_HAS_LECTURES"));

        m_cell->setDate(day(7));
        drawn();

        QVERIFY(m_cell->accessibleDescription().isEmpty());
    }

    void theBadgeOfAOneDigitDayEnds21PointsFromTheRight()
    {
        keepLectureOn("2024-03-06");
        m_cell->setDate(day(6));

        // The dot stands in the middle of an image ten points wide: as far on both sides of it.
        const QRect dot = ink(drawn(), Red, everywhere());
        QCOMPARE(dot.left() + dot.right() + 1, 2 * (Side - 21 - 5));
    }

    void theBadgeOfATwoDigitDayEnds22PointsFromTheRight()
    {
        keepLectureOn("2024-03-12");
        m_cell->setDate(day(12));

        const QRect dot = ink(drawn(), Red, everywhere());
        QCOMPARE(dot.left() + dot.right() + 1, 2 * (Side - 22 - 5));
    }

    void aOneDigitNumberBegins12PointsLeftOfTheMiddlePlus8()
    {
        m_cell->setDate(day(6));

        const QRect number = ink(drawn(), WithoutLectures, everywhere());

        QVERIFY(number.left() >= 21 && number.left() <= 25);
        QVERIFY(number.top() >= 11 && number.bottom() <= 32);
    }

    void aTwoDigitNumberBegins18PointsLeftOfTheMiddlePlus8()
    {
        m_cell->setDate(day(26));

        const QRect number = ink(drawn(), WithoutLectures, everywhere());

        QVERIFY(number.left() >= 15 && number.left() <= 19);
        QVERIFY(number.right() >= 26 && number.right() <= 36);
    }

    void todayWithLecturesIsWhiteWithAWhiteBadgeOnRed()
    {
        keepLectureOn("2024-03-05");
        m_cell->setDate(day(5));

        const QImage image = drawn();

        QCOMPARE(image.pixelColor(25, 38), Red);
        QVERIFY(!ink(image, Qt::white, QRect(18, 11, 16, 20)).isEmpty());
        QVERIFY(!ink(image, Qt::white, QRect(20, 2, 12, 6)).isEmpty());
    }

    void todayWithoutLecturesHasNoBadge()
    {
        m_cell->setDate(day(5));

        const QImage image = drawn();

        QVERIFY(!ink(image, Qt::white, QRect(18, 11, 16, 20)).isEmpty());
        QVERIFY(ink(image, Qt::white, QRect(20, 2, 12, 6)).isEmpty());
    }

    void aWeekendDayIsGreyAlsoWithLectures()
    {
        keepLectureOn("2024-03-09");
        m_cell->setDate(day(9));

        const QImage image = drawn();

        QVERIFY(!ink(image, WeekendGrey, everywhere()).isEmpty());
        QVERIFY(ink(image, WithLectures, everywhere()).isEmpty());
        QVERIFY(!ink(image, Red, above(9)).isEmpty());
    }

    void theMouseShowsTheHoverImageWhileItIsInside()
    {
        m_cell->setDate(day(6));
        m_cell->setMouseReady();

        moveMouseOver(*m_cell);
        QCOMPARE(m_cell->image().name(), QStringLiteral("selDateImg"));
        QVERIFY(m_cell->isMouseHover());

        moveMouseAway(*m_cell);
        QVERIFY(m_cell->image().isNull());
        QVERIFY(!m_cell->isMouseHover());
    }

    void aBoxStaysWhereverTheMouseIs()
    {
        m_cell->setDate(day(6));

        m_cell->showBox(false);
        moveMouseOver(*m_cell);
        QCOMPARE(m_cell->image().name(), QStringLiteral("selDateImg"));
        moveMouseAway(*m_cell);

        QCOMPARE(m_cell->image().name(), QStringLiteral("selDateImg"));
    }

    void aDisabledCellShowsItsNormalImageUnderTheMouse()
    {
        m_cell->setDate(day(6));
        m_cell->setMouseReady();
        m_cell->setEnabled(false);

        moveMouseOver(*m_cell);

        QVERIFY(m_cell->image().isNull());
        QVERIFY(m_cell->isMouseHover());
    }

    void underASheetTheMouseShowsTheNormalImage()
    {
        m_cell->setDate(day(6));
        m_cell->setMouseReady();
        m_window->show();
        auto *sheet = new QDialog(m_window.get());
        sheet->setWindowModality(Qt::WindowModal);
        sheet->open();
        QTRY_VERIFY(sheet->isVisible());

        moveMouseOver(*m_cell);
        QVERIFY(m_cell->image().isNull());

        sheet->close();
        moveMouseAway(*m_cell);
        moveMouseOver(*m_cell);
        QCOMPARE(m_cell->image().name(), QStringLiteral("selDateImg"));
    }

    void aNewCellDoesNotHearTheMouse()
    {
        m_cell->setDate(day(6));

        moveMouseOver(*m_cell);

        QVERIFY(!m_cell->isMouseHover());
        QCOMPARE(m_cell->trackingRectCount(), 0);
    }

    void beingSelectedChangesNothingButTheFlag()
    {
        m_cell->setDate(day(6));
        const QImage before = drawn();

        m_cell->setIsSelected(true);

        QVERIFY(m_cell->isSelected());
        QCOMPARE(drawn(), before);
    }

    void aCellWithoutTitleDrawsNoNumber()
    {
        m_cell->setDate(QDateTime());

        const QImage image = drawn();

        QVERIFY(ink(image, WithoutLectures, everywhere()).isEmpty());
        QCOMPARE(m_delegate.databaseAsked, 1); // by setDate alone
    }
};

QTEST_MAIN(DateButtonTest)
#include "DateButtonTest.moc"
