#include "widgets/CEStyle.h"

#include "support/TestCase.h"
#include "widgets/Drawn.h"

using tarvelo::tests::drawn;
using tarvelo::widgets::CEStyle;

class CEStyleTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void itIsFilledWithItsColour()
    {
        CEStyle view;
        view.resize(20, 10);

        view.setProperty("bg", QColor(Qt::red));

        QCOMPARE(view.bg(), QColor(Qt::red));
        QCOMPARE(drawn(view).pixelColor(19, 9), QColor(Qt::red));
    }

    void withoutColourItIsFilledWithThePresentOne()
    {
        CEStyle view;
        view.resize(20, 10);
        QPalette palette;
        palette.setColor(QPalette::WindowText, QColor(1, 2, 3));
        view.setPalette(palette);

        QCOMPARE(drawn(view).pixelColor(5, 5), QColor(1, 2, 3));
    }

    void beingDarkChangesNothing()
    {
        CEStyle view;
        view.resize(20, 10);
        view.setBg(Qt::red);
        const QImage before = drawn(view);

        view.setProperty("isDark", true);

        QVERIFY(view.isDark());
        QCOMPARE(drawn(view), before);
    }
};

QTEST_MAIN(CEStyleTest)
#include "CEStyleTest.moc"
