#include "app/WindowHints.h"

#include "platform/WindowLevel.h"
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

class WindowHintsTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aNewWindowIsNormal()
    {
        const QWidget window;

        QVERIFY(isMinimiseButtonEnabled(window));
        QVERIFY(!hasFullSizeContent(window));
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
        tarvelo::platform::setWindowLevel(window, 1);

        setMinimiseButtonEnabled(window, false);

        QCOMPARE(tarvelo::platform::windowLevel(window), 1);
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

        tarvelo::platform::makeKeyAndOrderFront(window);

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

QTEST_MAIN(WindowHintsTest)
#include "WindowHintsTest.moc"
