#include "lectures/EditLectureWindow.h"

#include "support/TestCase.h"
#include "widgets/ImageButton.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QTextEdit>

using namespace tarvelo;
using lectures::buildEditLectureWindow;

class EditLectureWindowTest final : public tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void tabGoesFromTheSubjectToTheNotesAndFromDoneOverCancelRound()
    {
        const auto built = buildEditLectureWindow();
        const auto &controls = built.outlets;
        built.window->show();
        QVERIFY(QTest::qWaitForWindowActive(built.window.get()));
        controls.txtSubjectForEdit->setFocus();

        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), controls.txtViewNotesForEdit);
        // In the notes it is a character.
        controls.btnDoneEdit->setFocus();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), controls.btnCancelEdit);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), controls.txtSubjectForEdit);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab, Qt::ShiftModifier);
        QCOMPARE(QApplication::focusWidget(), controls.btnCancelEdit);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab, Qt::ShiftModifier);
        QCOMPARE(QApplication::focusWidget(), controls.btnDoneEdit);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab, Qt::ShiftModifier);
        QCOMPARE(QApplication::focusWidget(), controls.txtViewNotesForEdit);
    }

    void theSubjectIsLargerThanTheMomentWhoseTwoHalvesLookAlike()
    {
        const auto built = buildEditLectureWindow();
        const auto &controls = built.outlets;

        QVERIFY(controls.txtSubjectForEdit->fontInfo().pixelSize() >
                controls.textEditTime->fontInfo().pixelSize());
        QCOMPARE(controls.textEditDate->font(), controls.textEditTime->font());
        QCOMPARE(controls.textEditDate->palette(), controls.textEditTime->palette());
    }
};

QTEST_MAIN(EditLectureWindowTest)
#include "EditLectureWindowTest.moc"
