#include "widgets/Hairline.h"

#include "support/TestCase.h"
#include "widgets/Accessibility.h"
#include "widgets/Colours.h"
#include "widgets/Drawn.h"

#include <QAccessible>

using tarvelo::tests::drawn;
using tarvelo::widgets::Hairline;

class HairlineTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void ofItsPointItFillsAWholePixelAndNoMore()
    {
        QWidget window;
        window.resize(30, 30);
        Hairline line(&window);
        line.setGeometry(0, 10, 30, 1);

        const QImage image = drawn(window, 1.5);

        QCOMPARE(image.pixelColor(20, 14), QColor(Qt::white));
        QCOMPARE(image.pixelColor(20, 15), tarvelo::widgets::colours().hairline);
        QCOMPARE(image.pixelColor(20, 16), QColor(Qt::white));
    }

    void screenReadersKnowItAsASeparator()
    {
        tarvelo::widgets::installAccessibility();
        Hairline line;

        const QAccessibleInterface *told = QAccessible::queryAccessibleInterface(&line);

        QVERIFY(told);
        QCOMPARE(told->role(), QAccessible::Separator);
    }
};

QTEST_MAIN(HairlineTest)
#include "HairlineTest.moc"
