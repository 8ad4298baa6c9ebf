#include "widgets/ImageButton.h"

#include "support/HighContrast.h"
#include "support/TestCase.h"
#include "widgets/Drawn.h"
#include "widgets/LightPalette.h"

#include <QHelpEvent>
#include <QPointer>
#include <QToolTip>

using tarvelo::platform::contrastOf;
using tarvelo::platform::imageNamed;
using tarvelo::tests::drawn;
using tarvelo::tests::pixelsApart;
using tarvelo::widgets::ImageButton;

namespace {

constexpr QColor Red(252, 39, 52);

int inkedPixels(const QImage &image)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            count += image.pixelColor(x, y) != QColor(Qt::white) ? 1 : 0;
    return count;
}

} // namespace

class ImageButtonTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aClickRunsTheActionWithTheButtonAsSender()
    {
        ImageButton button;
        QWidget *heard = nullptr;
        button.setAction({"record", [&heard](QWidget *sender) { heard = sender; }});

        button.click();

        QCOMPARE(heard, &button);
        QCOMPARE(button.actionName(), QByteArray("record"));
    }

    void theToolTipAndTheDescriptionSayTheKeysOfAButton()
    {
        ImageButton button;
        button.setToolTip(QStringLiteral("Pause"));
        button.setKeys(Qt::CTRL | Qt::Key_R);
        QHelpEvent asked(QEvent::ToolTip, {1, 1}, {1, 1});

        QCoreApplication::sendEvent(&button, &asked);

        QCOMPARE(QToolTip::text(), QStringLiteral("Pause (Ctrl+R)"));
        QCOMPARE(button.toolTip(), QStringLiteral("Pause"));
        QCOMPARE(button.accessibleDescription(), QStringLiteral("Ctrl+R"));
        QToolTip::hideText();
    }

    void whereReturnPressesTheButtonItShowsTheKeyboardFromTheStart()
    {
        ImageButton button;
        button.setImage(imageNamed(QStringLiteral("recordbox")));
        button.setFocusPolicy(Qt::StrongFocus);
        button.setAutoDefault(true);
        const QImage without = button.grab().toImage();

        button.setFocus(Qt::PopupFocusReason);
        button.show();
        button.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&button));

        QTRY_VERIFY(button.grab().toImage() != without);
    }

    void whoTurnsToADrawingSeesItDarkerAndPressedDarkerStill()
    {
        ImageButton button;
        button.setImage(imageNamed(QStringLiteral("menu")));
        button.resize(24, 24);
        const auto ground = [&button] { return drawn(button).pixelColor(12, 3).lightness(); };
        const int atRest = ground();

        button.setAttribute(Qt::WA_UnderMouse);
        const int turnedTo = ground();
        button.setDown(true);
        const int pressed = ground();

        QVERIFY(turnedTo < atRest);
        QVERIFY(pressed < turnedTo);
        button.setDown(false);
        button.setEnabled(false);
        QVERIFY(ground() > atRest);
    }

    void inHighContrastADrawingIsFramedForTheMouseAndTurnedAroundForThePress()
    {
        const tarvelo::tests::HighContrast contrast;
        ImageButton button;
        button.setLook(QStringLiteral("play"), QStringLiteral("playH"), {});
        button.resize(44, 44);
        const QImage atRest = drawn(button);

        button.setAttribute(Qt::WA_UnderMouse);
        const QImage turnedTo = drawn(button);
        button.setDown(true);
        const QImage pressed = drawn(button);

        QVERIFY(pixelsApart(atRest, turnedTo) > 40);
        QVERIFY(pixelsApart(turnedTo, pressed) > 400);
        QCOMPARE(turnedTo.pixelColor(22, 8), QColor(Qt::white));
        QCOMPARE(pressed.pixelColor(22, 8), QColor(Qt::black));
        QCOMPARE(pressed.pixelColor(20, 22), QColor(Qt::white));
    }

    void inHighContrastADisabledDrawingIsAsGreyAsADisabledText()
    {
        const tarvelo::tests::HighContrast contrast;
        ImageButton button;
        tarvelo::widgets::setLightPalette(button);
        button.setImage(imageNamed(QStringLiteral("play")));
        button.resize(44, 44);

        button.setEnabled(false);

        const QColor symbol = drawn(button).pixelColor(20, 22);
        QCOMPARE(symbol, button.palette().color(QPalette::Disabled, QPalette::ButtonText));
        QVERIFY(contrastOf(symbol, Qt::white) >= 3);
    }

    void aDisabledButtonDoesNothing()
    {
        ImageButton button;
        bool ran = false;
        button.setAction({"record", [&ran](QWidget *) { ran = true; }});
        button.setEnabled(false);

        button.click();

        QVERIFY(!ran);
    }

    void anActionMayExchangeItself()
    {
        ImageButton button;
        button.setAction({"start", [&button](QWidget *) { button.setAction({"stop", {}}); }});

        button.click();
        button.click();

        QCOMPARE(button.actionName(), QByteArray("stop"));
    }

    void anActionMayEndTheButton()
    {
        QPointer<ImageButton> button = new ImageButton;
        button->setAction({"end", [&button](QWidget *) { button->deleteLater(); }});

        button->click();
        QCoreApplication::sendPostedEvents(button, QEvent::DeferredDelete);

        QVERIFY(button.isNull());
    }

    void onlyAToggleButtonCanBeOn()
    {
        ImageButton button;
        button.setState(1);
        QCOMPARE(button.state(), 0);

        button.setCheckable(true);
        button.setState(1);

        QCOMPARE(button.state(), 1);
    }

    void theTagIsKept()
    {
        ImageButton button;

        button.setTag(7);

        QCOMPARE(button.tag(), 7);
    }

    void theImageIsAsLargeAsItsDrawingAndInTheMiddle()
    {
        ImageButton button;
        button.resize(101, 101);
        button.setImage(imageNamed(QStringLiteral("recordbox"))); // 51 by 51

        const QImage image = drawn(button);

        QCOMPARE(image.pixelColor(50, 50), Red);
        QCOMPARE(image.pixelColor(50, 24), QColor(Qt::white));
        QCOMPARE(image.pixelColor(28, 50), QColor(Qt::white));
        QCOMPARE(button.sizeHint(), QSize(51, 51));
    }

    void aSmallButtonShrinksItsImage()
    {
        ImageButton button;
        button.resize(26, 26);
        button.setImage(imageNamed(QStringLiteral("recordbox")));

        const QImage image = drawn(button);

        QCOMPARE(image.pixelColor(12, 10), Red);
        QCOMPARE(image.pixelColor(12, 24), QColor(Qt::white));
    }

    void theAlternateImageShowsWhileThePressLasts()
    {
        ImageButton button;
        button.resize(51, 51);
        button.setImage(imageNamed(QStringLiteral("selDateImg")));
        button.setAlternateImage(imageNamed(QStringLiteral("recordbox")));
        QVERIFY(drawn(button).pixelColor(25, 20) != Red);

        button.setDown(true);

        QCOMPARE(drawn(button).pixelColor(25, 20), Red);
    }

    void aDisabledButtonIsPale()
    {
        ImageButton button;
        button.resize(51, 51);
        button.setImage(imageNamed(QStringLiteral("recordbox")));
        button.setEnabled(false);

        const QColor shown = drawn(button).pixelColor(25, 20);

        QVERIFY(shown.green() > 150 && shown.green() < 220);
    }

    void drawingsAreCrispOnFineScreens()
    {
        ImageButton button;
        button.resize(20, 20);
        button.setImage(imageNamed(QStringLiteral("arrowright")));

        const QImage coarse = drawn(button, 1);
        const QImage fine = drawn(button, 2);

        // Drawn anew, not magnified: blocks of two by two pixels would all be of one colour.
        QCOMPARE(fine.size(), QSize(40, 40));
        QVERIFY(fine != coarse.scaled(fine.size()));
        QVERIFY(inkedPixels(fine) > 2 * inkedPixels(coarse));
    }

    void theKeyboardsRingHasTheShapeOfTheDrawingAndLeavesItWhole_data()
    {
        QTest::addColumn<QString>("drawing");
        QTest::addColumn<bool>("isRound");
        QTest::newRow("disc") << QStringLiteral("close") << true;
        QTest::newRow("square") << QStringLiteral("timetag") << false;
    }
    void theKeyboardsRingHasTheShapeOfTheDrawingAndLeavesItWhole()
    {
        QFETCH(const QString, drawing);
        QFETCH(const bool, isRound);
        QWidget window;
        ImageButton button(&window);
        button.resize(28, 28); // the drawing has 24
        button.setImage(imageNamed(drawing));
        auto *other = new ImageButton(&window);
        window.show();
        window.activateWindow();
        other->setFocus();
        QTRY_VERIFY(other->hasFocus());
        const QImage without = drawn(button);

        button.setFocus(Qt::TabFocusReason);

        const QImage with = drawn(button);
        const QColor ring = button.palette().color(QPalette::Highlight);
        QCOMPARE(with.pixelColor(1, 14), ring);
        QCOMPARE(with.pixelColor(14, 1), ring);
        // A disc is far from the corners of the square around it.
        QCOMPARE(with.pixelColor(3, 3) == QColor(Qt::white), isRound);
        QCOMPARE(with.copy(6, 6, 16, 16), without.copy(6, 6, 16, 16));
        QCOMPARE(with.copy(3, 12, 22, 4), without.copy(3, 12, 22, 4));
    }

    void theFocusShows()
    {
        QWidget window;
        ImageButton button(&window);
        button.resize(51, 51);
        button.setImage(imageNamed(QStringLiteral("arrowright")));
        auto *other = new ImageButton(&window);
        window.show();
        window.activateWindow();
        other->setFocus();
        QTRY_VERIFY(other->hasFocus());
        const QImage without = drawn(button);

        button.setFocus();

        QVERIFY(drawn(button) != without);
    }
};

QTEST_MAIN(ImageButtonTest)
#include "ImageButtonTest.moc"
