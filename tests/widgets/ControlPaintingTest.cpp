#include "widgets/ControlPainting.h"

#include "support/HighContrast.h"
#include "support/TestCase.h"
#include "widgets/Colours.h"
#include "widgets/ControlStyle.h"
#include "widgets/LightPalette.h"

#include <QApplication>
#include <QCheckBox>
#include <QDialog>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QSlider>
#include <QStyleOptionSlider>

#include <memory>

using namespace Qt::StringLiterals;
using namespace tarvelo::widgets;
using tarvelo::platform::contrastOf;
using tarvelo::tests::HighContrast;
using tarvelo::tests::pixelsApart;

namespace {

// A line along the short side of the smallest control.
constexpr int Plainly = 20;

QImage look(QWidget &control)
{
    return control.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

// At rest, under the mouse and pressed.
QList<QImage> looks(QAbstractButton &button)
{
    QList<QImage> all{look(button)};
    button.setAttribute(Qt::WA_UnderMouse);
    all.append(look(button));
    button.setDown(true);
    all.append(look(button));
    return all;
}

QImage lookOf(const QSlider &slider, QStyle::State state)
{
    QStyleOptionSlider option;
    option.initFrom(&slider);
    option.rect = QRect(0, 0, 200, 20);
    option.maximum = 100;
    option.sliderPosition = slider.value();
    option.upsideDown = slider.isRightToLeft();
    option.state |= state;
    option.activeSubControls = QStyle::SC_SliderHandle;
    QImage image(option.rect.size(), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    QApplication::style()->drawComplexControl(QStyle::CC_Slider, &option, &painter, nullptr);
    return image;
}

bool hasColour(const QImage &image, const QRect &place, const QColor &colour)
{
    for (int y = place.top(); y <= place.bottom(); ++y)
        for (int x = place.left(); x <= place.right(); ++x)
            if (image.pixelColor(x, y).hsvSaturation() > 20 &&
                std::abs(image.pixelColor(x, y).hue() - colour.hue()) < 10)
                return true;
    return false;
}

} // namespace

class ControlPaintingTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QApplication::setStyle(new ControlStyle); }

    void aTitleInRedCanBeReadUnderTheMouseAndPressedAsWellAsAtRest()
    {
        QWidget window;
        setLightPalette(window);
        QPushButton button(u"Done"_s, &window);
        QPalette palette = button.palette();
        palette.setColor(QPalette::ButtonText, Red);
        button.setPalette(palette);

        const QList<QImage> all = looks(button);

        for (const QImage &image : all)
            QCOMPARE(image.pixelColor(8, 16), QColor(Qt::white));
        QVERIFY(pixelsApart(all[0], all[1]) > Plainly);
        QVERIFY(all[1] != all[2]);
    }

    void inHighContrastEachStateIsToldPlainlyFromTheOthers_data()
    {
        QTest::addColumn<QString>("kind");
        for (const char *kind : {"button", "red button", "default button", "box", "ticked box",
                                 "circle", "ticked circle"})
            QTest::newRow(kind) << QString::fromLatin1(kind);
    }
    void inHighContrastEachStateIsToldPlainlyFromTheOthers()
    {
        QFETCH(const QString, kind);
        const HighContrast contrast;
        QDialog window;
        setLightPalette(window);
        const std::unique_ptr<QAbstractButton> button = made(kind, window);

        const QList<QImage> all = looks(*button);

        QVERIFY(pixelsApart(all[0], all[1]) > Plainly);
        QVERIFY(pixelsApart(all[1], all[2]) > Plainly);
        QVERIFY(pixelsApart(all[0], all[2]) > Plainly);
    }

    void inHighContrastATitleIsReadWhileItsButtonIsPressed()
    {
        const HighContrast contrast;
        QWidget window;
        setLightPalette(window);
        QPushButton button(u"MMMM"_s, &window);

        button.setDown(true);
        const QImage pressed = look(button);

        QCOMPARE(pressed.pixelColor(8, 16), QColor(Qt::black));
        int white = 0;
        for (int x = 10; x < pressed.width() - 10; ++x)
            white += pressed.pixelColor(x, 16).lightness() > 200 ? 1 : 0;
        QVERIFY(white > 3);
    }

    void theKnobOfASliderShowsTheMouseAndThePress_data()
    {
        QTest::addColumn<bool>("isHigh");
        QTest::addColumn<int>("apart");
        QTest::newRow("usual") << false << -1;
        QTest::newRow("in high contrast") << true << Plainly;
    }
    void theKnobOfASliderShowsTheMouseAndThePress()
    {
        QFETCH(const bool, isHigh);
        QFETCH(const int, apart);
        const auto contrast = isHigh ? std::make_unique<HighContrast>() : nullptr;
        QSlider slider(Qt::Horizontal);
        setLightPalette(slider);

        const QImage atRest = lookOf(slider, {});
        const QImage turnedTo = lookOf(slider, QStyle::State_MouseOver);
        const QImage pressed = lookOf(slider, QStyle::State_Sunken);

        QVERIFY(turnedTo != atRest);
        QVERIFY(pressed != turnedTo);
        QVERIFY(pixelsApart(atRest, turnedTo) > apart);
        QVERIFY(pixelsApart(turnedTo, pressed) > apart);
    }

    void aSliderAtItsBeginningHasNothingFilled_data()
    {
        QTest::addColumn<Qt::LayoutDirection>("direction");
        QTest::newRow("left to right") << Qt::LeftToRight;
        QTest::newRow("right to left") << Qt::RightToLeft;
    }
    void aSliderAtItsBeginningHasNothingFilled()
    {
        QFETCH(const Qt::LayoutDirection, direction);
        QSlider slider(Qt::Horizontal);
        setLightPalette(slider);
        slider.setLayoutDirection(direction);
        const QRect all(0, 0, 200, 20);

        QVERIFY(!hasColour(lookOf(slider, {}), all, colours().accent));
        slider.setValue(50);
        QVERIFY(hasColour(lookOf(slider, {}), all, colours().accent));
    }

    void inHighContrastWhatWasPlayedIsThickerThanTheRest()
    {
        const HighContrast contrast;
        QSlider slider(Qt::Horizontal);
        setLightPalette(slider);
        slider.setValue(50);

        const QImage image = lookOf(slider, {});
        const auto thickness = [&](int x) {
            int count = 0;
            for (int y = 0; y < image.height(); ++y)
                count += contrastOf(image.pixelColor(x, y), Qt::white) >= 3 ? 1 : 0;
            return count;
        };

        QVERIFY(thickness(40) >= 2 * thickness(160));
        QVERIFY(thickness(160) > 0);
    }

    void inHighContrastAScrollBarIsWiderForWhoTurnsToIt()
    {
        const HighContrast contrast;
        QWidget window;
        setLightPalette(window);
        QScrollBar bar(Qt::Vertical, &window);
        bar.setRange(0, 300);
        bar.setPageStep(100);
        bar.resize(12, 200);
        const QImage atRest = look(bar);

        bar.setAttribute(Qt::WA_UnderMouse);

        QVERIFY(pixelsApart(atRest, look(bar)) > Plainly);
    }

    void boxesAndCirclesGrowWithTheTextBesideThem()
    {
        QFont font;
        const auto side = [&font](int pixels) {
            font.setPixelSize(pixels);
            return indicatorSide(font);
        };

        QCOMPARE(side(12), 16);
        QCOMPARE(side(9), 16);
        QCOMPARE(side(18), 24);
        QCheckBox box;
        font.setPixelSize(18);
        box.setFont(font);
        QVERIFY(box.sizeHint().height() >= 24);
    }

private:
    static std::unique_ptr<QAbstractButton> made(const QString &kind, QWidget &window)
    {
        if (kind.contains(u"button"_s)) {
            auto button = std::make_unique<QPushButton>(u"Done"_s, &window);
            button->setDefault(kind.startsWith(u"default"_s));
            QPalette palette = button->palette();
            if (kind.startsWith(u"red"_s))
                palette.setColor(QPalette::ButtonText, Red);
            button->setPalette(palette);
            return button;
        }
        std::unique_ptr<QAbstractButton> button;
        if (kind.contains(u"box"_s))
            button = std::make_unique<QCheckBox>(&window);
        else
            button = std::make_unique<QRadioButton>(&window);
        button->setChecked(kind.startsWith(u"ticked"_s));
        return button;
    }
};

QTEST_MAIN(ControlPaintingTest)
#include "ControlPaintingTest.moc"
