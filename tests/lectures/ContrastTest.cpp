#include "calendar/CKCalendarView.h"
#include "lectures/LectureTable.h"
#include "lectures/ProgramCase.h"
#include "support/KeyboardMark.h"
#include "widgets/PopOver.h"
#include "widgets/SlidingWindow.h"

#include <QAbstractButton>
#include <QLabel>

using namespace Qt::StringLiterals;
using tarvelo::lectures::LectureTable;
using tarvelo::platform::contrastOf;
using tarvelo::tests::EnoughPixels;
using tarvelo::tests::isForTheKeyboard;
using tarvelo::tests::pixelsOfTheKeyboard;

namespace {

QColor groundUnder(const QWidget &widget)
{
    const QWidget *view = &widget;
    while (!view->autoFillBackground() && !view->isWindow())
        view = view->parentWidget();
    return view->palette().color(QPalette::Window);
}

constexpr double ForTexts = 4.5;

} // namespace

// What can be read and seen of the windows, in the colours that they keep on every desktop.
class ContrastTest final : public tarvelo::tests::ProgramCase
{
    Q_OBJECT

private Q_SLOTS:
    void everyTextStandsOutFromItsGround()
    {
        int seen = 0;
        for (const QWidget *window : windows()) {
            for (const QLabel *label : window->findChildren<QLabel *>()) {
                const QColor ink = label->palette().color(label->foregroundRole());
                QVERIFY2(contrastOf(ink, groundUnder(*label)) >= ForTexts,
                         qPrintable(label->objectName()));
                ++seen;
            }
        }
        QVERIFY(seen > 20);
    }

    void whatIsTypedAndWhatIsOnButtonsStandsOut()
    {
        for (const QWidget *window : windows()) {
            const QPalette colours = window->palette();
            QVERIFY(contrastOf(colours.color(QPalette::Text), colours.color(QPalette::Base)) >=
                    ForTexts);
            QVERIFY(contrastOf(colours.color(QPalette::PlaceholderText),
                               colours.color(QPalette::Base)) >= ForTexts);
            QVERIFY(contrastOf(colours.color(QPalette::ButtonText),
                               colours.color(QPalette::Button)) >= ForTexts);
        }
    }

    void theKeyboardIsSeenOnEveryControl()
    {
        int seen = 0;
        QStringList unseen;
        for (QWidget *window : windows()) {
            window->setAttribute(Qt::WA_KeyboardFocusChange);
            window->show();
            window->activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(window));
            for (QWidget *control : window->findChildren<QWidget *>()) {
                if (!isForTheKeyboard(*control) || qobject_cast<LectureTable *>(control))
                    continue;
                ++seen;
                if (pixelsOfTheKeyboard(*window, *control) < EnoughPixels)
                    unseen.append(window->objectName() + u' ' + control->objectName());
            }
            window->hide();
        }
        QVERIFY2(seen > 40, qPrintable(QString::number(seen)));
        QCOMPARE(unseen.join(u", "_s), QString());
    }

private:
    QList<QWidget *> windows() const
    {
        const auto &all = m_program->windows;
        return {&all.mainWindow(),
                all.newLectureOutlets().newNoteWindow,
                all.editLectureOutlets().windowEditLecture,
                all.playAudioOutlets().playAudioWindow,
                all.popoverOutlets().popoverConfirmRecordDelete,
                all.popoverOutlets().popoverAudioConfirmClose};
    }

    void prepare() override
    {
        ProgramCase::prepare();
        m_program->start();
        m_program->windows.mainOutlets().calendarView->postInit();
        m_program->windows.mainWindow().setFrameWidth(1234, false);
    }
};

QTEST_MAIN(ContrastTest)
#include "ContrastTest.moc"
