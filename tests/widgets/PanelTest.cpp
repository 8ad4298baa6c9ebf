#include "widgets/Panel.h"

#include "support/HighContrast.h"
#include "support/TestCase.h"
#include "widgets/Colours.h"

#include <QImage>

using tarvelo::widgets::colours;
using tarvelo::widgets::Panel;

class PanelTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void itHasAGroundOfItsOwnUpToItsRoundCorners()
    {
        const QImage panel = look();

        QCOMPARE(panel.pixelColor(0, 20), colours().panel);
        QCOMPARE(panel.pixelColor(40, 20), colours().panel);
        QVERIFY(panel.pixelColor(0, 0) != colours().panel);
        QVERIFY(panel.pixelColor(79, 39) != colours().panel);
    }

    void inHighContrastALineIsAroundIt()
    {
        const tarvelo::tests::HighContrast contrast;

        const QImage panel = look();

        for (const QPoint at : {QPoint(0, 20), QPoint(79, 20), QPoint(40, 0), QPoint(40, 39)})
            QCOMPARE(panel.pixelColor(at), QColor(Qt::black));
        QCOMPARE(panel.pixelColor(40, 20), QColor(Qt::white));
    }

private:
    static QImage look()
    {
        Panel panel;
        panel.setPalette(QPalette(Qt::red));
        panel.resize(80, 40);
        return panel.grab().toImage().convertToFormat(QImage::Format_RGB32);
    }
};

QTEST_MAIN(PanelTest)
#include "PanelTest.moc"
