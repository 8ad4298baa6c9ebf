#include "widgets/GradientView.h"

#include "support/TestCase.h"
#include "widgets/Drawn.h"

using tarvelo::tests::drawn;
using tarvelo::widgets::GradientView;

class GradientViewTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void withoutAFrameItIsEmpty()
    {
        const GradientView view;

        QCOMPARE(view.geometry(), QRect(0, 0, 0, 0));
        QVERIFY(view.gradientLayer().colors().isEmpty());
    }

    void anEmptyListGivesTheLayerNoColours()
    {
        GradientView view;
        view.resize(20, 20);
        view.setColors({Qt::red, Qt::blue});

        view.setColors({});

        QVERIFY(view.gradientLayer().colors().isEmpty());
        QCOMPARE(drawn(view).pixelColor(10, 10), QColor(Qt::white));
    }

    void coloursKeepTheirOrderAndAreInRgb()
    {
        GradientView view;

        view.setColors({QColor::fromHsv(240, 255, 255, 128), Qt::red});

        QCOMPARE(view.gradientLayer().colors(),
                 (QList<QColor>{QColor(0, 0, 255, 128), QColor(255, 0, 0)}));
    }

    void theFirstColourIsAtTheBottom()
    {
        GradientView view;
        view.resize(20, 100);

        view.setColors({Qt::blue, Qt::red});

        const QImage image = drawn(view);
        QVERIFY(image.pixelColor(10, 1).red() > 240);
        QVERIFY(image.pixelColor(10, 98).blue() > 240);
    }

    void oneColourFillsTheView()
    {
        GradientView view;
        view.resize(20, 20);

        view.setColors({Qt::red});

        QCOMPARE(drawn(view).pixelColor(10, 3), QColor(Qt::red));
    }

    void noColourIsNoLayerColour()
    {
        QVERIFY(!GradientView::getCGColorFromNSColor(QColor()).has_value());
        QCOMPARE(GradientView::getCGColorFromNSColor(QColor::fromCmyk(0, 255, 255, 0)),
                 QColor(255, 0, 0));
    }
};

QTEST_MAIN(GradientViewTest)
#include "GradientViewTest.moc"
