#include "widgets/SlidingWindow.h"

#include "support/TestCase.h"

using tarvelo::widgets::SlidingWindow;

class SlidingWindowTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theSizeIsExactlyAsSet()
    {
        SlidingWindow window;

        window.setFrameSize(833, 489);

        QCOMPARE(window.size(), QSize(833, 489));
        QCOMPARE(window.frameWidth(), 833);
    }

    void aHiddenWindowTakesItsWidthAtOnce()
    {
        SlidingWindow window;
        window.setFrameSize(833, 489);

        window.setFrameWidth(452, true);

        QCOMPARE(window.width(), 452);
        QVERIFY(!window.isSliding());
    }

    void aVisibleWindowSlidesAndEndsExactly()
    {
        SlidingWindow window;
        window.setFrameSize(833, 489);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        const QPoint corner = window.pos();

        window.setFrameWidth(452, true);
        QCOMPARE(window.frameWidth(), 452);
        QVERIFY(window.isSliding());

        QTRY_VERIFY(!window.isSliding());
        QCOMPARE(window.size(), QSize(452, 489));
        QCOMPARE(window.pos(), corner);
    }

    void aNewWidthOnTheWayTakesOver()
    {
        SlidingWindow window;
        window.setFrameSize(833, 489);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));

        window.setFrameWidth(452, true);
        window.setFrameWidth(1234, true);

        QCOMPARE(window.frameWidth(), 1234);
        QTRY_COMPARE(window.width(), 1234);
        QTRY_VERIFY(!window.isSliding());
        QCOMPARE(window.width(), 1234);
    }

    void aWidthWithoutSlidingStopsTheSlide()
    {
        SlidingWindow window;
        window.setFrameSize(833, 489);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        window.setFrameWidth(452, true);

        window.setFrameWidth(400, false);

        QVERIFY(!window.isSliding());
        QCOMPARE(window.width(), 400);
    }

    void theUserCannotResizeIt()
    {
        SlidingWindow window;
        window.setFrameSize(833, 489);

        QCOMPARE(window.minimumSize(), window.maximumSize());
    }
};

QTEST_MAIN(SlidingWindowTest)
#include "SlidingWindowTest.moc"
