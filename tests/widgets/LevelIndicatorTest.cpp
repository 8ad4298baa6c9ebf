#include "widgets/LevelIndicator.h"

#include "support/TestCase.h"
#include "widgets/Drawn.h"

using tarvelo::tests::drawn;
using tarvelo::widgets::LevelIndicator;

class LevelIndicatorTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aLevelStaysBetween0And1()
    {
        LevelIndicator indicator;

        indicator.setFloatValue(-3.0F);
        QCOMPARE(indicator.floatValue(), 0.0F);
        indicator.setFloatValue(17.0F);
        QCOMPARE(indicator.floatValue(), 1.0F);
        indicator.setFloatValue(0.25F);
        QCOMPARE(indicator.floatValue(), 0.25F);
    }

    void theBarFillsFromTheLeft()
    {
        LevelIndicator indicator;
        indicator.resize(160, 8);

        indicator.setFloatValue(0.5F);

        const QImage image = drawn(indicator);
        const QColor full = indicator.palette().color(QPalette::Highlight);
        QCOMPARE(image.pixelColor(40, 4), full);
        QVERIFY(image.pixelColor(120, 4) != full);
    }

    void noLevelLeavesTheBarEmpty()
    {
        LevelIndicator indicator;
        indicator.resize(160, 8);

        const QImage image = drawn(indicator);

        const QColor full = indicator.palette().color(QPalette::Highlight);
        for (int x = 0; x < 160; ++x)
            QVERIFY(image.pixelColor(x, 4) != full);
    }
};

QTEST_MAIN(LevelIndicatorTest)
#include "LevelIndicatorTest.moc"
