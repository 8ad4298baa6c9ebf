#include "lectures/ViewChanges.h"

#include "lectures/ProgramCase.h"
#include "platform/Frames.h"
#include "support/AnimationClock.h"

using tarvelo::lectures::ViewChanges;
using tarvelo::platform::frameOf;
using tarvelo::tests::AnimationClock;
using namespace std::chrono_literals;

class ViewChangesTest final : public tarvelo::tests::ProgramCase
{
    Q_OBJECT

private Q_SLOTS:
    void theCanvasBeginsWithCalendarAndList()
    {
        QCOMPARE(window().width(), 833);
        QCOMPARE(frameOf(*main().calendarView).topLeft(), QPointF(-2, 0));
        QCOMPARE(main().tableListView->geometry().right() + 1, 833);
        QCOMPARE(main().editPlayView->x(), 833);
    }

    void expandingShowsAllThreePanes()
    {
        m_changes->viewEditView();
        QTRY_COMPARE(main().editPlayView->x(), 0);
        moveCalendarAway();

        m_changes->onExpandView();

        QTRY_COMPARE(window().width(), 1234);
        QCOMPARE(window().frameWidth(), 1234);
        QVERIFY(!m_changes->bIsInEditView());
        QVERIFY(!m_changes->bIsInSingleEditView());
        QCOMPARE(frameOf(*main().editPlayView).topLeft(), QPointF(833, -50));
        QCOMPARE(frameOf(*main().calendarView).topLeft(), QPointF(-2, 0));
        QVERIFY(main().calendarView->isVisible() && main().tableListView->isVisible());
        expectSlideButtons(false);
    }

    void expandingKeepsTheSizesOfThePanes()
    {
        const QSize lectureView = main().editPlayView->size();
        const QSize calendar = main().calendarView->size();

        m_changes->onExpandView();

        QCOMPARE(main().editPlayView->size(), lectureView);
        QCOMPARE(main().calendarView->size(), calendar);
    }

    void theSingleViewTakesTheCalendarsPlace()
    {
        const QRectF calendar = frameOf(*main().calendarView);

        m_changes->viewEditView();

        QVERIFY(m_changes->bIsInEditView());
        QVERIFY(m_changes->bIsInSingleEditView());
        QCOMPARE(frameOf(*main().editPlayView),
                 QRectF(calendar.width(), -50, calendar.width(), calendar.height()));
        QTRY_COMPARE(frameOf(*main().editPlayView).topLeft(), QPointF(0, -50));
        QTRY_COMPARE(window().width(), 400);
        QVERIFY(main().calendarView->isHidden() && main().tableListView->isHidden());
        expectSlideButtons(true);
    }

    void goingBackToTheCalendarKeepsTheHeightOfTheLectureViewAndTheSingleFlag()
    {
        m_changes->viewEditView();
        QTRY_COMPARE(main().editPlayView->x(), 0);
        tarvelo::platform::setFrame(*main().editPlayView, {0, -20, 450, 489});
        moveCalendarAway();

        m_changes->goToCalendarView();

        QTRY_COMPARE(window().width(), 833);
        QCOMPARE(frameOf(*main().editPlayView), QRectF(833, -20, 450, 489));
        QCOMPARE(frameOf(*main().calendarView).topLeft(), QPointF(-2, 0));
        QVERIFY(!m_changes->bIsInEditView());
        QVERIFY(m_changes->bIsInSingleEditView());
        QVERIFY(main().calendarView->isVisible() && main().tableListView->isVisible());
        expectSlideButtons(false);
    }

    void expandingEndsTheSingleView()
    {
        m_changes->viewEditView();

        m_changes->onExpandView();

        QVERIFY(!m_changes->bIsInSingleEditView());
        QVERIFY(!m_changes->bIsInEditView());
    }

    void aChangeWhileAnotherStillSlidesWins()
    {
        m_changes->viewEditView();
        m_changes->goToCalendarView();

        QTRY_VERIFY(!window().isSliding());
        QCOMPARE(window().width(), 833);
        QCOMPARE(frameOf(*main().editPlayView).topLeft(), QPointF(833, -50));
    }

    void aLectureThatIsOpenedOffersTheSingleViewAndMovesNothing()
    {
        m_changes->viewEditView();
        QTRY_COMPARE(window().width(), 400);
        const QRectF frame = frameOf(*main().editPlayView);

        m_changes->prepareLectureView();

        QVERIFY(!m_changes->bIsInSingleEditView());
        QVERIFY(m_changes->bIsInEditView());
        QVERIFY(!m_program->windows.lectureViewOutlets().btnSlidetoView->isHidden());
        QVERIFY(m_program->windows.lectureViewOutlets().btnSlideToListView->isHidden());
        QCOMPARE(frameOf(*main().editPlayView).width(), frame.width());
        QCOMPARE(window().width(), 400);
    }

    void endingTheSingleViewShowsWhatStandsOverTheCalendar()
    {
        m_changes->viewEditView();
        QTRY_COMPARE(main().editPlayView->x(), 0);
        moveCalendarAway();

        m_changes->endSingleEditView();

        const QSizeF size = frameOf(*main().calendarView).size();
        QCOMPARE(frameOf(*main().editPlayView), QRectF(QPointF(833, -50), size));
        QCOMPARE(frameOf(*main().calendarView).topLeft(), QPointF(-2, 0));
        QVERIFY(!m_changes->bIsInSingleEditView());
        QVERIFY(m_changes->bIsInEditView());
        QVERIFY(main().calendarView->isVisible() && main().tableListView->isVisible());
        QVERIFY(!main().weekDayView->isHidden());
        QVERIFY(!main().topHorizontalLine->isHidden());
        QVERIFY(m_program->windows.lectureViewOutlets().btnSlidetoView->isHidden());
        QVERIFY(!m_program->windows.lectureViewOutlets().btnSlideToListView->isHidden());
    }

    // After a deletion has brought the list back, the single view's flag alone is still set.
    void endingTheSingleViewHidesWhatStandsOverTheCalendarWhenItIsNotSlidIn()
    {
        m_changes->viewEditView();
        m_changes->goToCalendarView();

        m_changes->endSingleEditView();

        QVERIFY(main().weekDayView->isHidden());
        QVERIFY(main().topHorizontalLine->isHidden());
        QVERIFY(!m_program->windows.lectureViewOutlets().btnSlidetoView->isHidden());
        QVERIFY(m_program->windows.lectureViewOutlets().btnSlideToListView->isHidden());
    }

    void endingTheSingleViewDoesNothingWhereThereIsNone()
    {
        tarvelo::platform::setFrame(*main().editPlayView, {700, -20, 401, 540});

        m_changes->endSingleEditView();

        QCOMPARE(frameOf(*main().editPlayView), QRectF(700, -20, 401, 540));
        QVERIFY(!main().weekDayView->isHidden());
    }

    void everyWidthKeepsOriginAndHeight()
    {
        window().move(30, 40);
        const QPoint origin = window().pos();
        const int height = window().height();

        m_changes->onExpandView();
        QTRY_COMPARE(window().width(), 1234);
        QCOMPARE(window().pos(), origin);
        QCOMPARE(window().height(), height);

        m_changes->goToCalendarView();
        QTRY_COMPARE(window().width(), 833);
        QCOMPARE(window().pos(), origin);
        QCOMPARE(window().height(), height);

        m_changes->viewEditView();
        QTRY_COMPARE(window().width(), 400);
        QCOMPARE(window().pos(), origin);
        QCOMPARE(window().height(), height);
    }

    void theSingleViewSlidesInForHalfASecond()
    {
        AnimationClock clock;

        m_changes->viewEditView();
        clock.pass(490ms);
        QVERIFY(main().editPlayView->x() > 0);

        clock.pass(10ms);
        QCOMPARE(main().editPlayView->x(), 0);
    }

    void resettingForgetsTheArrangement()
    {
        m_changes->viewEditView();

        m_changes->reset();

        QVERIFY(!m_changes->bIsInEditView());
        QVERIFY(!m_changes->bIsInSingleEditView());
    }

private:
    void prepare() override
    {
        ProgramCase::prepare();
        m_changes = std::make_unique<ViewChanges>(main(), m_program->windows.lectureViewOutlets());
        window().show();
    }
    void finish() override
    {
        m_changes.reset();
        ProgramCase::finish();
    }

    const tarvelo::lectures::MainWindowOutlets &main() const
    {
        return m_program->windows.mainOutlets();
    }
    // From where it always is.
    void moveCalendarAway() const
    {
        tarvelo::platform::setFrame(*main().calendarView, {40, 30, 450, 489});
    }
    void expectSlideButtons(bool isSlidIn) const
    {
        const auto &view = m_program->windows.lectureViewOutlets();
        QCOMPARE(view.btnSlidetoView->isHidden(), isSlidIn);
        QCOMPARE(view.btnSlideToListView->isHidden(), !isSlidIn);
        QCOMPARE(main().weekDayView->isHidden(), isSlidIn);
        QCOMPARE(main().topHorizontalLine->isHidden(), isSlidIn);
    }

    std::unique_ptr<ViewChanges> m_changes;
};

QTEST_MAIN(ViewChangesTest)
#include "ViewChangesTest.moc"
