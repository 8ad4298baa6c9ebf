#include "widgets/LightPalette.h"

#include "platform/HighContrast.h"
#include "support/TestCase.h"

#include <QApplication>
#include <QLineEdit>
#include <QPalette>

#include <cmath>

using tarvelo::widgets::setLightPalette;

namespace {

double linear(double part)
{
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

double luminance(const QColor &color)
{
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

// 1 for a text that cannot be told from its ground, 21 for black on white.
double contrast(const QColor &one, const QColor &other)
{
    const auto [dark, light] = std::minmax({luminance(one), luminance(other)});
    return (light + 0.05) / (dark + 0.05);
}

QPalette darkDesktop()
{
    QPalette dark(Qt::white, Qt::black, QColor(60, 60, 60), Qt::black, QColor(30, 30, 30),
                  Qt::white, Qt::white, Qt::black, Qt::black);
    dark.setColor(QPalette::PlaceholderText, Qt::white);
    dark.setColor(QPalette::Highlight, Qt::white);
    dark.setColor(QPalette::HighlightedText, Qt::white);
    return dark;
}

} // namespace

class LightPaletteTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void onADarkDesktopTheGroundsAreLightAllTheSame_data()
    {
        QTest::addColumn<QPalette::ColorRole>("role");
        QTest::newRow("window") << QPalette::Window;
        QTest::newRow("text field") << QPalette::Base;
        QTest::newRow("every other row") << QPalette::AlternateBase;
        QTest::newRow("button") << QPalette::Button;
        QTest::newRow("tool tip") << QPalette::ToolTipBase;
    }
    void onADarkDesktopTheGroundsAreLightAllTheSame()
    {
        QFETCH(const QPalette::ColorRole, role);
        QWidget window;

        setLightPalette(window);

        for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
            QVERIFY(luminance(window.palette().color(group, role)) > 0.9);
    }

    void everyTextStandsOutFromItsGround_data()
    {
        QTest::addColumn<QPalette::ColorRole>("text");
        QTest::addColumn<QPalette::ColorRole>("ground");
        QTest::addColumn<double>("least");
        QTest::newRow("window") << QPalette::WindowText << QPalette::Window << 7.0;
        QTest::newRow("text field") << QPalette::Text << QPalette::Base << 7.0;
        QTest::newRow("every other row") << QPalette::Text << QPalette::AlternateBase << 7.0;
        QTest::newRow("button") << QPalette::ButtonText << QPalette::Button << 7.0;
        QTest::newRow("tool tip") << QPalette::ToolTipText << QPalette::ToolTipBase << 7.0;
        QTest::newRow("selected") << QPalette::HighlightedText << QPalette::Highlight << 4.5;
        QTest::newRow("placeholder") << QPalette::PlaceholderText << QPalette::Base << 4.5;
    }
    void everyTextStandsOutFromItsGround()
    {
        QFETCH(const QPalette::ColorRole, text);
        QFETCH(const QPalette::ColorRole, ground);
        QFETCH(const double, least);
        QWidget window;

        setLightPalette(window);

        for (const auto group : {QPalette::Active, QPalette::Inactive}) {
            const QPalette &palette = window.palette();
            QVERIFY(contrast(palette.color(group, text), palette.color(group, ground)) >= least);
        }
    }

    void theOutlinesOfControlsAreSeen()
    {
        dress(m_before);
        QWidget window;

        setLightPalette(window);

        const QPalette &palette = window.palette();
        QVERIFY(contrast(palette.color(QPalette::Shadow), Qt::white) >= 3);
        QVERIFY(contrast(palette.color(QPalette::Mid), Qt::white) < 2);
    }

    void inHighContrastHairlinesAreBlack()
    {
        QWidget window;

        setLightPalette(window);

        QCOMPARE(window.palette().color(QPalette::Mid), QColor(Qt::black));
        QCOMPARE(window.palette().color(QPalette::Shadow), QColor(Qt::black));
        const QColor disabled = window.palette().color(QPalette::Disabled, QPalette::Shadow);
        QVERIFY(contrast(disabled, Qt::white) >= 3);
        QVERIFY(contrast(disabled, Qt::black) >= 2.5);
    }

    void whatIsDisabledLooksSoAndCanStillBeMadeOut()
    {
        QWidget window;

        setLightPalette(window);

        const QPalette &palette = window.palette();
        const QColor disabled = palette.color(QPalette::Disabled, QPalette::ButtonText);
        QVERIFY(contrast(disabled, palette.color(QPalette::Disabled, QPalette::Button)) >= 2.5);
        QVERIFY(contrast(disabled, palette.color(QPalette::Active, QPalette::ButtonText)) >= 2.5);
    }

    void theControlsInTheWindowHaveItsColours()
    {
        QWidget window;
        QLineEdit field(&window);

        setLightPalette(window);

        QCOMPARE(field.palette().color(QPalette::Base), QColor(Qt::white));
        QCOMPARE(field.palette().color(QPalette::Text), window.palette().color(QPalette::Text));
    }

    void aDesktopThatTurnsDarkLaterChangesNothing()
    {
        dress(m_before);
        QWidget window;
        setLightPalette(window);
        const QPalette light = window.palette();

        QApplication::setPalette(darkDesktop());

        QCOMPARE(window.palette().color(QPalette::Window), QColor(Qt::white));
        QCOMPARE(window.palette().color(QPalette::WindowText), light.color(QPalette::WindowText));
    }

private:
    void prepare() override
    {
        m_before = QApplication::palette();
        dress(darkDesktop());
    }
    void finish() override { dress(m_before); }

    static void dress(const QPalette &palette)
    {
        QApplication::setPalette(palette);
        tarvelo::platform::readContrast();
    }

    QPalette m_before;
};

QTEST_MAIN(LightPaletteTest)
#include "LightPaletteTest.moc"
