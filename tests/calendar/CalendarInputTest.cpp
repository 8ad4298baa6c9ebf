#include "calendar/CalendarInput.h"

#include "calendar/CalendarFixture.h"

#include <QEnterEvent>
#include <QHelpEvent>
#include <QSignalSpy>

using tarvelo::calendar::DateButton;
using tarvelo::tests::CalendarFixture;

class CalendarInputTest final : public CalendarFixture
{
    Q_OBJECT

private:
    static void enter(QWidget &widget)
    {
        const QPointF middle(widget.rect().center());
        QEnterEvent entering(middle, middle, middle);
        QCoreApplication::sendEvent(&widget, &entering);
    }

private Q_SLOTS:
    void aClickPressesADay()
    {
        showWindow();

        QTest::mouseClick(cell(11), Qt::LeftButton);

        QCOMPARE(m_delegate.selected, (QList<QDateTime>{day(2024, 3, 12)}));
    }

    void aClickOnAnArrowStepsTheMonth()
    {
        showWindow();

        QTest::mouseClick(button("nextButton"), Qt::LeftButton);
        QCOMPARE(m_view->monthShowing(), day(2024, 4, 1));

        QTest::mouseClick(button("prevButton"), Qt::LeftButton);
        QCOMPARE(m_view->monthShowing(), day(2024, 3, 1));
    }

    void aDayOfTheFirstRowIsWholeForTheMouse()
    {
        // 1 March 2024 stands in the first row, into which the weekday letters reach.
        showWindow();
        const QPoint nearItsTop = cell(0)->mapTo(m_view, QPoint(25, 3));

        QVERIFY(m_view->hitTest(nearItsTop) == cell(0));
        QWidget *hit = m_window->childAt(m_view->mapTo(m_window.get(), nearItsTop));
        QCOMPARE(hit, static_cast<QWidget *>(cell(0)));
    }

    void duringARecordingNoClickReachesArrowsOrDays()
    {
        showWindow();
        m_delegate.records = true;

        QTest::mouseClick(cell(11), Qt::LeftButton);
        QTest::mouseClick(button("nextButton"), Qt::LeftButton);

        QVERIFY(m_delegate.selected.isEmpty());
        QCOMPARE(m_view->monthShowing(), day(2024, 3, 1));
        QVERIFY(!cell(11)->isDown());
    }

    void duringARecordingTheHitTestFindsNothing()
    {
        const QPoint onADay = cell(11)->mapTo(m_view, cell(11)->rect().center());
        QVERIFY(m_view->hitTest(onADay) == cell(11));
        QVERIFY(m_view->hitTest({5, 5}) == m_view);
        QVERIFY(m_view->hitTest({-5, 5}) == nullptr);

        m_delegate.records = true;

        QVERIFY(m_view->hitTest(onADay) == nullptr);
    }

    void duringARecordingTheMouseLeavesNoMarkOnADay()
    {
        m_delegate.records = true;

        enter(*cell(11));

        QVERIFY(cell(11)->image().isNull());
        QVERIFY(!cell(11)->isMouseHover());
    }

    void aRecordingThatBeginsUnderTheMouseLetsItGo()
    {
        enter(*cell(11));
        QVERIFY(cell(11)->isMouseHover());
        m_delegate.records = true;

        QEvent leaving(QEvent::Leave);
        QCoreApplication::sendEvent(cell(11), &leaving);

        QVERIFY(!cell(11)->isMouseHover());
    }

    void duringARecordingNoToolTipShows()
    {
        m_delegate.records = true;
        QHelpEvent asking(QEvent::ToolTip, {5, 5}, {5, 5});

        const bool taken = button("backToCurrentMonthButton")->eventFilter(nullptr, &asking) ||
                           QCoreApplication::sendEvent(button("backToCurrentMonthButton"), &asking);

        QVERIFY(taken);
        QVERIFY(!asking.isAccepted());
    }

    void duringARecordingNoKeyAndNoScreenReaderPressesADay()
    {
        showWindow();
        m_delegate.records = true;

        for (const auto key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter, Qt::Key_PageDown})
            QTest::keyClick(cell(11), key);
        cell(11)->click();
        button("nextButton")->click();

        QVERIFY(m_delegate.selected.isEmpty());
        QCOMPARE(m_view->monthShowing(), day(2024, 3, 1));
    }

    void afterTheRecordingDaysAnswerAgain()
    {
        showWindow();
        m_delegate.records = true;
        QTest::mouseClick(cell(11), Qt::LeftButton);
        m_delegate.records = false;

        QTest::mouseClick(cell(11), Qt::LeftButton);

        QCOMPARE(m_delegate.selected, (QList<QDateTime>{day(2024, 3, 12)}));
    }

    void spaceAndReturnPressTheDayWithTheFocus()
    {
        showWindow();

        QTest::keyClick(cell(11), Qt::Key_Space);
        QTest::keyClick(cell(12), Qt::Key_Return);
        QTest::keyClick(cell(13), Qt::Key_Enter);

        QCOMPARE(m_delegate.selected,
                 (QList<QDateTime>{day(2024, 3, 12), day(2024, 3, 13), day(2024, 3, 14)}));
    }

    void arrowKeysGoFromDayToDay()
    {
        showWindow();
        m_window->activateWindow();
        cell(11)->setFocus();
        QTRY_VERIFY(cell(11)->hasFocus());

        QTest::keyClick(cell(11), Qt::Key_Right);
        QVERIFY(cell(12)->hasFocus());
        QTest::keyClick(cell(12), Qt::Key_Down);
        QVERIFY(cell(19)->hasFocus());
        QTest::keyClick(cell(19), Qt::Key_Left);
        QVERIFY(cell(18)->hasFocus());
        QTest::keyClick(cell(18), Qt::Key_Up);
        QVERIFY(cell(11)->hasFocus());

        QVERIFY(m_delegate.selected.isEmpty());
    }

    void theDayThatArrowKeysReachShowsIt()
    {
        showWindow();
        m_window->activateWindow();
        cell(11)->setFocus();
        QTRY_VERIFY(cell(11)->hasFocus());
        const QImage without = cell(12)->grab().toImage();

        QTest::keyClick(cell(11), Qt::Key_Right);

        QVERIFY(cell(12)->grab().toImage() != without);
    }

    void arrowKeysStayInTheMonth()
    {
        showWindow();
        m_window->activateWindow();
        cell(0)->setFocus();
        QTRY_VERIFY(cell(0)->hasFocus());

        QTest::keyClick(cell(0), Qt::Key_Left);
        QVERIFY(cell(0)->hasFocus());
        cell(30)->setFocus();
        QTest::keyClick(cell(30), Qt::Key_Down);
        QVERIFY(cell(30)->hasFocus());
    }

    void pageKeysStepTheMonth()
    {
        QTest::keyClick(cell(11), Qt::Key_PageDown);
        QCOMPARE(m_view->monthShowing(), day(2024, 4, 1));

        QTest::keyClick(cell(11), Qt::Key_PageUp);
        QCOMPARE(m_view->monthShowing(), day(2024, 3, 1));
    }

    void homeGoesToTodayInThePresentMonth()
    {
        showWindow();
        m_window->activateWindow();
        cell(0)->setFocus();
        QTRY_VERIFY(cell(0)->hasFocus());

        QTest::keyClick(cell(0), Qt::Key_Home);
        QVERIFY(cell(4)->hasFocus());
        QTest::keyClick(cell(4), Qt::Key_PageDown);
        QTest::keyClick(cell(4), Qt::Key_Home);

        QCOMPARE(m_view->monthShowing(), day(2024, 3, 1));
        QVERIFY(cell(4)->hasFocus());
    }

    void theFocusStaysInTheMonthWhenItsDayIsGone()
    {
        showWindow();
        m_window->activateWindow();
        cell(30)->setFocus();
        QTRY_VERIFY(cell(30)->hasFocus());

        QTest::keyClick(cell(30), Qt::Key_PageUp);

        QVERIFY(cell(28)->hasFocus());
    }

    void theFocusStaysOnTheDayPressed()
    {
        showWindow();
        m_window->activateWindow();
        cell(11)->setFocus();
        QTRY_VERIFY(cell(11)->hasFocus());

        QTest::keyClick(cell(11), Qt::Key_Space);

        QVERIFY(cell(11)->hasFocus());
    }

    void oneDayIsInTheTabOrder()
    {
        const auto tabStops = [this] {
            QList<DateButton *> stops;
            for (DateButton *one : m_view->dateButtons())
                if (one->focusPolicy() & Qt::TabFocus)
                    stops.append(one);
            return stops;
        };

        m_clock.advance(std::chrono::milliseconds(500));
        QCOMPARE(tabStops(), (QList<DateButton *>{cell(4)}));

        m_view->dateButtonPressed(cell(20));
        QCOMPARE(tabStops(), (QList<DateButton *>{cell(20)}));
    }
};

QTEST_MAIN(CalendarInputTest)
#include "CalendarInputTest.moc"
