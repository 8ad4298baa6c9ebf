#include "widgets/SlidingWindow.h"

#include "support/TestCase.h"

#include <QLineEdit>
#include <QPushButton>

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

    void tabPassesOverWhatIsOutOfSight()
    {
        SlidingWindow window;
        window.setFrameSize(833, 489);
        QPushButton first(&window);
        QWidget pane(&window);
        pane.setGeometry(833, 0, 400, 489);
        QLineEdit outOfSight(&pane);
        QLineEdit last(&window);
        last.move(0, 100);
        window.show();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        first.setFocus();

        QTest::keyClick(&first, Qt::Key_Tab);
        QVERIFY(last.hasFocus());
        QTest::keyClick(&last, Qt::Key_Backtab);
        QVERIFY(first.hasFocus());

        window.setFrameWidth(1234, false);
        QTest::keyClick(&first, Qt::Key_Tab);
        QVERIFY(outOfSight.hasFocus());
    }

    void f6GoesFromPartToPartOfThoseInSight()
    {
        SlidingWindow window;
        window.setFrameSize(833, 489);
        QWidget left(&window);
        QLineEdit first(&left);
        QWidget middle(&window);
        middle.setGeometry(400, 0, 400, 489);
        QLineEdit second(&middle);
        QWidget outside(&window);
        outside.setGeometry(833, 0, 400, 489);
        QLineEdit third(&outside);
        window.setPanes({{&left, [&] { return &first; }},
                         {&middle, [&] { return &second; }},
                         {&outside, [&] { return &third; }}});
        window.show();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));

        first.setFocus();
        QTest::keyClick(&first, Qt::Key_F6);
        QVERIFY(second.hasFocus());
        QTest::keyClick(&second, Qt::Key_F6);
        QVERIFY(first.hasFocus());

        window.setFrameWidth(1234, false);
        QTest::keyClick(&first, Qt::Key_F6, Qt::ShiftModifier);
        QVERIFY(third.hasFocus());
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
