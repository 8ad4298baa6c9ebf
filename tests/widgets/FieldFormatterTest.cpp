#include "widgets/FieldFormatter.h"

#include "support/TestCase.h"
#include "widgets/CustomTextFieldFormatter.h"

#include <QClipboard>
#include <QDropEvent>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QSignalSpy>

using namespace Qt::StringLiterals;
using tarvelo::widgets::CustomTextFieldFormatter;

// A field whose formatter has the limit 10.
class FieldFormatterTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theEleventhCharacterIsRefused()
    {
        QTest::keyClicks(m_field.get(), u"0123456789"_s);
        QTest::keyClick(m_field.get(), Qt::Key_X);

        QCOMPARE(m_field->text(), u"0123456789"_s);
        QCOMPARE(m_field->cursorPosition(), 10);
    }

    void aTextThatIsTooLongIsNotPastedAtAll()
    {
        QGuiApplication::clipboard()->setText(QString(20, u'x'));

        m_field->paste();

        QCOMPARE(m_field->text(), QString());
    }

    void aPastedTextThatDoesNotFitLeavesTextAndSelectionAsTheyAre()
    {
        QTest::keyClicks(m_field.get(), u"Optics"_s);
        m_field->setSelection(0, 3);
        QGuiApplication::clipboard()->setText(QString(8, u'x'));

        m_field->paste();

        QCOMPARE(m_field->text(), u"Optics"_s);
        QCOMPARE(m_field->selectedText(), u"Opt"_s);
    }

    void aPastedTextThatFitsInThePlaceOfTheSelectionIsTaken()
    {
        QTest::keyClicks(m_field.get(), u"0123456789"_s);
        m_field->selectAll();
        QGuiApplication::clipboard()->setText(u"abcdefghij"_s);

        m_field->paste();

        QCOMPARE(m_field->text(), u"abcdefghij"_s);
    }

    void aTextThatIsTooLongIsNotDropped()
    {
        QTest::keyClicks(m_field.get(), u"Optics"_s);

        drop(u"abcde"_s);
        QCOMPARE(m_field->text(), u"Optics"_s);
        drop(u"abcd"_s);

        QCOMPARE(m_field->text().size(), 10);
    }

    void whatAnInputMethodCommitsIsRefusedWhole()
    {
        QTest::keyClicks(m_field.get(), u"Optics 1"_s);

        commit(u"光学一"_s);
        QCOMPARE(m_field->text(), u"Optics 1"_s);
        commit(u"光学"_s);

        QCOMPARE(m_field->text(), u"Optics 1光学"_s);
    }

    void aRefusedEditIsNothingToUndo()
    {
        QTest::keyClicks(m_field.get(), u"0123456789"_s);
        QTest::keyClicks(m_field.get(), u"xyz"_s);

        m_field->undo();
        QCOMPARE(m_field->text(), QString());
        m_field->redo();

        QCOMPARE(m_field->text(), u"0123456789"_s);
    }

    void aRefusedEditIsNoChange()
    {
        QTest::keyClicks(m_field.get(), u"0123456789"_s);
        const QSignalSpy changed(m_field.get(), &QLineEdit::textChanged);
        const QSignalSpy edited(m_field.get(), &QLineEdit::textEdited);

        QTest::keyClick(m_field.get(), Qt::Key_X);
        commit(u"光"_s);

        QCOMPARE(changed.count(), 0);
        QCOMPARE(edited.count(), 0);
    }

    void whatTheProgramPutsThereShowsWhole()
    {
        m_field->setText(QString(40000, u'x'));

        QCOMPARE(m_field->text().size(), 40000);
    }

    void returnIsHeardInATextThatIsTooLong()
    {
        m_field->setText(u"longer than ten"_s);
        const QSignalSpy returned(m_field.get(), &QLineEdit::returnPressed);

        QTest::keyClick(m_field.get(), Qt::Key_Return);

        QCOMPARE(returned.count(), 1);
    }

    // Each edit is judged by what would come of it.
    void aTextThatIsTooLongTakesOnlyAnEditThatMakesItShortEnough()
    {
        m_field->setText(u"longer than ten"_s);
        for (int i = 0; i < 3; ++i) {
            QTest::keyClick(m_field.get(), Qt::Key_X);
            QTest::keyClick(m_field.get(), Qt::Key_Backspace);
            QCOMPARE(m_field->text(), u"longer than ten"_s);
        }

        m_field->setSelection(6, 9);
        QTest::keyClick(m_field.get(), Qt::Key_Delete);
        QCOMPARE(m_field->text(), u"longer"_s);
        m_field->undo();
        QCOMPARE(m_field->text(), u"longer than ten"_s);
        m_field->end(false);
        QTest::keyClick(m_field.get(), Qt::Key_X);

        QCOMPARE(m_field->text(), u"longer than ten"_s);
    }

    void theLimitHoldsForTheTextAfterOneThatWasTooLong()
    {
        m_field->setText(u"longer than ten"_s);
        m_field->setText(u"0123456789"_s);

        QTest::keyClick(m_field.get(), Qt::Key_X);

        QCOMPARE(m_field->text(), u"0123456789"_s);
    }

private:
    void prepare() override
    {
        m_field = std::make_unique<QLineEdit>();
        CustomTextFieldFormatter formatter;
        formatter.setMaximumLength(10);
        tarvelo::widgets::setFormatter(*m_field, formatter);
        m_field->show();
        m_field->setFocus();
    }
    void finish() override { m_field.reset(); }

    void drop(const QString &text)
    {
        QMimeData data;
        data.setText(text);
        QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(m_field.get(), &enter);
        QDropEvent event({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(m_field.get(), &event);
    }
    void commit(const QString &text)
    {
        QInputMethodEvent composing(text, {});
        QCoreApplication::sendEvent(m_field.get(), &composing);
        QInputMethodEvent event;
        event.setCommitString(text);
        QCoreApplication::sendEvent(m_field.get(), &event);
    }

    std::unique_ptr<QLineEdit> m_field;
};

QTEST_MAIN(FieldFormatterTest)
#include "FieldFormatterTest.moc"
