#include "app/MainWindowLooks.h"

#include "support/TestCase.h"

#include <QSignalSpy>
#include <QWidget>
#include <QWindow>

using namespace tarvelo::app;

namespace {

// Counts how often a window was hidden.
class Watched final : public QWidget
{
public:
    int hides = 0;

protected:
    void hideEvent(QHideEvent *) override { ++hides; }
};

} // namespace

class MainWindowLooksTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aNewWindowIsNormal()
    {
        const QWidget window;

        QCOMPARE(windowLevel(window), 0);
        QVERIFY(isMinimiseButtonEnabled(window));
        QVERIFY(!hasFullSizeContent(window));
    }

    void theLevelOfAWindowThatShowsChangesWithoutHidingIt()
    {
        Watched window;
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));

        setWindowLevel(window, 1);
        QCOMPARE(windowLevel(window), 1);
        QVERIFY(window.windowHandle()->flags().testFlag(Qt::WindowStaysOnTopHint));

        setWindowLevel(window, 0);
        QCOMPARE(windowLevel(window), 0);
        QVERIFY(!window.windowHandle()->flags().testFlag(Qt::WindowStaysOnTopHint));
        QCOMPARE(window.hides, 0);
        QVERIFY(window.isVisible());
    }

    void aLevelSetBeforeTheFirstShowIsThatOfTheWindow()
    {
        QWidget window;
        setWindowLevel(window, 1);

        window.show();

        QVERIFY(window.windowHandle()->flags().testFlag(Qt::WindowStaysOnTopHint));
    }

    void theMinimiseButtonIsSwitchedOffWithoutHidingTheWindow()
    {
        Watched window;
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));

        setMinimiseButtonEnabled(window, false);
        QVERIFY(!isMinimiseButtonEnabled(window));
        QVERIFY(window.windowHandle()->flags().testFlag(Qt::WindowCloseButtonHint));

        setMinimiseButtonEnabled(window, true);
        QVERIFY(isMinimiseButtonEnabled(window));
        QCOMPARE(window.hides, 0);
    }

    void theLevelStaysWhenTheMinimiseButtonChanges()
    {
        QWidget window;
        setWindowLevel(window, 1);

        setMinimiseButtonEnabled(window, false);

        QCOMPARE(windowLevel(window), 1);
    }

    void fullSizeContentIsRemembered()
    {
        QWidget window;

        setFullSizeContent(window);

        QVERIFY(hasFullSizeContent(window));
        QCOMPARE(window.property("styleMask").toInt(), 32768);
    }

    void aMinimisedWindowIsNotOnTheScreenAndComesToTheFront()
    {
        QWidget window;
        QVERIFY(!isOnScreen(window));
        window.showMinimized();
        QVERIFY(!isOnScreen(window));

        makeKeyAndOrderFront(window);

        QVERIFY(isOnScreen(window));
    }

    void activatingBringsNoHiddenWindowToTheScreen()
    {
        QWidget shown;
        QWidget hidden;
        shown.show();
        hidden.winId();

        activateIgnoringOtherApps();

        QVERIFY(shown.isVisible());
        QVERIFY(!hidden.isVisible());
    }
};

QTEST_MAIN(MainWindowLooksTest)
#include "MainWindowLooksTest.moc"
