#include "gallery/Scenes.h"
#include "support/KeyboardMark.h"
#include "support/TestCase.h"
#include "widgets/ControlStyle.h"

#include <QApplication>

using namespace Qt::StringLiterals;
using namespace tarvelo::tests;

// The keyboard on the sheets, in the style that they have in the program.
class SheetContrastTest final : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theKeyboardIsSeenOnEveryControlOfASheet()
    {
        QApplication::setStyle(new tarvelo::widgets::ControlStyle);
        speak(u"en"_s);
        Application program;
        const QStringList sheets{u"bring-back-copies"_s, u"left-lecture"_s,
                                 u"preferences-keyboard"_s};

        const bool isAllShown = goThrough(program, [&](const QString &name, QWidget &window) {
            if (sheets.contains(name))
                lookAt(name, window);
        });

        QVERIFY(isAllShown);
        QVERIFY2(m_seen >= 12, qPrintable(QString::number(m_seen)));
        QCOMPARE(m_unseen.join(u", "_s), QString());
    }

private:
    void lookAt(const QString &name, QWidget &sheet)
    {
        sheet.setAttribute(Qt::WA_KeyboardFocusChange);
        sheet.activateWindow();
        QTRY_COMPARE(QApplication::activeWindow(), &sheet);
        for (QWidget *control : sheet.findChildren<QWidget *>()) {
            if (!isForTheKeyboard(*control))
                continue;
            ++m_seen;
            if (pixelsOfTheKeyboard(sheet, *control) < EnoughPixels)
                m_unseen.append(name + u' ' + control->objectName());
        }
    }

    int m_seen = 0;
    QStringList m_unseen;
};

QTEST_MAIN(SheetContrastTest)
#include "SheetContrastTest.moc"
