#include "lectures/LectureWindows.h"

#include "lectures/ProgramCase.h"
#include "widgets/Colours.h"
#include "widgets/CustomTextView.h"
#include "widgets/MouseDownTextField.h"
#include "widgets/PopOver.h"

#include <QAbstractButton>
#include <QClipboard>
#include <QGuiApplication>
#include <QLayout>
#include <QPalette>
#include <QScopeGuard>

using namespace Qt::StringLiterals;
using tarvelo::tests::LectureProgram;

namespace {

// All that a user can press or type into.
QList<QWidget *> controlsOf(const QWidget &window)
{
    QList<QWidget *> controls;
    for (QWidget *widget : window.findChildren<QWidget *>()) {
        if (qobject_cast<QAbstractButton *>(widget) || qobject_cast<QLineEdit *>(widget) ||
            qobject_cast<QTextEdit *>(widget) || qobject_cast<QSlider *>(widget))
            controls.append(widget);
    }
    return controls;
}

QString nameOf(const QWidget &control)
{
    const auto *button = qobject_cast<const QAbstractButton *>(&control);
    return button && control.accessibleName().isEmpty() ? button->text() : control.accessibleName();
}

} // namespace

class LectureWindowsTest final : public tarvelo::tests::ProgramCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { tarvelo::platform::installTexts(); }

    void aDesktopThatAsksForHighContrastLaterIsHeardByTheNextWindows()
    {
        const QPalette usual = QGuiApplication::palette();
        const auto restored = qScopeGuard([&] { QGuiApplication::setPalette(usual); });
        const auto outline = [] { return tarvelo::widgets::colours().outline; };
        const QColor before = outline();
        QPalette strong(Qt::black);
        for (const auto role : {QPalette::Window, QPalette::Base})
            strong.setColor(role, Qt::white);
        for (const auto role : {QPalette::WindowText, QPalette::Text})
            strong.setColor(role, Qt::black);

        QGuiApplication::setPalette(strong);
        QCOMPARE(outline(), before);
        m_program.reset();
        m_program = std::make_unique<LectureProgram>();

        QCOMPARE(outline(), QColor(Qt::black));
        QVERIFY(outline() != before);
        QCOMPARE(windows().mainWindow().palette().color(QPalette::Shadow), outline());
    }

    void everyOutletHasTheNameOfItsControl()
    {
        const auto &recording = windows().recordingOutlets();
        const QList<std::pair<const QWidget *, QString>> named{
            {&windows().mainWindow(), u"mainWindow"_s},
            {windows().mainOutlets().calendarView, u"calendarView"_s},
            {windows().mainOutlets().tblRecordSubjectList, u"tblRecordSubjectList"_s},
            {windows().mainOutlets().newNoteView, u"newNoteView"_s},
            {windows().mainOutlets().editPlayView, u"editPlayView"_s},
            {windows().mainOutlets().btnFoldUpList, u"btnFoldUpList"_s},
            {windows().lectureViewOutlets().btnDoneEditLecture, u"btnDoneEditLecture"_s},
            {windows().newLectureOutlets().BtnDoneOrClose, u"BtnDoneOrClose"_s},
            {windows().newLectureOutlets().recordAnimationView, u"recordAnimationView"_s},
            {windows().editLectureOutlets().btnDoneEdit, u"btnDoneEdit"_s},
            {windows().playAudioOutlets().txtFieldForAudio, u"txtFieldForAudio"_s},
            {windows().playAudioOutlets().btnClosePlayAudio, u"btnClosePlayAudio"_s},
            {windows().popoverOutlets().btnConfirmNo, u"btnConfirmNo"_s},
            {windows().popoverOutlets().lblPopoverNoAudio, u"lblPopoverNoAudio"_s},
            {windows().popoverOutlets().btnClosePopover, u"btnClosePopover"_s},
            {recording.btnStartRecord, u"btnStartRecord"_s},
            {recording.sliderPlayProgress2, u"sliderPlayProgress2"_s},
            {recording.txtView, u"txtView"_s},
            {recording.lblRecordingWarning, u"lblRecordingWarning"_s}};

        for (const auto &[control, name] : named)
            QCOMPARE(control ? control->objectName() : u"missing"_s, name);
    }

    void everyControlHasANameForWhoCannotSeeIt()
    {
        for (const QWidget *window : allWindows()) {
            for (const QWidget *control : controlsOf(*window)) {
                if (mayStayHidden().contains(control->objectName()))
                    continue;
                QVERIFY2(!nameOf(*control).isEmpty(), qPrintable(control->objectName()));
            }
        }
    }

    void everyControlCanBeReachedByKeyboard()
    {
        for (const QWidget *window : allWindows()) {
            for (const QWidget *control : controlsOf(*window)) {
                if (control->objectName().startsWith(u"qt_"))
                    continue;
                // The arrow keys go over the days.
                if (windows().mainOutlets().calendarView->isAncestorOf(control))
                    continue;
                // The arrow keys lead to a choice that is not made.
                const auto *button = qobject_cast<const QAbstractButton *>(control);
                const bool isByArrows = button && button->autoExclusive() && !button->isChecked();
                QVERIFY(isByArrows || control->focusPolicy() & Qt::TabFocus);
            }
        }
        QVERIFY(windows().mainOutlets().tblRecordSubjectList->focusPolicy() & Qt::TabFocus);
        QVERIFY(windows().mainOutlets().btnAddItem->focusPolicy() & Qt::TabFocus);
    }

    void nothingShowsItsKeyInsteadOfItsText()
    {
        const QRegularExpression key(u"^[A-Z]+(_[A-Z]+)+$"_s);
        for (const QWidget *window : allWindows()) {
            for (const QWidget *control : controlsOf(*window))
                QVERIFY2(!key.match(nameOf(*control)).hasMatch(), qPrintable(nameOf(*control)));
            for (const QLabel *label : window->findChildren<QLabel *>())
                QVERIFY2(!key.match(label->text()).hasMatch(), qPrintable(label->text()));
            QVERIFY2(!key.match(window->windowTitle()).hasMatch(),
                     qPrintable(window->windowTitle()));
        }
    }

    void subjectsEndAt255Characters()
    {
        for (QLineEdit *field : subjects()) {
            field->setText(QString(254, u'x'));
            QTest::keyClicks(field, u"yz"_s);
            QCOMPARE(field->text(), QString(254, u'x') + u'y');

            field->clear();
            QGuiApplication::clipboard()->setText(QString(300, u'x'));
            field->paste();
            QVERIFY2(field->text().isEmpty(), qPrintable(field->objectName()));
        }
    }

    void nothingCutsASubjectThatIsShown()
    {
        const QString subject(40000, u'x');
        QList<QLineEdit *> fields = subjects();
        fields.append(windows().playAudioOutlets().txtSubjectName);
        for (QLineEdit *field : fields) {
            field->setText(subject);
            QVERIFY2(field->text() == subject, qPrintable(field->objectName()));
        }
    }

    void notesTakePlainTextAlone()
    {
        for (QTextEdit *notes : {windows().newLectureOutlets().txtView,
                                 windows().editLectureOutlets().txtViewNotesForEdit,
                                 windows().lectureViewOutlets().tViewNoteForEdit}) {
            QVERIFY2(qobject_cast<tarvelo::widgets::CustomTextView *>(notes),
                     qPrintable(notes->objectName()));
        }
    }

    void thePanelsOfSoundBeginAndEndAlikeInEitherDirection()
    {
        const QWidget &view = *windows().lectureViewOutlets().tSubjectName->parentWidget();
        const QWidget &window = *windows().newLectureOutlets().newNoteWindow;

        for (const QLayout *panel : {view.findChild<QLayout *>(u"editPlayerLayout"_s),
                                     window.findChild<QLayout *>(u"recordingPanelLayout"_s)}) {
            QCOMPARE(panel->contentsMargins().left(), 16);
            QCOMPARE(panel->contentsMargins().right(), 16);
        }
    }

    void aSliderStandsAsFarFromItsButtonsInBothPlayers()
    {
        const QWidget &view = *windows().lectureViewOutlets().tSubjectName->parentWidget();
        const QWidget &window = *windows().playAudioOutlets().playAudioWindow;

        QCOMPARE(view.findChild<QLayout *>(u"editPlayerLayout"_s)->spacing(),
                 window.findChild<QLayout *>(u"playRow"_s)->spacing());
    }

    void theWindowsStayLightUnderADarkDesktop()
    {
        QPalette dark;
        dark.setColor(QPalette::Window, Qt::black);
        dark.setColor(QPalette::WindowText, Qt::white);
        const QPalette usual = QGuiApplication::palette();
        QGuiApplication::setPalette(dark);
        LectureProgram program;
        QGuiApplication::setPalette(usual);

        for (const QWidget *window : {static_cast<QWidget *>(&program.windows.mainWindow()),
                                      program.windows.newLectureOutlets().newNoteWindow,
                                      program.windows.popoverOutlets().btnConfirmYes->window()}) {
            QCOMPARE(window->palette().color(QPalette::Window), QColor(Qt::white));
            QVERIFY(window->palette().color(QPalette::WindowText).lightness() < 100);
        }
    }

private:
    QList<const QWidget *> allWindows() const
    {
        return {&windows().mainWindow(),
                windows().newLectureOutlets().newNoteWindow,
                windows().editLectureOutlets().windowEditLecture,
                windows().playAudioOutlets().playAudioWindow,
                windows().popoverOutlets().popoverConfirmRecordDelete,
                windows().popoverOutlets().popoverAudioConfirmClose};
    }
    QList<QLineEdit *> subjects() const
    {
        windows().lectureViewOutlets().tSubjectName->setEditable(true);
        return {windows().newLectureOutlets().txtSubjectForNewNote,
                windows().editLectureOutlets().txtSubjectForEdit,
                windows().lectureViewOutlets().tSubjectName};
    }
    // Controls that this program keeps and never shows.
    static QStringList mayStayHidden()
    {
        return {u"btnStartStopRecording"_s, u"txtCourseName"_s, u"txtFieldForAudio"_s};
    }
};

QTEST_MAIN(LectureWindowsTest)
#include "LectureWindowsTest.moc"
