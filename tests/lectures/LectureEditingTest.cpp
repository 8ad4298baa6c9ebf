#include "lectures/LectureEditing.h"

#include "support/TestCase.h"

#include <QLineEdit>
#include <QTextEdit>

using namespace Qt::StringLiterals;
using tarvelo::lectures::LectureEditing;

class LectureEditingTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void nothingIsChangedAtFirst()
    {
        QVERIFY(!m_window->editing.bHasChangesInNote());
        QVERIFY(!m_window->editing.bHasChangesInNoteTitle());
        QVERIFY(!m_window->editing.bIsEditingNow());
    }

    void typingInAFieldSetsBothFlags()
    {
        QTest::keyClicks(&m_window->subject, u"O"_s);

        QVERIFY(m_window->editing.bHasChangesInNote());
        QVERIFY(m_window->editing.bHasChangesInNoteTitle());
    }

    void typingInNotesSetsBothFlags()
    {
        m_window->notes.setFocus();
        QTest::keyClicks(&m_window->notes, u"L"_s);

        QVERIFY(m_window->editing.bHasChangesInNote());
        QVERIFY(m_window->editing.bHasChangesInNoteTitle());
    }

    void textsThatTheProgramSetsAreNoChange()
    {
        m_window->notes.setFocus();
        m_window->subject.setText(u"Optics"_s);
        m_window->notes.setPlainText(u"Lenses"_s);
        m_window->notes.clear();

        QVERIFY(!m_window->editing.bHasChangesInNote());
        QVERIFY(!m_window->editing.bHasChangesInNoteTitle());
    }

    void takingBackWhatWasTypedIsAChangeToo()
    {
        m_window->notes.setFocus();
        QTest::keyClicks(&m_window->notes, u"L"_s);
        m_window->editing.clearChanges();

        QTest::keySequence(&m_window->notes, QKeySequence::Undo);

        QCOMPARE(m_window->notes.toPlainText(), QString());
        QVERIFY(m_window->editing.bHasChangesInNote());
    }

    void bothFlagsAreClearedTogether()
    {
        m_window->editing.textDidChange();

        m_window->editing.clearChanges();

        QVERIFY(!m_window->editing.bHasChangesInNote());
        QVERIFY(!m_window->editing.bHasChangesInNoteTitle());
    }

    void cancellingAnEditEmptiesItsWindowAndTakesItAway()
    {
        QTest::keyClicks(&m_window->subject, u"Optics"_s);
        m_window->notes.setPlainText(u"Lenses"_s);

        m_window->editing.onCancelLectureEdit(nullptr);

        QVERIFY(m_window->window.isHidden());
        QCOMPARE(m_window->subject.text() + m_window->notes.toPlainText(), QString());
        QVERIFY(!m_window->editing.bHasChangesInNote());
        QVERIFY(!m_window->editing.bIsEditingNow());
    }

private:
    // The edit window, of which only the texts matter here.
    struct Window
    {
        Window()
        {
            editing.watch(subject);
            editing.watch(notes);
            notes.move(0, 40);
            window.show();
            window.activateWindow();
        }

        QWidget window;
        QLineEdit subject{&window};
        QTextEdit notes{&window};
        LectureEditing editing{{&window, &subject, &notes, nullptr, nullptr, nullptr}};
    };

    void prepare() override
    {
        m_window = std::make_unique<Window>();
        QVERIFY(QTest::qWaitForWindowActive(&m_window->window));
    }
    void finish() override { m_window.reset(); }

    std::unique_ptr<Window> m_window;
};

QTEST_MAIN(LectureEditingTest)
#include "LectureEditingTest.moc"
