#include "widgets/MenuPainting.h"

#include "support/HighContrast.h"
#include "support/TestCase.h"
#include "widgets/ControlStyle.h"
#include "widgets/LightPalette.h"

#include <QApplication>
#include <QImage>
#include <QMenu>
#include <QPainter>
#include <QStyleOptionMenuItem>

using namespace Qt::StringLiterals;
using tarvelo::platform::contrastOf;
using tarvelo::tests::HighContrast;

namespace {

// As light menus have it.
constexpr double Seen = 1.7;

QColor groundOf(const QImage &menu)
{
    return menu.pixelColor(2, 2);
}

} // namespace

class MenuPaintingTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QApplication::setStyle(new tarvelo::widgets::ControlStyle); }

    void theLinesOfAMenuAreSeenOnLightAndDark_data()
    {
        QTest::addColumn<QPalette>("palette");
        QWidget window;
        tarvelo::widgets::setLightPalette(window);
        QPalette dark(QColor(0x35, 0x35, 0x35), QColor(0x35, 0x35, 0x35));
        dark.setColor(QPalette::Base, QColor(0x23, 0x23, 0x23));
        QTest::newRow("light") << window.palette();
        QTest::newRow("dark") << dark;
    }
    void theLinesOfAMenuAreSeenOnLightAndDark()
    {
        QFETCH(const QPalette, palette);

        const QImage menu = pictureOf(palette);

        QVERIFY(contrastOf(groundOf(menu), menu.pixelColor(0, menu.height() / 2)) >= Seen);
        QVERIFY(strongestInColumn(menu) >= Seen);
    }

    void inHighContrastTheyAreAsBlackAsTheTexts()
    {
        const HighContrast contrast;
        QWidget window;
        tarvelo::widgets::setLightPalette(window);

        const QImage menu = pictureOf(window.palette());

        QCOMPARE(menu.pixelColor(0, menu.height() / 2), QColor(Qt::black));
        QCOMPARE(strongestInColumn(menu), 21.0);
    }

    void theArrowToAMenuGrowsWithTheText()
    {
        const int usual = inkOfArrow(12);

        QVERIFY(usual > 10);
        QVERIFY(inkOfArrow(18) > 2 * usual);
    }

    void theArrowPointsToWhereTheMenuOpens()
    {
        const QImage right = arrow(18, false);
        const QImage left = arrow(18, true);

        QVERIFY(right != left);
        QCOMPARE(left.mirrored(true, false), right);
    }

private:
    static QImage pictureOf(const QPalette &palette)
    {
        QMenu menu;
        menu.setPalette(palette);
        menu.addAction(u"New Lecture"_s);
        menu.addSeparator();
        menu.addAction(u"Quit"_s);
        return menu.grab().toImage().convertToFormat(QImage::Format_RGB32);
    }

    // Where there are no letters, and no frame.
    static double strongestInColumn(const QImage &menu)
    {
        double strongest = 1;
        for (int y = 2; y < menu.height() - 2; ++y)
            strongest = std::max(strongest, contrastOf(groundOf(menu), menu.pixelColor(8, y)));
        return strongest;
    }

    static QImage arrow(int pixels, bool isToTheLeft)
    {
        QFont font;
        font.setPixelSize(pixels);
        QStyleOptionMenuItem option;
        option.fontMetrics = QFontMetrics(font);
        option.rect = QRect(0, 0, 40, 40);
        option.palette = QPalette(Qt::white);
        QImage image(40, 40, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        tarvelo::widgets::paintSubmenuArrow(painter, option, isToTheLeft);
        return image;
    }

    static int inkOfArrow(int pixels)
    {
        const QImage image = arrow(pixels, false);
        int count = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                count += image.pixelColor(x, y) != QColor(Qt::white) ? 1 : 0;
        return count;
    }
};

QTEST_MAIN(MenuPaintingTest)
#include "MenuPaintingTest.moc"
