#include "widgets/LayerView.h"

#include "support/TestCase.h"
#include "widgets/Drawn.h"

using tarvelo::tests::drawn;
using tarvelo::widgets::LayerView;

class LayerViewTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aBorderShowsOnceTheViewWantsItsLayer()
    {
        LayerView view;
        view.resize(40, 40);
        view.setLayer({.cornerRadius = 4, .borderWidth = 2, .borderColor = Qt::red});
        QCOMPARE(drawn(view).pixelColor(20, 0), QColor(Qt::white));

        view.setProperty("wantsLayer", true);

        const QImage image = drawn(view);
        QCOMPARE(image.pixelColor(20, 0), QColor(Qt::red));
        QCOMPARE(image.pixelColor(20, 20), QColor(Qt::white));
        QVERIFY(image.pixelColor(0, 0) != QColor(Qt::red));
    }

    void aLayerWithoutBorderDrawsNothing()
    {
        LayerView view;
        view.resize(40, 40);
        view.setLayer({.cornerRadius = 6});

        view.setWantsLayer(true);

        QCOMPARE(drawn(view).pixelColor(20, 0), QColor(Qt::white));
    }
};

QTEST_MAIN(LayerViewTest)
#include "LayerViewTest.moc"
