#include "widgets/Accessibility.h"

#include "support/TestCase.h"
#include "widgets/ImageButton.h"
#include "widgets/LevelIndicator.h"
#include "widgets/PopOver.h"
#include "widgets/SlidingWindow.h"

#include <QAccessible>
#include <QFrame>
#include <QMenu>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;
using namespace tarvelo::widgets;

class AccessibilityTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private:
    static QAccessibleInterface &of(QWidget &widget)
    {
        return *QAccessible::queryAccessibleInterface(&widget);
    }
    static QList<QObject *> partsOf(QWidget &widget)
    {
        QList<QObject *> parts;
        for (int i = 0; i < of(widget).childCount(); ++i)
            parts.append(of(widget).child(i)->object());
        return parts;
    }

private Q_SLOTS:
    void initTestCase()
    {
        installAccessibility();
        installAccessibility();
    }

    void aWindowIsAWindowAndAPopOverADialog()
    {
        SlidingWindow sliding;
        QWidget plain(nullptr, Qt::Window);
        PopOver popOver(std::make_unique<QWidget>());

        QCOMPARE(of(sliding).role(), QAccessible::Window);
        QCOMPARE(of(plain).role(), QAccessible::Window);
        QCOMPARE(of(popOver).role(), QAccessible::Dialog);
    }

    void aWindowHasThePartsThatLieWithinIt()
    {
        SlidingWindow window;
        window.setFrameSize(400, 300);
        QWidget inside(&window);
        QWidget beside(&window);
        beside.setGeometry(400, 0, 100, 100);
        QWidget forTheEar(&window);
        forTheEar.setGeometry(0, 0, 0, 0);

        QCOMPARE(partsOf(window), QList<QObject *>({&inside, &forTheEar}));
        window.setFrameWidth(500, false);

        QCOMPARE(partsOf(window), QList<QObject *>({&inside, &beside, &forTheEar}));
        QCOMPARE(of(window).indexOfChild(&of(beside)), 1);
    }

    void aMenuThatIsOpenBelongsToTheActiveWindow()
    {
        SlidingWindow window;
        window.setFrameSize(400, 300);
        window.show();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        QMenu menu;
        menu.addAction(u"Quit"_s);

        menu.popup({});
        QVERIFY(partsOf(window).contains(&menu));
        menu.close();

        QVERIFY(!partsOf(window).contains(&menu));
    }

    void whatHoldsOthersAndHasANameIsAGroup()
    {
        QWidget window;
        QWidget named(&window);
        named.setAccessibleName(u"Calendar"_s);
        QWidget nameless(&window);

        QCOMPARE(of(named).role(), QAccessible::Grouping);
        QCOMPARE(of(nameless).role(), QAccessible::Client);
    }

    void anEmptyFrameIsALineAndAFullOneAGroup()
    {
        QWidget window;
        QFrame line(&window);
        QFrame panel(&window);
        new QVBoxLayout(&panel);

        QCOMPARE(of(line).role(), QAccessible::Separator);
        QCOMPARE(of(panel).role(), QAccessible::Grouping);
    }

    void aToggleIsAButtonThatCanBePressed()
    {
        ImageButton button;
        button.setCheckable(true);
        button.setChecked(true);
        int pressed = 0;
        button.setAction({"test", [&](QWidget *) { ++pressed; }});

        QCOMPARE(of(button).role(), QAccessible::Button);
        QVERIFY(!of(button).state().checked);
        of(button).actionInterface()->doAction(QAccessibleActionInterface::pressAction());

        QCOMPARE(pressed, 1);
        QVERIFY(of(button).actionInterface()->actionNames().contains(
            QAccessibleActionInterface::pressAction()));
    }

    void aToggleCanBeGivenTheKeyboard()
    {
        QWidget window;
        ImageButton button(&window);
        button.setCheckable(true);
        button.setFocusPolicy(Qt::StrongFocus);
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        window.setFocus(Qt::OtherFocusReason);
        QVERIFY(!button.hasFocus());

        of(button).actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());

        QVERIFY(button.hasFocus());
    }

    void aLevelHasAValue()
    {
        LevelIndicator level;
        level.setFloatValue(0.5F);

        QCOMPARE(of(level).role(), QAccessible::ProgressBar);
        QCOMPARE(of(level).valueInterface()->currentValue().toDouble(), 0.5);
        QCOMPARE(of(level).valueInterface()->maximumValue().toDouble(), 1.0);
        QCOMPARE(of(level).valueInterface()->minimumValue().toDouble(), 0.0);
        QCOMPARE(of(level).valueInterface()->minimumStepSize().toDouble(), 0.0);

        // It shows, and is not set from outside.
        of(level).valueInterface()->setCurrentValue(1.0);
        QCOMPARE(level.floatValue(), 0.5F);
    }
};

QTEST_MAIN(AccessibilityTest)
#include "AccessibilityTest.moc"
