#include "widgets/Nib.h"

#include "support/TestCase.h"
#include "widgets/CustomButton.h"
#include "widgets/VEStyle.h"

using tarvelo::widgets::CustomButton;
using tarvelo::widgets::VEStyle;

class NibTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void everyWidgetThatCanAwakesOnce()
    {
        QWidget window;
        auto *style = new VEStyle(&window);
        auto *button = new CustomButton(style);
        new QWidget(&window);

        tarvelo::widgets::awakeFromNib(window);

        QVERIFY(style->effectView() != nullptr);
        QCOMPARE(button->trackingRectCount(), 1);
    }
};

QTEST_MAIN(NibTest)
#include "NibTest.moc"
