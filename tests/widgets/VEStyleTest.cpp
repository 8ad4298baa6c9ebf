#include "widgets/VEStyle.h"

#include "platform/Frames.h"
#include "support/TestCase.h"
#include "widgets/Drawn.h"

using tarvelo::platform::frameOf;
using tarvelo::tests::drawn;
using tarvelo::widgets::VEStyle;

class VEStyleTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void withoutColourItDrawsNothingOfItsOwn()
    {
        VEStyle view;
        view.resize(20, 10);

        QCOMPARE(drawn(view).pixelColor(5, 5), QColor(Qt::white));
    }

    void itsColourFillsTheBounds()
    {
        VEStyle view;
        view.resize(20, 10);

        view.setProperty("bg", QColor(Qt::red));

        QCOMPARE(view.bg(), QColor(Qt::red));
        QCOMPARE(drawn(view).pixelColor(19, 9), QColor(Qt::red));
    }

    void theEffectIsLightOrDarkAndTranslucent()
    {
        VEStyle light;
        VEStyle dark;
        dark.setProperty("isDark", true);

        light.awakeFromNib();
        dark.awakeFromNib();

        const auto color = [](const VEStyle &view) {
            return view.effectView()->palette().color(QPalette::Window);
        };
        QVERIFY(color(light).lightness() > 200);
        QVERIFY(color(dark).lightness() < 60);
        QVERIFY(color(light).alpha() < 255);
    }

    void theEffectHasTheViewsFrameNotItsBounds()
    {
        QWidget parent;
        parent.resize(200, 100);
        VEStyle view(&parent);
        tarvelo::platform::setFrame(view, {30, 20, 100, 50});

        view.awakeFromNib();

        QCOMPARE(frameOf(*view.effectView()), QRectF(30, 20, 100, 50));
    }

    void theEffectGrowsWithTheView()
    {
        VEStyle view;
        view.resize(100, 50);
        view.show();
        view.awakeFromNib();

        view.resize(120, 55);

        QTRY_COMPARE(view.effectView()->size(), QSize(120, 55));
    }

    void theEffectGrowsWithAViewThatIsLaidOutBeforeItShows()
    {
        VEStyle view;
        view.resize(100, 50);
        view.awakeFromNib();

        view.resize(130, 80);
        view.resize(120, 55);
        view.show();

        QCOMPARE(view.effectView()->size(), QSize(120, 55));
    }

    void theEffectIsAsLargeAsAViewThatGrewBeforeItsAwakening()
    {
        VEStyle view;
        view.resize(120, 55);
        view.awakeFromNib();

        view.show();

        QCOMPARE(view.effectView()->size(), QSize(120, 55));
    }

    void theEffectLiesBehindWhatTheViewHolds()
    {
        VEStyle view;
        view.resize(100, 50);
        auto *content = new QWidget(&view);
        content->resize(100, 50);

        view.awakeFromNib();

        QVERIFY(view.childAt(5, 5) == content);
    }
};

QTEST_MAIN(VEStyleTest)
#include "VEStyleTest.moc"
