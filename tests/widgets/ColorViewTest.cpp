#include "widgets/ColorView.h"

#include "support/TestCase.h"
#include "widgets/Drawn.h"

using tarvelo::tests::drawn;
using tarvelo::widgets::ColorView;

class ColorViewTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void itIsFilledWithItsColour()
    {
        ColorView view;
        view.resize(20, 10);

        view.setProperty("baseColor", QColor(Qt::red));

        QCOMPARE(view.baseColor(), QColor(Qt::red));
        QCOMPARE(drawn(view).pixelColor(0, 0), QColor(Qt::red));
        QCOMPARE(drawn(view).pixelColor(19, 9), QColor(Qt::red));
    }

    void withoutColourItDrawsNothing()
    {
        ColorView view;
        view.resize(20, 10);

        QCOMPARE(drawn(view).pixelColor(5, 5), QColor(Qt::white));
    }
};

QTEST_MAIN(ColorViewTest)
#include "ColorViewTest.moc"
