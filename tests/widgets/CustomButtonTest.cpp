#include "widgets/CustomButton.h"

#include "support/HighContrast.h"
#include "support/TestCase.h"
#include "widgets/Drawn.h"

#include <QEnterEvent>
#include <QWindow>

using tarvelo::platform::imageNamed;
using tarvelo::tests::drawn;
using tarvelo::widgets::CustomButton;

namespace {

class Drawings final : public QObject
{
public:
    int count = 0;

    bool eventFilter(QObject *, QEvent *event) override
    {
        count += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
};

// As the calendar keeps the mouse out while a lecture is recorded.
class Refusal final : public QObject
{
public:
    bool eventFilter(QObject *, QEvent *event) override { return event->type() == QEvent::Enter; }
};

} // namespace

class CustomButtonTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theNamesOfItsImagesAreKept()
    {
        CustomButton button;

        button.setNormalImage(QStringLiteral("arrowleft"));
        button.setProperty("hoverImage", QStringLiteral("arrowright"));

        QCOMPARE(button.property("normalImage").toString(), QStringLiteral("arrowleft"));
        QCOMPARE(button.hoverImage(), QStringLiteral("arrowright"));
        QVERIFY(button.image().isNull());
    }

    void theMouseNeverSwapsItsImage()
    {
        CustomButton button;
        button.setImage(imageNamed(QStringLiteral("arrowleft")));
        button.setNormalImage(QStringLiteral("arrowleft"));
        button.setHoverImage(QStringLiteral("arrowright"));
        button.setMouseReady();

        QEnterEvent entering({1, 1}, {1, 1}, {1, 1});
        QCoreApplication::sendEvent(&button, &entering);

        QCOMPARE(button.image().name(), QStringLiteral("arrowleft"));

        QEvent leaving(QEvent::Leave);
        QCoreApplication::sendEvent(&button, &leaving);

        QCOMPARE(button.image().name(), QStringLiteral("arrowleft"));
    }

    void beingMadeReadyTwiceLeavesOneTrackingRectangle()
    {
        CustomButton button;
        QCOMPARE(button.trackingRectCount(), 0);

        button.setMouseReady();
        button.setMouseReady();

        QCOMPARE(button.trackingRectCount(), 1);
    }

    void aButtonOfAWindowsLayoutIsTrackedFromItsAwakening()
    {
        CustomButton button;

        button.awakeFromNib();
        QCOMPARE(button.trackingRectCount(), 1);
        button.setMouseReady();

        QCOMPARE(button.trackingRectCount(), 1);
    }

    void theFirstClickOnAnInactiveWindowCounts()
    {
        QWidget window;
        CustomButton button(&window);
        window.show();
        QWidget other;
        other.show();
        other.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&other));
        QVERIFY(!window.isActiveWindow());
        int pressed = 0;
        button.setAction({"press", [&pressed](QWidget *) { ++pressed; }});

        // To the window, as the desktop sends it, not to the button.
        QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, button.geometry().center());

        QCOMPARE(pressed, 1);
    }

    void itIsDrawnAtOnceAsTheMouseComesAndGoes()
    {
        CustomButton button;
        button.setMouseReady();
        button.show();
        QVERIFY(QTest::qWaitForWindowExposed(&button));
        // The mouse of the tests may lie there already.
        QEvent leaving(QEvent::Leave);
        QCoreApplication::sendEvent(&button, &leaving);
        Drawings drawings;
        button.installEventFilter(&drawings);

        QEnterEvent entering({1, 1}, {1, 1}, {1, 1});
        QCoreApplication::sendEvent(&button, &entering);
        QCOMPARE(drawings.count, 1);

        QCoreApplication::sendEvent(&button, &leaving);
        QCOMPARE(drawings.count, 2);
    }

    void aDrawingWithoutAGroundGetsOneForTheMouseAndADarkerOneForThePress()
    {
        CustomButton button;
        button.resize(10, 20);
        button.setImage(imageNamed(QStringLiteral("arrowleft")));
        button.setPlate({0, 0, 10, 20});
        button.setMouseReady();
        const auto ground = [&button] { return drawn(button).pixelColor(5, 1).lightness(); };
        QEvent leaving(QEvent::Leave);
        QCoreApplication::sendEvent(&button, &leaving);
        const int atRest = ground();

        QEnterEvent entering({1, 1}, {1, 1}, {1, 1});
        QCoreApplication::sendEvent(&button, &entering);
        const int turnedTo = ground();
        button.setDown(true);

        QCOMPARE(atRest, 255);
        QVERIFY(turnedTo < 225);
        QVERIFY(ground() < turnedTo - 10);
    }

    void inHighContrastAnArrowIsUnderlinedForTheMouseAndTurnedAroundForThePress()
    {
        const tarvelo::tests::HighContrast contrast;
        CustomButton button;
        button.resize(10, 20);
        button.setImage(imageNamed(QStringLiteral("arrowleft")));
        button.setPlate({0, 0, 10, 20});
        button.setMouseReady();

        QEnterEvent entering({1, 1}, {1, 1}, {1, 1});
        QCoreApplication::sendEvent(&button, &entering);
        const QImage turnedTo = drawn(button);
        button.setDown(true);

        QCOMPARE(turnedTo.pixelColor(5, 18), QColor(Qt::black));
        QCOMPARE(turnedTo.pixelColor(8, 10), QColor(Qt::white));
        QCOMPARE(drawn(button).pixelColor(8, 10), QColor(Qt::black));
    }

    void aMouseThatItIsNotToldOfDoesNotShowOnIt()
    {
        CustomButton button;
        button.resize(40, 20);
        button.setImage(imageNamed(QStringLiteral("arrowleft")));
        button.setMouseReady();
        const QImage atRest = drawn(button);
        QEnterEvent entering({1, 1}, {1, 1}, {1, 1});
        QEvent leaving(QEvent::Leave);

        Refusal refusal;
        button.installEventFilter(&refusal);
        QCoreApplication::sendEvent(&button, &entering);
        QCOMPARE(drawn(button), atRest);

        button.removeEventFilter(&refusal);
        QCoreApplication::sendEvent(&button, &entering);
        QVERIFY(drawn(button) != atRest);

        // Also when it was tracked anew in between.
        button.setMouseReady();
        QCoreApplication::sendEvent(&button, &leaving);
        QCOMPARE(drawn(button), atRest);
    }

    void itsImageCanBeStretchedOrKeepItsShape()
    {
        CustomButton button;
        button.resize(40, 20);
        button.setImage(imageNamed(QStringLiteral("recordbox")));
        const QImage shaped = drawn(button);
        QCOMPARE(shaped.pixelColor(4, 10), QColor(Qt::white));

        button.setImageScaling(CustomButton::ImageScaling::AxesIndependently);

        QVERIFY(drawn(button).pixelColor(6, 8) != QColor(Qt::white));
    }
};

QTEST_MAIN(CustomButtonTest)
#include "CustomButtonTest.moc"
