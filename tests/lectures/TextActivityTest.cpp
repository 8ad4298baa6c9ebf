#include "lectures/TextActivity.h"

#include "lectures/TextDelegate.h"
#include "support/TestCase.h"

#include <QLineEdit>
#include <QPushButton>
#include <QTextEdit>

using namespace Qt::StringLiterals;
using tarvelo::lectures::TextActivity;
using tarvelo::lectures::TextDelegate;

namespace {

// Writes down what it hears.
class Listener final : public TextDelegate
{
public:
    QStringList heard;

    void textDidBeginEditing(QWidget *view) override { note(u"begin"_s, view); }
    void textDidChange(QWidget *view) override { note(u"change"_s, view); }
    void textDidEndEditing(QWidget *view) override { note(u"end"_s, view); }
    void controlTextDidEndEditing(QWidget *field) override { note(u"control end"_s, field); }

    QStringList takeHeard() { return std::exchange(heard, {}); }

private:
    void note(const QString &what, const QWidget *view)
    {
        heard.append(what + u' ' + view->objectName());
    }
};

} // namespace

class TextActivityTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void anEditOfNotesBeginsWithTheFirstChange()
    {
        m_stage->notes.setFocus();
        QCOMPARE(heard(), QStringList());

        QTest::keyClicks(&m_stage->notes, u"Le"_s);

        QCOMPARE(heard(), QStringList({u"begin notes"_s, u"change notes"_s, u"change notes"_s}));
    }

    void anEditOfAFieldBeginsWithTheFirstChange()
    {
        m_stage->subject.setFocus();
        QTest::keyClicks(&m_stage->subject, u"Op"_s);

        QCOMPARE(heard(),
                 QStringList({u"begin subject"_s, u"change subject"_s, u"change subject"_s}));
    }

    void notesEndTheirEditWhenTheKeyboardGoesOn_data()
    {
        QTest::addColumn<Qt::FocusReason>("reason");
        QTest::newRow("Tab") << Qt::TabFocusReason;
        QTest::newRow("Tab back") << Qt::BacktabFocusReason;
        QTest::newRow("mouse") << Qt::MouseFocusReason;
        QTest::newRow("shortcut") << Qt::ShortcutFocusReason;
        QTest::newRow("other") << Qt::OtherFocusReason;
    }
    void notesEndTheirEditWhenTheKeyboardGoesOn()
    {
        QFETCH(Qt::FocusReason, reason);
        m_stage->notes.setFocus();

        m_stage->button.setFocus(reason);

        QCOMPARE(heard(), QStringList({u"end notes"_s}));
    }

    void anEditThatEndedBeginsAnewWithTheNextChange()
    {
        m_stage->notes.setFocus();
        QTest::keyClicks(&m_stage->notes, u"L"_s);
        m_stage->button.setFocus();
        m_stage->notes.setFocus();
        m_stage->listener.takeHeard();

        QTest::keyClicks(&m_stage->notes, u"e"_s);

        QCOMPARE(heard(), QStringList({u"begin notes"_s, u"change notes"_s}));
    }

    void aFieldEndsItsEditInItsOwnWay()
    {
        m_stage->subject.setFocus();

        m_stage->button.setFocus();

        QCOMPARE(heard(), QStringList({u"control end subject"_s}));
    }

    void aWindowThatLosesTheKeyboardEndsNoEdit()
    {
        m_stage->notes.setFocus();
        QWidget other;
        other.show();
        other.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&other));

        QVERIFY(!m_stage->notes.hasFocus());
        QCOMPARE(heard(), QStringList());
    }

    void aWindowThatIsHiddenEndsNoEdit()
    {
        m_stage->notes.setFocus();

        m_stage->window.hide();

        QTRY_VERIFY(!m_stage->notes.hasFocus());
        QCOMPARE(heard(), QStringList());
    }

    void aMenuOverTheTextEndsNoEdit()
    {
        m_stage->notes.setFocus();
        QFocusEvent toTheMenu(QEvent::FocusOut, Qt::PopupFocusReason);
        QFocusEvent toTheMenuBar(QEvent::FocusOut, Qt::MenuBarFocusReason);

        QCoreApplication::sendEvent(&m_stage->notes, &toTheMenu);
        QCoreApplication::sendEvent(&m_stage->notes, &toTheMenuBar);

        QCOMPARE(heard(), QStringList());
    }

    void whoMovesTheKeyboardForTheStudentEndsNoEdit()
    {
        m_stage->notes.setFocus();

        m_stage->button.setFocus(Qt::NoFocusReason);

        QVERIFY(m_stage->button.hasFocus());
        QCOMPARE(heard(), QStringList());
    }

    void notesThatCannotBeEditedEndNothing()
    {
        m_stage->notes.setReadOnly(true);
        m_stage->notes.setFocus();

        m_stage->button.setFocus();

        QCOMPARE(heard(), QStringList());
    }

    void textsThatTheProgramSetsAreNoActivity()
    {
        m_stage->notes.setFocus();
        QTest::keyClicks(&m_stage->notes, u"L"_s);
        m_stage->listener.takeHeard();

        m_stage->subject.setText(u"Optics"_s);
        m_stage->subject.clear();
        m_stage->notes.setPlainText(u"Lenses"_s);
        m_stage->notes.clear();

        QCOMPARE(heard(), QStringList());
    }

    void takingBackWhatWasTypedIsAChangeToo()
    {
        m_stage->notes.setFocus();
        QTest::keyClicks(&m_stage->notes, u"L"_s);
        m_stage->listener.takeHeard();

        QTest::keySequence(&m_stage->notes, QKeySequence::Undo);

        QCOMPARE(m_stage->notes.toPlainText(), QString());
        QCOMPARE(heard(), QStringList({u"change notes"_s}));
    }

private:
    struct Stage
    {
        Stage()
        {
            subject.setObjectName(u"subject"_s);
            notes.setObjectName(u"notes"_s);
            activity.watch(subject);
            activity.watch(notes);
            notes.move(0, 40);
            button.move(0, 240);
            button.setFocus();
            window.show();
            window.activateWindow();
        }

        Listener listener;
        TextActivity activity{listener};
        QWidget window;
        QLineEdit subject{&window};
        QTextEdit notes{&window};
        QPushButton button{&window};
    };

    void prepare() override
    {
        m_stage = std::make_unique<Stage>();
        QVERIFY(QTest::qWaitForWindowActive(&m_stage->window));
    }
    void finish() override { m_stage.reset(); }

    QStringList heard() const { return m_stage->listener.takeHeard(); }

    std::unique_ptr<Stage> m_stage;
};

QTEST_MAIN(TextActivityTest)
#include "TextActivityTest.moc"
