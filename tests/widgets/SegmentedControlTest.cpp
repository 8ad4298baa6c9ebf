#include "widgets/SegmentedControl.h"

#include "support/HighContrast.h"
#include "support/TestCase.h"
#include "widgets/LightPalette.h"

#include <QAbstractButton>
#include <QAccessible>

#include <memory>

using namespace Qt::StringLiterals;
using tarvelo::tests::HighContrast;
using tarvelo::tests::pixelsApart;
using tarvelo::widgets::SegmentedControl;

class SegmentedControlTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aNewControlHasNoSegmentAndNoneSelected()
    {
        const SegmentedControl control;

        QCOMPARE(control.segmentCount(), 0);
        QCOMPARE(control.selectedSegment(), -1);
    }

    void segmentsCountFromZeroAndOneIsSelected()
    {
        SegmentedControl control;
        addThree(control);

        control.setSelectedSegment(1);
        control.setSelectedSegment(2);

        QCOMPARE(control.segmentCount(), 3);
        QCOMPARE(control.selectedSegment(), 2);
        QVERIFY(!segment(control, 1).isChecked());
    }

    void selectingSendsNoActionAndAMissingSegmentChangesNothing()
    {
        SegmentedControl control;
        addThree(control);
        int sent = 0;
        control.setAction({"chosen", [&](QWidget *) { ++sent; }});
        control.setSelectedSegment(1);

        control.setSelectedSegment(3);
        control.setSelectedSegment(-1);

        QCOMPARE(control.selectedSegment(), 1);
        QCOMPARE(sent, 0);
        QCOMPARE(control.actionName(), QByteArray("chosen"));
    }

    void aChoiceShowsTheMouseAndThePressBeforeItIsMade()
    {
        SegmentedControl control;
        addThree(control);
        control.setSelectedSegment(0);
        const QImage atRest = control.grab().toImage();

        segment(control, 1).setAttribute(Qt::WA_UnderMouse);
        const QImage turnedTo = control.grab().toImage();
        segment(control, 1).setDown(true);
        const QImage pressed = control.grab().toImage();

        QVERIFY(turnedTo != atRest);
        QVERIFY(pressed != turnedTo);
    }

    void theChosenOneShowsTheMouseAndThePressToo_data()
    {
        QTest::addColumn<bool>("isHigh");
        QTest::newRow("usual") << false;
        QTest::newRow("in high contrast") << true;
    }
    void theChosenOneShowsTheMouseAndThePressToo()
    {
        QFETCH(const bool, isHigh);
        const auto contrast = isHigh ? std::make_unique<HighContrast>() : nullptr;
        SegmentedControl control;
        tarvelo::widgets::setLightPalette(control);
        addThree(control);
        control.setSelectedSegment(1);
        const QImage atRest = control.grab().toImage();

        segment(control, 1).setAttribute(Qt::WA_UnderMouse);
        const QImage turnedTo = control.grab().toImage();
        segment(control, 1).setDown(true);
        const QImage pressed = control.grab().toImage();

        const int plainly = isHigh ? 20 : -1;
        QVERIFY(turnedTo != atRest);
        QVERIFY(pressed != turnedTo);
        QVERIFY(pixelsApart(atRest, turnedTo) > plainly);
        QVERIFY(pixelsApart(turnedTo, pressed) > plainly);
    }

    void aClickSelectsAndSendsTheActionWithTheControlAsItsSender()
    {
        SegmentedControl control;
        addThree(control);
        QList<QWidget *> senders;
        control.setAction({"chosen", [&](QWidget *sender) { senders.append(sender); }});

        segment(control, 2).click();

        QCOMPARE(control.selectedSegment(), 2);
        QCOMPARE(senders, QList<QWidget *>{&control});
    }

    void aClickOnTheSelectedSegmentSendsTheActionToo()
    {
        SegmentedControl control;
        addThree(control);
        control.setSelectedSegment(1);
        int sent = 0;
        control.setAction({"chosen", [&](QWidget *) { ++sent; }});

        segment(control, 1).click();

        QCOMPARE(control.selectedSegment(), 1);
        QCOMPARE(sent, 1);
    }

    void anArrowKeyChoosesTheNextSegmentInReadingDirection_data()
    {
        QTest::addColumn<Qt::LayoutDirection>("direction");
        QTest::addColumn<Qt::Key>("key");
        QTest::newRow("left to right") << Qt::LeftToRight << Qt::Key_Right;
        QTest::newRow("right to left") << Qt::RightToLeft << Qt::Key_Left;
    }

    void anArrowKeyChoosesTheNextSegmentInReadingDirection()
    {
        QFETCH(Qt::LayoutDirection, direction);
        QFETCH(Qt::Key, key);
        SegmentedControl control;
        control.setLayoutDirection(direction);
        addThree(control);
        control.setSelectedSegment(0);
        int sent = 0;
        control.setAction({"chosen", [&](QWidget *) { ++sent; }});
        control.show();
        QVERIFY(QTest::qWaitForWindowActive(&control));
        segment(control, 0).setFocus();

        QTest::keyClick(&segment(control, 0), key);

        QCOMPARE(control.selectedSegment(), 1);
        QCOMPARE(sent, 1);
    }

    void tabComesToTheSegmentThatIsSelected()
    {
        SegmentedControl control;
        addThree(control);
        const auto tabStops = [&control] {
            QList<int> stops;
            for (int i = 0; i < 3; ++i) {
                if (segment(control, i).focusPolicy() & Qt::TabFocus)
                    stops.append(i);
            }
            return stops;
        };

        QCOMPARE(tabStops(), QList<int>{0});
        control.setSelectedSegment(2);

        QCOMPARE(tabStops(), QList<int>{2});
    }

    void everySegmentIsAChoiceWithAName()
    {
        SegmentedControl control;
        addThree(control);
        control.setSelectedSegment(1);

        QAccessibleInterface *face = QAccessible::queryAccessibleInterface(&segment(control, 1));

        QVERIFY(face);
        QCOMPARE(face->text(QAccessible::Name), u"two words"_s);
        QCOMPARE(face->role(), QAccessible::RadioButton);
        QVERIFY(face->state().checked);
    }

    void aSpeedIsWrittenLargerThanOtherTexts()
    {
        SegmentedControl control;
        addThree(control);

        QVERIFY(segment(control, 0).font().pointSizeF() >= 1.2 * control.font().pointSizeF());
    }

    void theSelectedSegmentIsFilled()
    {
        SegmentedControl control;
        addThree(control);
        control.setSelectedSegment(2);
        control.show();

        const QImage image = control.grab().toImage();

        const QColor fill = control.palette().color(QPalette::Highlight);
        const auto edgeOf = [&](int at) {
            return image.pixelColor(segment(control, at).mapTo(&control, QPoint(7, 7)));
        };
        QCOMPARE(edgeOf(2), fill);
        QVERIFY(edgeOf(0) != fill);
    }

    void aSpeedReadsTheSameInAWindowThatRunsFromRightToLeft()
    {
        const auto drawn = [](Qt::LayoutDirection direction) {
            SegmentedControl control;
            control.setLayoutDirection(direction);
            control.addSegment(u"½×"_s, u"half the speed"_s);
            return control.grab().toImage();
        };

        QCOMPARE(drawn(Qt::RightToLeft), drawn(Qt::LeftToRight));
    }

private:
    static void addThree(SegmentedControl &control)
    {
        control.addSegment(u"1"_s, u"one word"_s);
        control.addSegment(u"2"_s, u"two words"_s);
        control.addSegment(u"3"_s, u"three words"_s);
    }
    static QAbstractButton &segment(SegmentedControl &control, int at)
    {
        return *control.findChildren<QAbstractButton *>().at(at);
    }
};

QTEST_MAIN(SegmentedControlTest)
#include "SegmentedControlTest.moc"
