#include "calendar/CKCalendarView.h"

#include "calendar/CalendarFixture.h"
#include "platform/Fonts.h"
#include "widgets/Drawn.h"
#include "widgets/GradientView.h"
#include "widgets/ImageView.h"
#include "widgets/LayerView.h"

#include <QLabel>
#include <QSet>

using tarvelo::calendar::CKCalendarView;
using tarvelo::calendar::DateButton;
using tarvelo::platform::fontNamed;
using tarvelo::platform::frameOf;
using tarvelo::tests::CalendarFixture;
using namespace std::chrono_literals;

namespace {

// Whole points: a frame's edges are rounded, and its parent's height is.
bool closeTo(const QRectF &frame, const QRectF &wanted)
{
    return std::abs(frame.x() - wanted.x()) <= 1 && std::abs(frame.y() - wanted.y()) <= 1 &&
           std::abs(frame.width() - wanted.width()) <= 1 &&
           std::abs(frame.height() - wanted.height()) <= 1;
}

} // namespace

class CKCalendarViewTest final : public CalendarFixture
{
    Q_OBJECT

private:
    QString title() const
    {
        return m_view->findChild<QLabel *>(QStringLiteral("titleLabel"))->text();
    }
    QString letters() const
    {
        QString all;
        for (int i = 0; i < 7; ++i)
            all += m_view->findChild<QLabel *>(QStringLiteral("dayOfWeekLabel%1").arg(i))->text();
        return all;
    }

private Q_SLOTS:
    void thePlainCalendarBeginsOnSundayAnd320Wide()
    {
        const CKCalendarView plain(*m_dates);

        QCOMPARE(plain.calendarStartDay(), 1);
        QCOMPARE(plain.width(), 320);
        QCOMPARE(plain.height(), qRound(6 * 286.0 / 7 + 50 + 82));
    }

    void theStartDayAndTheFrameAreTakenAsGiven()
    {
        const CKCalendarView monday(*m_dates, 2, nullptr);
        const CKCalendarView wide(*m_dates, 7, QRectF(0, 0, 450, 100), nullptr);

        QCOMPARE(monday.calendarStartDay(), 2);
        QCOMPARE(monday.width(), 320);
        QCOMPARE(wide.calendarStartDay(), 7);
        QCOMPARE(wide.width(), 450);
    }

    void aFrameAloneLeavesTheStartDayAt0() { QCOMPARE(m_view->calendarStartDay(), 0); }

    void itShowsThePresentMonthAtFirst()
    {
        QCOMPARE(m_view->monthShowing(), day(2024, 3, 1));
        QCOMPARE(title(), QStringLiteral("March 2024"));
        QCOMPARE(shownCells(), 31);
        QVERIFY(!m_view->selectedDate().isValid());
    }

    void theTitleShowsTheYearOfTheWeek()
    {
        makeCalendar("en_GB");

        m_view->setMonthShowing(day(2022, 1, 20));

        QCOMPARE(title(), QStringLiteral("January 2021"));
    }

    void makingTheCalendarTouchesNoDatabase()
    {
        QCOMPARE(m_delegate.databaseAsked, 0);
        QVERIFY(m_delegate.selected.isEmpty());
    }

    void todayIsPressedHalfASecondAfterTheCalendarWasMade()
    {
        m_clock.advance(499ms);
        QVERIFY(m_delegate.selected.isEmpty());

        m_clock.advance(1ms);

        QCOMPARE(m_delegate.selected, (QList<QDateTime>{day(2024, 3, 5)}));
        QCOMPARE(m_view->selectedDate(), day(2024, 3, 5));
        QVERIFY(CKCalendarView::selectedCell() == cell(4));
        QVERIFY(cell(4)->isSelected());
        for (const char *name : {"prevButton", "nextButton", "proceedToCurrentMonthButton",
                                 "backToCurrentMonthButton"})
            QCOMPARE(button(name)->trackingRectCount(), 1);
    }

    void aCalendarThatIsGoneSelectsNothing()
    {
        m_window.reset();

        m_clock.advance(1s);

        QVERIFY(m_delegate.selected.isEmpty());
        QCOMPARE(m_clock.pendingCount(), 0);
    }

    void withoutDelegateThePressIsToldToNobody()
    {
        m_view->setDelegate(nullptr);

        m_clock.advance(500ms);
        m_view->moveCalendarToNextMonth();

        QCOMPARE(m_view->selectedDate(), day(2024, 3, 5));
        QVERIFY(m_view->hitTest({225, 300}) != nullptr);
    }

    void everyPartStandsAtItsFrame_data()
    {
        QTest::addColumn<int>("width");
        QTest::newRow("450") << 450;
        QTest::newRow("320") << 320;
    }
    void everyPartStandsAtItsFrame()
    {
        QFETCH(int, width);
        makeCalendar("en_US", width);
        const double B = width;
        const double H = 6 * (B - 34) / 7 + 50;

        QCOMPARE(m_view->cellWidth(), (B - 34) / 7);
        QVERIFY(closeTo(frameOf(*m_view), {-2, 0, B, H + 82}));
        QVERIFY(closeTo(frameOfPart("highlight"), {1, 1, B - 2, 1}));
        QVERIFY(closeTo(frameOfPart("titleLabel"), {0, H - 38, B, 65}));
        QVERIFY(closeTo(frameOfPart("prevButton"), {100, H + 5, 10, 20}));
        QVERIFY(closeTo(frameOfPart("nextButton"), {B - 100, H + 5, 10, 20}));
        QVERIFY(closeTo(frameOfPart("proceedToCurrentMonthButton"), {105, H - 1, 32, 32}));
        QVERIFY(closeTo(frameOfPart("backToCurrentMonthButton"), {B - 130, H - 1, 32, 32}));
        QVERIFY(closeTo(frameOfPart("calendarContainer"), {17, 0, B - 34, H}));
        QVERIFY(closeTo(frameOfPart("daysHeader"), {0, 0, B - 34, 51}));
        QVERIFY(closeTo(frameOfPart("imgWeekDaysBG"), {0, 347, 280, 0}));
        QVERIFY(frameOfPart("dateButtonsBG").isEmpty());
    }

    void weekdayLettersStandInARowAtAFixedHeight_data() { everyPartStandsAtItsFrame_data(); }
    void weekdayLettersStandInARowAtAFixedHeight()
    {
        QFETCH(int, width);
        makeCalendar("en_US", width);
        const double cw = m_view->cellWidth();

        for (int i = 0; i < 7; ++i) {
            const QByteArray name = "dayOfWeekLabel" + QByteArray::number(i);
            QVERIFY(closeTo(frameOfPart(name.constData()), {i * cw - 2, 328, cw, 51}));
        }
    }

    void theOriginStaysWhenTheHeightIsSet()
    {
        m_view->layoutSubviews();
        m_view->layoutSubviews();

        QCOMPARE(frameOf(*m_view).bottomLeft().x(), -2.0);
        QCOMPARE(frameOf(*m_view).y(), 0.0);
    }

    void dayCellsStandInTheirRowsAndColumns_data() { everyPartStandsAtItsFrame_data(); }
    void dayCellsStandInTheirRowsAndColumns()
    {
        QFETCH(int, width);
        makeCalendar("en_US", width);
        const double cw = m_view->cellWidth();

        // 1 March 2024 is a Friday.
        for (int number = 1; number <= 31; ++number) {
            const int row = (number + 4) / 7;
            const int col = (number + 4) % 7;
            const QRectF wanted(cw * col + 3, 297 - row * cw, cw - 8, cw - 8);

            QCOMPARE(m_view->calculateDayCellFrame(day(2024, 3, number)), wanted);
            QVERIFY(closeTo(frameOf(*cell(number - 1)), wanted));
        }
        QVERIFY(m_view->version() > 4223);
    }

    void noTwoDaysShareACell_data()
    {
        QTest::addColumn<QByteArray>("locale");
        for (const char *locale : {"en_US", "en_GB", "de_DE", "ar_EG", "fa_IR", "th_TH"})
            QTest::newRow(locale) << QByteArray(locale);
    }
    void noTwoDaysShareACell()
    {
        QFETCH(QByteArray, locale);
        makeCalendar(locale.constData());

        for (int month = 0; month < 24; ++month) {
            QRegion taken;
            for (int i = 0; i < shownCells(); ++i) {
                QVERIFY(!taken.intersects(cell(i)->geometry()));
                taken += cell(i)->geometry();
            }
            m_view->moveCalendarToNextMonth();
        }
    }

    void aMonthOfFourWeeksFillsFourRows()
    {
        m_view->setMonthShowing(day(2015, 2, 14));

        QSet<int> rows;
        for (int i = 0; i < 28; ++i)
            rows.insert(cell(i)->y());
        QCOMPARE(rows.size(), 4);
        QCOMPARE(shownCells(), 28);
    }

    void cellsOutsideTheMonthAreHiddenAndKeepTheirDate()
    {
        m_view->setMonthShowing(day(2024, 2, 1));

        QVERIFY(cell(30)->isHidden());
        QCOMPARE(cell(30)->date(), day(2024, 3, 31));
        QVERIFY(!cell(42)->date().isValid());
    }

    void aMonthShownInWeekNoughtMovesLaterMonthsDown()
    {
        m_clock.set(day(2022, 8, 9)); // of a month that begins on a Monday
        makeCalendar("de_DE");
        QVERIFY(!m_view->justForFixing());
        const int before = cell(0)->y();
        m_view->setMonthShowing(day(2022, 10, 1)); // a Saturday, of week 0

        m_view->setMonthShowing(day(2022, 8, 1));

        QVERIFY(m_view->justForFixing());
        QVERIFY(cell(0)->y() > before + 50);
    }

    void weekdayLettersAreTheUsers()
    {
        QCOMPARE(letters(), QStringLiteral("SMTWTFS"));

        makeCalendar("de_DE");
        QCOMPARE(letters(), QStringLiteral("MDMDFSS"));

        makeCalendar("en_AE");
        QCOMPARE(letters(), QStringLiteral("SSMTWTF"));
    }

    void nothingIsMirroredForLanguagesFromRightToLeft()
    {
        QGuiApplication::setLayoutDirection(Qt::RightToLeft);
        makeCalendar("ar_EG");
        QGuiApplication::setLayoutDirection(Qt::LeftToRight);

        // 2 March 2024 is a Saturday, the first day of the Egyptian week.
        QVERIFY(closeTo(frameOf(*cell(1)), {3, 297 - m_view->cellWidth(), 51, 51}));
        QCOMPARE(letters().front(), QStringLiteral("س").front());
    }

    void aCellThatNeverHadADateCountsAsToday()
    {
        // April has 30 days, so the cell after the 31 of March is the first without a date.
        m_view->moveCalendarToNextMonth();
        m_delegate.selected.clear();

        m_clock.advance(std::chrono::milliseconds(500));

        QCOMPARE(m_view->selectedCell(), cell(31));
        QCOMPARE(m_delegate.selected.size(), 1);
        QVERIFY(!m_delegate.selected.front().isValid());
    }

    void aPressTellsTheDayAndSelectsTheCell()
    {
        m_view->dateButtonPressed(cell(19));

        QCOMPARE(m_delegate.selected, (QList<QDateTime>{day(2024, 3, 20)}));
        QCOMPARE(m_view->selectedDate(), day(2024, 3, 20));
        QVERIFY(cell(19)->isSelected());
        for (const QString &name :
             {cell(19)->image().name(), cell(19)->normalImage(), cell(19)->hoverImage()})
            QCOMPARE(name, QStringLiteral("selDateImg"));
    }

    void theSelectedDayOfTodayKeepsItsBox()
    {
        m_view->dateButtonPressed(cell(4));

        for (const QString &name :
             {cell(4)->image().name(), cell(4)->normalImage(), cell(4)->hoverImage()})
            QCOMPARE(name, QStringLiteral("recordbox"));
    }

    void anotherPressTakesTheLookAndTheSelectionOver()
    {
        m_view->dateButtonPressed(cell(19));
        m_view->dateButtonPressed(cell(20));

        QVERIFY(!cell(19)->isSelected());
        QVERIFY(cell(19)->image().isNull());
        QVERIFY(CKCalendarView::selectedCell() == cell(20));
    }

    void aLayoutTakesTheSelectedLookAwayButNotTheSelection()
    {
        m_view->dateButtonPressed(cell(19));

        m_view->layoutSubviews();

        QVERIFY(cell(19)->image().isNull());
        QVERIFY(cell(19)->isSelected());
    }

    void deselectingForgetsTheCell()
    {
        m_view->dateButtonPressed(cell(19));

        m_view->deselectDateButtons();
        m_view->deselectDateButtons();

        QVERIFY(!cell(19)->isSelected());
        QVERIFY(CKCalendarView::selectedCell() == nullptr);
    }

    void theSelectionIsSharedByAllCalendars()
    {
        CKCalendarView other(*m_dates);
        m_view->dateButtonPressed(cell(19));

        other.dateButtonPressed(other.dateButtons().at(2));

        QVERIFY(!cell(19)->isSelected());
        QVERIFY(CKCalendarView::selectedCell() == other.dateButtons().at(2));
    }

    void aSelectedCellThatIsGoneIsForgotten()
    {
        {
            CKCalendarView other(*m_dates);
            other.dateButtonPressed(other.dateButtons().at(2));
        }

        QVERIFY(CKCalendarView::selectedCell() == nullptr);
        m_view->dateButtonPressed(cell(3));
        QVERIFY(cell(3)->isSelected());
    }

    void theSelectionSurvivesMonthSteps()
    {
        m_view->dateButtonPressed(cell(19));

        m_view->moveCalendarToNextMonth();

        QVERIFY(CKCalendarView::selectedCell() == cell(19));
        QCOMPARE(cell(19)->date(), day(2024, 4, 20));
    }

    void steppingWithoutTheListChangesTheTitleAlone()
    {
        m_view->moveCalendarToNextMonth();
        QCOMPARE(title(), QStringLiteral("April 2024"));

        m_view->moveCalendarToPreviousMonth();
        m_view->moveCalendarToPreviousMonth();
        QCOMPARE(title(), QStringLiteral("February 2024"));

        QVERIFY(m_delegate.selected.isEmpty());
        QVERIFY(!m_view->selectedDate().isValid());
    }

    void steppingForwardWithTheListSelectsTheFirstDay()
    {
        m_delegate.listShows = true;

        m_view->moveCalendarToNextMonth();

        QCOMPARE(m_delegate.selected, (QList<QDateTime>{day(2024, 4, 1)}));
    }

    void steppingBackWithTheListSelectsTheLastDay()
    {
        m_delegate.listShows = true;

        m_view->moveCalendarToPreviousMonth();

        QCOMPARE(m_delegate.selected, (QList<QDateTime>{day(2024, 2, 29)}));
    }

    void wherePersianMonthsCountTheDayPressedIsOfTheirLength()
    {
        makeCalendar("fa_IR");
        m_delegate.listShows = true;

        m_view->moveCalendarToPreviousMonth();

        // 1 February lies in Bahman, of 30 days, and cell 29 still has the day of March.
        QCOMPARE(m_delegate.selected, (QList<QDateTime>{day(2024, 3, 30)}));
    }

    void theCurrentMonthNeedsNoButtonBack()
    {
        QVERIFY(button("proceedToCurrentMonthButton")->isHidden());
        QVERIFY(button("backToCurrentMonthButton")->isHidden());
    }

    void beforeTheCurrentMonthTheLeftButtonLeadsBack()
    {
        m_delegate.listShows = true;
        m_view->setMonthShowing(day(2023, 11, 1));
        auto *proceed = button("proceedToCurrentMonthButton");
        QVERIFY(!proceed->isHidden());
        QVERIFY(button("backToCurrentMonthButton")->isHidden());

        proceed->click();

        QVERIFY(proceed->isHidden());
        QCOMPARE(m_view->monthShowing(), day(2024, 3, 1));
        QCOMPARE(m_delegate.selected, (QList<QDateTime>{day(2024, 3, 5)}));
    }

    void afterTheCurrentMonthTheRightButtonLeadsBack()
    {
        m_view->setMonthShowing(day(2024, 4, 1));
        auto *back = button("backToCurrentMonthButton");
        QVERIFY(!back->isHidden());
        QVERIFY(button("proceedToCurrentMonthButton")->isHidden());

        back->click();

        QVERIFY(back->isHidden());
        QCOMPARE(m_view->monthShowing(), day(2024, 3, 1));
        QVERIFY(m_delegate.selected.isEmpty());
    }

    // What counts as today's month begins on 20 February there, and so the layout shows a button
    // back even today.
    void theButtonThatLedBackIsHiddenWhateverTheLayoutShows()
    {
        makeCalendar("fa_IR");
        auto *back = button("backToCurrentMonthButton");
        QVERIFY(!back->isHidden());

        back->click();

        QVERIFY(back->isHidden());
    }

    void theButtonsKnowTheirActionsAndImages()
    {
        const auto check = [this](const char *name, const char *action, const char *image) {
            QCOMPARE(button(name)->actionName(), QByteArray(action));
            QCOMPARE(button(name)->image().name(), QLatin1String(image));
            QCOMPARE(button(name)->normalImage(), QLatin1String(image));
            QVERIFY(!button(name)->accessibleName().isEmpty());
        };

        check("prevButton", "moveCalendarToPreviousMonth", "arrowleft");
        check("nextButton", "moveCalendarToNextMonth", "arrowright");
        check("proceedToCurrentMonthButton", "doProceedToCurrentMonth", "settocurrent");
        check("backToCurrentMonthButton", "comeBackToCurrentMonth", "settocurrent");
        QVERIFY(!button("backToCurrentMonthButton")->toolTip().isEmpty());
        QCOMPARE(cell(0)->actionName(), QByteArray("dateButtonPressed"));
    }

    void aLayoutAsksForTheMarksOfEveryDayButToday()
    {
        m_delegate.databaseAsked = 0;

        m_view->layoutSubviews();

        QCOMPARE(m_delegate.databaseAsked, 30);
    }

    void anotherWidthIsLaidOutAnew()
    {
        showWindow();

        m_view->resize(320, m_view->height());

        QCOMPARE(m_view->cellWidth(), 286.0 / 7);
    }

    void theHeaderTakesItsColoursTopFirst()
    {
        m_view->setDayOfWeekBottomColorTopColor(Qt::red, Qt::blue);

        const auto *header = m_view->findChild<tarvelo::widgets::GradientView *>();
        QCOMPARE(header->gradientLayer().colors(),
                 (QList<QColor>{QColor(Qt::blue), QColor(Qt::red)}));
    }

    void fontsAndColoursAreKeptWhereTheyAreSet()
    {
        const QFont font = tarvelo::platform::fontNamed(QStringLiteral("Sans"), 21);

        m_view->setTitleFont(font);
        m_view->setDayOfWeekFont(font);
        m_view->setDateFont(font);
        m_view->setTitleColor(Qt::red);
        m_view->setDayOfWeekTextColor(Qt::green);

        QCOMPARE(m_view->titleFont().pixelSize(), 21);
        QCOMPARE(m_view->dayOfWeekFont()->pixelSize(), 21);
        QCOMPARE(m_view->dateFont().pixelSize(), 21);
        QCOMPARE(m_view->titleColor(), QColor(Qt::red));
        QCOMPARE(m_view->dayOfWeekTextColor(), QColor(Qt::green));
    }

    void theDefaultStyleHasOneFaceInThreeSizes()
    {
        const QString face = QStringLiteral("Helvetica Neue Medium");

        QCOMPARE(m_view->titleFont(), fontNamed(face, 18));
        QCOMPARE(*m_view->dayOfWeekFont(), fontNamed(face, 15));
        QCOMPARE(m_view->dateFont(), fontNamed(face, 14));
        QCOMPARE(m_view->titleFont().pixelSize(), 18);
        QCOMPARE(m_view->dayOfWeekFont()->pixelSize(), 15);
        QCOMPARE(m_view->dateFont().pixelSize(), 14);
    }

    void theDefaultStyleHasLabelsInTheColourOfLabels()
    {
        const QColor label(12, 34, 56);
        QPalette desktop = m_window->palette();
        desktop.setColor(QPalette::WindowText, label);
        m_window->setPalette(desktop);
        m_view->setTitleColor(Qt::red);
        m_view->setDayOfWeekTextColor(Qt::red);

        m_view->setDefaultStyle();

        QCOMPARE(m_view->titleColor(), label);
        for (const QByteArray &name :
             {QByteArray("dayOfWeekLabel0"), QByteArray("dayOfWeekLabel6")})
            QCOMPARE(m_view->findChild<QLabel *>(QLatin1String(name))
                         ->palette()
                         .color(QPalette::WindowText),
                     label);
    }

    void theDefaultStyleHasGreyBehindTheSelectedAndTheCurrentDay()
    {
        const QColor disabled(65, 43, 21);
        QPalette desktop = m_window->palette();
        desktop.setColor(QPalette::Disabled, QPalette::WindowText, disabled);
        m_window->setPalette(desktop);

        m_view->setDefaultStyle();

        QCOMPARE(m_view->selectedDateTextColor(), disabled);
        QCOMPARE(m_view->selectedDateBackgroundColor(), QColor(170, 170, 170));
        QCOMPARE(m_view->currentDateTextColor(), QColor(Qt::white));
        QCOMPARE(m_view->currentDateBackgroundColor(), QColor(170, 170, 170));
    }

    void theArrowsFillTheirButtons()
    {
        for (const char *name : {"prevButton", "nextButton"}) {
            auto *arrow = button(name);
            arrow->resize(60, 20); // of another shape than the image

            const QImage image = tarvelo::tests::drawn(*arrow);

            int left = image.width();
            int right = 0;
            for (int x = 0; x < image.width(); ++x)
                for (int y = 0; y < image.height(); ++y)
                    if (image.pixelColor(x, y) != QColor(Qt::white)) {
                        left = std::min(left, x);
                        right = std::max(right, x);
                    }
            QVERIFY2(right - left > 30,
                     qPrintable(QStringLiteral("%1 to %2").arg(left).arg(right)));
        }
    }

    void theWeekdaysBackgroundHasItsImage()
    {
        const auto *background =
            m_view->findChild<tarvelo::widgets::ImageView *>(QStringLiteral("imgWeekDaysBG"));

        QCOMPARE(background->image().name(), QStringLiteral("weekHeader"));
        QVERIFY(!background->image().isNull());
    }

    void coloursOfDaysAreFixed()
    {
        m_view->setDateTextColor(Qt::red);
        m_view->setDateBackgroundColor(Qt::red);
        m_view->setDateBorderColor(Qt::red);

        QCOMPARE(m_view->dateTextColor(), m_view->palette().color(QPalette::WindowText));
        QCOMPARE(m_view->dateBackgroundColor(), QColor(153, 102, 51));
        QCOMPARE(m_view->dateBorderColor(), QColor(Qt::black));
    }

    void coloursOfSelectedAndCurrentDaysAreKept()
    {
        m_view->setSelectedDateTextColor(Qt::red);
        m_view->setSelectedDateBackgroundColor(Qt::green);
        m_view->setCurrentDateTextColor(Qt::blue);
        m_view->setCurrentDateBackgroundColor(Qt::cyan);

        QCOMPARE(m_view->selectedDateTextColor(), QColor(Qt::red));
        QCOMPARE(m_view->selectedDateBackgroundColor(), QColor(Qt::green));
        QCOMPARE(m_view->currentDateTextColor(), QColor(Qt::blue));
        QCOMPARE(m_view->currentDateBackgroundColor(), QColor(Qt::cyan));
    }

    void theButtonColourChangesNothing()
    {
        m_view->setButtonColor(Qt::green);

        QCOMPARE(button("prevButton")->image().name(), QStringLiteral("arrowleft"));
        QCOMPARE(button("nextButton")->image().name(), QStringLiteral("arrowright"));
        QCOMPARE(CKCalendarView::imageNamedWithColor(QStringLiteral("recordbox"), Qt::red).name(),
                 QStringLiteral("recordbox"));
    }

    void theInnerBorderIsTheContainers()
    {
        m_view->setInnerBorderColor(Qt::red);

        const auto *container =
            m_view->findChild<tarvelo::widgets::LayerView *>(QStringLiteral("calendarContainer"));
        QCOMPARE(container->layer().borderColor, QColor(Qt::red));
        QCOMPARE(container->layer().cornerRadius, 4.0);
        QCOMPARE(m_view->layer().borderWidth, 1.0);
        QCOMPARE(m_view->layer().shadowOpacity, 0.4);
    }

    void theViewAndItsPartsAskForTheirLayers()
    {
        const auto layerOf = [this](const char *name) {
            return m_view->findChild<tarvelo::widgets::LayerView *>(QLatin1String(name))->layer();
        };

        const auto &own = m_view->layer();
        QCOMPARE(own.cornerRadius, 6.0);
        QCOMPARE(own.borderWidth, 1.0);
        QCOMPARE(own.borderColor, QColor(Qt::black));
        QCOMPARE(own.shadowOffset, QPointF(2, 2));
        QCOMPARE(own.shadowRadius, 2.0);
        QCOMPARE(own.shadowOpacity, 0.4);
        QCOMPARE(layerOf("highlight").cornerRadius, 6.0);
        QCOMPARE(layerOf("calendarContainer").borderWidth, 1.0);
        QCOMPARE(layerOf("calendarContainer").borderColor, QColor(Qt::gray));
    }

    void theNavigationButtonsHaveNoTitleAndNoAlternateImage()
    {
        for (const char *name : {"prevButton", "nextButton", "proceedToCurrentMonthButton",
                                 "backToCurrentMonthButton"}) {
            QVERIFY2(button(name)->text().isEmpty(), name);
            QVERIFY2(button(name)->alternateImage().isNull(), name);
        }
        QCOMPARE(button("proceedToCurrentMonthButton")->toolTip(),
                 button("backToCurrentMonthButton")->toolTip());
        QVERIFY(!button("backToCurrentMonthButton")->toolTip().isEmpty());
    }

    void aCellThatNeverHadADayIsTitledByItsIndex()
    {
        QCOMPARE(cell(42)->text(), QStringLiteral("42"));
    }

    void layerColoursAreInRgb()
    {
        QVERIFY(!CKCalendarView::getCGColorFromNSColor(QColor()).has_value());
        QCOMPARE(CKCalendarView::getCGColorFromNSColor(QColor::fromHsv(0, 255, 255))->spec(),
                 QColor::Rgb);
    }
};

QTEST_MAIN(CKCalendarViewTest)
#include "CKCalendarViewTest.moc"
