#include "calendar/CKCalendarView.h"
#include "lectures/LectureTable.h"
#include "support/LectureProgram.h"
#include "support/TestCase.h"
#include "widgets/PopOver.h"
#include "widgets/SlidingWindow.h"

#include <QAbstractButton>
#include <QLabel>

#include <cmath>

using namespace Qt::StringLiterals;
using tarvelo::tests::LectureProgram;

namespace {

// By the rules of the web for contrast: from 1, which is none, to 21.
double luminance(const QColor &colour)
{
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(double(colour.redF())) + 0.7152 * linear(double(colour.greenF())) +
           0.0722 * linear(double(colour.blueF()));
}

double contrast(const QColor &one, const QColor &other)
{
    const double a = luminance(one) + 0.05;
    const double b = luminance(other) + 0.05;
    return std::max(a, b) / std::min(a, b);
}

QColor groundUnder(const QWidget &widget)
{
    const QWidget *view = &widget;
    while (!view->autoFillBackground() && !view->isWindow())
        view = view->parentWidget();
    return view->palette().color(QPalette::Window);
}

constexpr double ForTexts = 4.5;
constexpr double ForMarks = 3;
// Of a mark that is seen: as much as a line of a finger's width.
constexpr int EnoughPixels = 10;

int pixelsThatStandOut(const QImage &without, const QImage &with)
{
    int count = 0;
    for (int y = 0; y < with.height(); ++y)
        for (int x = 0; x < with.width(); ++x)
            count += contrast(without.pixelColor(x, y), with.pixelColor(x, y)) >= ForMarks ? 1 : 0;
    return count;
}

} // namespace

// What can be read and seen of the windows, in the colours that they keep on every desktop.
class ContrastTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void everyTextStandsOutFromItsGround()
    {
        int seen = 0;
        for (const QWidget *window : windows()) {
            for (const QLabel *label : window->findChildren<QLabel *>()) {
                const QColor ink = label->palette().color(label->foregroundRole());
                QVERIFY2(contrast(ink, groundUnder(*label)) >= ForTexts,
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
            QVERIFY(contrast(colours.color(QPalette::Text), colours.color(QPalette::Base)) >=
                    ForTexts);
            QVERIFY(contrast(colours.color(QPalette::PlaceholderText),
                             colours.color(QPalette::Base)) >= ForTexts);
            QVERIFY(contrast(colours.color(QPalette::ButtonText),
                             colours.color(QPalette::Button)) >= ForTexts);
        }
    }

    void theKeyboardIsSeenOnEveryControl()
    {
        int seen = 0;
        for (QWidget *window : windows()) {
            window->setAttribute(Qt::WA_KeyboardFocusChange);
            window->show();
            window->activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(window));
            for (QWidget *control : window->findChildren<QWidget *>())
                seen += isForTheKeyboard(*control) && isSeen(*window, *control) ? 1 : 0;
            window->hide();
        }
        QVERIFY2(seen > 40, qPrintable(QString::number(seen)));
        QCOMPARE(m_unseen.join(u", "_s), QString());
    }

private:
    static bool isForTheKeyboard(const QWidget &control)
    {
        const bool isShown = control.isVisible() && control.isEnabled() &&
                             control.window()->rect().contains(
                                 QRect(control.mapTo(control.window(), QPoint()), control.size()));
        return isShown && control.focusPolicy() != Qt::NoFocus && !control.focusProxy() &&
               !qobject_cast<const tarvelo::lectures::LectureTable *>(&control);
    }

    // With the keyboard on it and without, nothing else being different.
    bool isSeen(QWidget &window, QWidget &control)
    {
        const QRect place = QRect(control.mapTo(&window, QPoint()), control.size())
                                .adjusted(-3, -3, 3, 3)
                                .intersected(window.rect());
        window.setFocus();
        const QImage without = window.grab(place).toImage();
        control.setFocus(Qt::TabFocusReason);
        const QImage with = window.grab(place).toImage();
        if (pixelsThatStandOut(without, with) < EnoughPixels)
            m_unseen.append(QStringLiteral("%1 %2").arg(window.objectName(), control.objectName()));
        return true;
    }

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
        m_unseen.clear();
        m_program = std::make_unique<LectureProgram>();
        m_program->start();
        m_program->windows.mainOutlets().calendarView->postInit();
        m_program->windows.mainWindow().setFrameWidth(1234, false);
    }
    void finish() override { m_program.reset(); }

    std::unique_ptr<LectureProgram> m_program;
    QStringList m_unseen;
};

QTEST_MAIN(ContrastTest)
#include "ContrastTest.moc"
