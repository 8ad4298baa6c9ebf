#include "widgets/Colours.h"

#include "platform/HighContrast.h"
#include "support/PaletteCase.h"

#include <QGuiApplication>
#include <QPalette>
#include <QWidget>

using tarvelo::platform::contrastOf;
using tarvelo::platform::readContrast;
using tarvelo::widgets::Colours;
using tarvelo::widgets::colours;
using tarvelo::widgets::setColour;

class ColoursTest final : public tarvelo::tests::PaletteCase
{
    Q_OBJECT

private Q_SLOTS:
    void textsAndOutlinesStandOutFromWhite()
    {
        const Colours usual = colours();

        for (const QColor &text : {usual.ink, usual.faint, usual.disabled, usual.warning})
            QVERIFY(contrastOf(text, usual.panel) >= 4.5);
        QVERIFY(contrastOf(usual.outline, Qt::white) >= 3);
        QVERIFY(contrastOf(usual.accent, Qt::white) >= 4.5);
        QVERIFY(contrastOf(usual.onChosen, usual.chosen) >= 7);
    }

    void inHighContrastTheLinesAreAsBlackAsTheTexts()
    {
        QPalette palette(Qt::black, Qt::black);
        for (const auto role : {QPalette::WindowText, QPalette::Text})
            palette.setColor(role, Qt::white);
        palette.setColor(QPalette::Base, Qt::black);
        QGuiApplication::setPalette(palette);
        readContrast();

        const Colours strong = colours();

        for (const QColor &colour : {strong.ink, strong.faint, strong.hairline, strong.outline})
            QCOMPARE(colour, QColor(Qt::black));
        for (const QColor &text : {strong.disabled, strong.placeholder, strong.accent})
            QVERIFY(contrastOf(text, Qt::white) >= 7);
        QVERIFY(contrastOf(strong.placeholder, strong.ink) >= 2.5);
        QVERIFY(contrastOf(strong.disabledOutline, Qt::white) >= 4.5);
        QVERIFY(contrastOf(strong.chosen, Qt::white) >= 3);
        QVERIFY(contrastOf(strong.onChosen, strong.chosen) >= 7);
    }

    void aColourIsSetForItsRoleAlone()
    {
        QWidget window;
        QWidget view(&window);

        setColour(view, QPalette::WindowText, Qt::blue);
        QPalette ofTheWindow = window.palette();
        ofTheWindow.setColor(QPalette::Window, Qt::green);
        ofTheWindow.setColor(QPalette::WindowText, Qt::black);
        window.setPalette(ofTheWindow);

        QCOMPARE(view.palette().color(QPalette::WindowText), QColor(Qt::blue));
        QCOMPARE(view.palette().color(QPalette::Window), QColor(Qt::green));
    }
};

QTEST_MAIN(ColoursTest)
#include "ColoursTest.moc"
