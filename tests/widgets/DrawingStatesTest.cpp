#include "widgets/DrawingStates.h"

#include "platform/HighContrast.h"
#include "support/TestCase.h"

#include <QImage>

using namespace tarvelo::widgets;
using tarvelo::platform::contrastOf;

namespace {

constexpr QColor Red(252, 39, 52);

// A square of ten points in the middle of a canvas of twenty.
QImage square(const QColor &colour)
{
    QImage drawing(20, 20, QImage::Format_ARGB32_Premultiplied);
    drawing.fill(Qt::transparent);
    for (int y = 5; y < 15; ++y)
        for (int x = 5; x < 15; ++x)
            drawing.setPixelColor(x, y, colour);
    return drawing;
}

} // namespace

class DrawingStatesTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aShadeDarkensTheDrawingAlone()
    {
        QImage drawing = square(Qt::white);

        shade(drawing, Qt::black, 0.5F);

        QVERIFY(std::abs(drawing.pixelColor(10, 10).red() - 128) <= 1);
        QCOMPARE(drawing.pixelColor(1, 1).alpha(), 0);
    }

    void blackAndWhiteChangePlacesAndRedStaysRed()
    {
        QImage white = square(Qt::white);
        QImage black = square(Qt::black);
        QImage red = square(Red);

        for (QImage *drawing : {&white, &black, &red})
            exchangeBlackAndWhite(*drawing);

        QCOMPARE(white.pixelColor(10, 10), QColor(Qt::black));
        QCOMPARE(black.pixelColor(10, 10), QColor(Qt::white));
        QCOMPARE(red.pixelColor(10, 10).hue(), Red.hue());
        QCOMPARE(white.pixelColor(1, 1).alpha(), 0);
    }

    void whatIsHalfSeeThroughStaysSo()
    {
        QImage drawing = square(QColor(255, 255, 255, 128));

        exchangeBlackAndWhite(drawing);

        QCOMPARE(drawing.pixelColor(10, 10), QColor(0, 0, 0, 128));
    }

    void aFrameLiesAlongTheInsideOfTheEdge()
    {
        QImage drawing = square(Qt::white);

        frame(drawing, {5, 5, 10, 10}, 3, Qt::black);

        for (const int at : {5, 7, 12, 14})
            QCOMPARE(drawing.pixelColor(at, 10), QColor(Qt::black));
        for (const int at : {8, 11})
            QCOMPARE(drawing.pixelColor(at, 10), QColor(Qt::white));
        QCOMPARE(drawing.pixelColor(4, 10).alpha(), 0);
    }

    void whatFadesIsGreyAndStillStandsOutFromWhite()
    {
        const QColor darkest(85, 85, 85);
        QImage white = square(Qt::white);
        QImage black = square(Qt::black);
        QImage red = square(Red);

        for (QImage *drawing : {&white, &black, &red})
            fade(*drawing, darkest);

        QCOMPARE(white.pixelColor(10, 10), QColor(Qt::white));
        QCOMPARE(black.pixelColor(10, 10), darkest);
        QCOMPARE(red.pixelColor(10, 10).saturation(), 0);
        QVERIFY(contrastOf(red.pixelColor(10, 10), Qt::white) >= 3);
    }
};

QTEST_MAIN(DrawingStatesTest)
#include "DrawingStatesTest.moc"
