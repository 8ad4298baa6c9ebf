#include "platform/Frames.h"

#include "support/ScreenWithPanels.h"
#include "support/TestCase.h"

#include <QScreen>
#include <QWidget>

using namespace tarvelo::platform;

class FramesTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aFrameCountsFromTheBottomOfItsParent()
    {
        QCOMPARE(flipped({10, 20, 30, 40}, 100), QRect(10, 40, 30, 40));
    }

    void edgesAreRoundedSoThatNeighboursMeet()
    {
        const QRect left = flipped({0, 0, 59.43, 10}, 100);
        const QRect right = flipped({59.43, 0, 59.43, 10}, 100);

        QCOMPARE(left.x() + left.width(), right.x());
    }

    void aViewIsPlacedInItsParentAndSaysWhereItIs()
    {
        QWidget parent;
        parent.resize(200, 100);
        QWidget view(&parent);

        setFrame(view, {10, 20, 30, 40});

        QCOMPARE(view.geometry(), QRect(10, 40, 30, 40));
        QCOMPARE(frameOf(view), QRectF(10, 20, 30, 40));
    }

    void aViewWithoutParentTakesTheSizeAndGivesItsFrameBack()
    {
        QWidget view;

        setFrame(view, {0, 0, 320, 320});

        QCOMPARE(view.size(), QSize(320, 320));
        QCOMPARE(frameOf(view), QRectF(0, 0, 320, 320));
    }

    void onTheScreenPlacesCountFromItsLowerLeftCorner()
    {
        const QRect screen = QGuiApplication::primaryScreen()->geometry();
        QWidget window;

        setFrameOnScreen(window, {10, 20, 30, 40});

        QCOMPARE(window.geometry(), QRect(10, screen.height() - 60, 30, 40));
        QCOMPARE(frameOnScreen(window), QRectF(10, 20, 30, 40));
        QCOMPARE(placeOnScreen(QPointF(5, screen.height() - 1.5)), QPointF(5, 1.5));
    }

    void theVisibleFrameIsWhatPanelsLeaveOfTheScreen()
    {
        const QScreen &screen = *QGuiApplication::primaryScreen();
        const QSize whole = screen.geometry().size();

        QCOMPARE(visibleFrame(screen),
                 QRectF(7, 43, whole.width() - 7 - 11, whole.height() - 31 - 43));
    }
};

QTEST_MAIN(FramesTest)
#include "FramesTest.moc"
