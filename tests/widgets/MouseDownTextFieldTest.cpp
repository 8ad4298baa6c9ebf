#include "widgets/MouseDownTextField.h"

#include "support/TestCase.h"
#include "widgets/Drawn.h"

using namespace Qt::StringLiterals;
using tarvelo::tests::drawn;
using tarvelo::widgets::MouseDownTextField;
using tarvelo::widgets::MouseDownTextFieldDelegate;

namespace {

// Opens the field, or only counts.
class Delegate final : public MouseDownTextFieldDelegate
{
public:
    QList<MouseDownTextField *> clicked;
    bool opens = false;

    void mouseDownTextFieldClicked(MouseDownTextField &field) override
    {
        clicked.append(&field);
        if (!opens)
            return;
        field.setEditable(true);
        field.setFocus();
    }
};

} // namespace

class MouseDownTextFieldTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void itComesAsAFieldLikeAnyOther()
    {
        const MouseDownTextField field;

        QVERIFY(field.isEditable());
        QVERIFY(field.isBordered());
        QVERIFY(field.drawsBackground());
        QCOMPARE(field.delegate(), nullptr);
    }

    void aPressTellsTheDelegateWhichFieldItWas()
    {
        QTest::mousePress(&heading(), Qt::LeftButton, {}, {40, 10});

        QCOMPARE(m_stage->delegate.clicked, QList<MouseDownTextField *>({&heading()}));
    }

    void aPressDoesNothingOfWhatAFieldDoesByItself()
    {
        heading().setCursorPosition(0);

        QTest::mouseClick(&heading(), Qt::LeftButton, {}, {40, 10});
        QTest::mouseDClick(&heading(), Qt::LeftButton, {}, {40, 10});

        QCOMPARE(heading().cursorPosition(), 0);
        QVERIFY(!heading().hasSelectedText());
        QVERIFY(!heading().hasFocus());
    }

    void aPressWithoutADelegateDoesNothing()
    {
        heading().setDelegate(nullptr);

        QTest::mouseClick(&heading(), Qt::LeftButton);

        QVERIFY(!heading().isEditable());
        QVERIFY(!heading().hasFocus());
    }

    void aPressInTheTextThatIsBeingWrittenPlacesTheInsertionPoint()
    {
        m_stage->delegate.opens = true;
        QTest::mouseClick(&heading(), Qt::LeftButton, {}, {40, 10});
        heading().setCursorPosition(0);

        QTest::mouseClick(&heading(), Qt::LeftButton, {}, {heading().width() - 4, 10});

        QCOMPARE(heading().cursorPosition(), 6);
        QCOMPARE(m_stage->delegate.clicked.size(), 2);
    }

    void whereSomeoneWritesTheMouseSelects()
    {
        m_stage->delegate.opens = true;
        const QPoint begin(1, heading().height() / 2);
        const QPoint end(heading().width() - 4, heading().height() / 2);
        dragOver(begin, end);
        QVERIFY(!heading().hasSelectedText());

        dragOver(begin, end);
        QCOMPARE(heading().selectedText(), u"Optics"_s);

        heading().deselect();
        QTest::mouseDClick(&heading(), Qt::LeftButton, {}, begin + QPoint(12, 0));
        QCOMPARE(heading().selectedText(), u"Optics"_s);
    }

    void whoeverComesByKeyboardTypesAtOnce()
    {
        m_stage->delegate.opens = true;
        heading().setFocus(Qt::TabFocusReason);
        heading().end(false);

        QTest::keyClicks(&heading(), u" II"_s);

        QCOMPARE(heading().text(), u"Optics II"_s);
        QCOMPARE(m_stage->delegate.clicked.size(), 1);
    }

    void theKeyForRenamingOpensItAndTypesNothing()
    {
        m_stage->delegate.opens = true;
        heading().setFocus(Qt::TabFocusReason);

        QTest::keyClick(&heading(), Qt::Key_F2);

        QVERIFY(heading().isEditable());
        QCOMPARE(heading().text(), u"Optics"_s);
    }

    void keysThatTypeNothingLeaveAHeadingClosed()
    {
        heading().setFocus(Qt::TabFocusReason);

        QTest::keyClick(&heading(), Qt::Key_Right);
        QTest::keyClick(&heading(), Qt::Key_C, Qt::ControlModifier);
        QTest::keyClick(&heading(), Qt::Key_Delete);

        QVERIFY(m_stage->delegate.clicked.isEmpty());
        QCOMPARE(heading().text(), u"Optics"_s);
    }

    void aDelegateThatOpensNothingLetsNothingBeTyped()
    {
        heading().setFocus(Qt::TabFocusReason);

        QTest::keyClicks(&heading(), u"x"_s);

        QCOMPARE(m_stage->delegate.clicked.size(), 1);
        QCOMPARE(heading().text(), u"Optics"_s);
    }

    void withoutABackgroundWhatLiesBelowShows()
    {
        QCOMPARE(drawn(m_stage->window).pixelColor(heading().geometry().center() + QPoint(50, 0)),
                 QColor(Qt::white));

        heading().setDrawsBackground(true);

        QCOMPARE(drawn(m_stage->window).pixelColor(heading().geometry().center() + QPoint(50, 0)),
                 QColor(Qt::cyan));
    }

    void aHeadingBeginsAtItsEdgeAndAFieldClearOfItsBorder()
    {
        const auto begin = [this] {
            return heading().inputMethodQuery(Qt::ImCursorRectangle).toRect().center().x();
        };
        heading().setCursorPosition(0);
        const int ofHeading = begin();

        heading().setBordered(true);

        QVERIFY(ofHeading <= 1);
        QVERIFY(begin() >= ofHeading + 8);
    }

    void fromRightToLeftAHeadingStandsAtTheRightUntilSomeoneTypesThere()
    {
        const auto leftOfWords = [this] {
            heading().setCursorPosition(0);
            drawn(heading()); // before that a field does not know where its words are
            return heading().inputMethodQuery(Qt::ImCursorRectangle).toRect().center().x();
        };
        heading().setLayoutDirection(Qt::RightToLeft);
        heading().setEditable(false);
        QVERIFY(leftOfWords() > heading().width() / 2);

        heading().setEditable(true);

        QVERIFY(leftOfWords() < heading().width() / 2);
    }

private:
    // A heading, and another field that has the keyboard at first.
    struct Stage
    {
        Stage()
        {
            QPalette ground;
            ground.setColor(QPalette::Base, Qt::cyan);
            window.setPalette(ground);
            window.resize(300, 100);
            heading.setGeometry(10, 40, 200, 30);
            heading.setText(u"Optics"_s);
            heading.setDelegate(&delegate);
            heading.setEditable(false);
            heading.setBordered(false);
            heading.setDrawsBackground(false);
            window.show();
            other.setFocus();
        }

        Delegate delegate;
        QWidget window;
        QLineEdit other{&window};
        MouseDownTextField heading{&window};
    };

    void prepare() override
    {
        m_stage = std::make_unique<Stage>();
        QVERIFY(QTest::qWaitForWindowActive(&m_stage->window));
    }
    void finish() override { m_stage.reset(); }

    MouseDownTextField &heading() const { return m_stage->heading; }
    void dragOver(const QPoint &begin, const QPoint &end) const
    {
        QTest::mousePress(&heading(), Qt::LeftButton, {}, begin);
        QMouseEvent move(QEvent::MouseMove, end, heading().mapToGlobal(end), Qt::NoButton,
                         Qt::LeftButton, {});
        QCoreApplication::sendEvent(&heading(), &move);
        QTest::mouseRelease(&heading(), Qt::LeftButton, {}, end);
    }

    std::unique_ptr<Stage> m_stage;
};

QTEST_MAIN(MouseDownTextFieldTest)
#include "MouseDownTextFieldTest.moc"
