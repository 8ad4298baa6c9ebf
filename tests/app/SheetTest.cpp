#include "app/Sheet.h"

#include "support/TestCase.h"

#include <QDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QPalette>
#include <QPushButton>
#include <QVBoxLayout>
#include <QWidget>

using namespace Qt::StringLiterals;
using namespace tarvelo::app;

class SheetTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aSheetBelongsToItsWindowAndIsWhite()
    {
        QWidget window;
        QPalette dark;
        dark.setColor(QPalette::Window, Qt::black);
        window.setPalette(dark);

        const QDialog *sheet = makeSheet(window);

        QCOMPARE(sheet->parentWidget(), &window);
        QVERIFY(sheet->isWindow());
        QVERIFY(sheet->windowFlags().testFlag(Qt::WindowCloseButtonHint));
        QVERIFY(!sheet->windowFlags().testFlag(Qt::WindowContextHelpButtonHint));
        QCOMPARE(sheet->palette().color(QPalette::Window), QColor(Qt::white));
    }

    void whatAStudentTypedIsShownAsItIs()
    {
        QWidget window;
        QDialog &sheet = sheetWithText(window);

        m_text->setText(u"<b>Optics</b>"_s);

        QCOMPARE(m_text->objectName(), u"typed"_s);
        QCOMPARE(m_text->textFormat(), Qt::PlainText);
        QVERIFY(sheet.findChild<QLabel *>(u"typed"_s));
    }

    void aSheetIsAsHighAsItsTextNeedsAndAsWideAsItIsWanted()
    {
        QWidget window;
        QDialog &sheet = sheetWithText(window);
        fitToTexts(sheet);
        const QSize before = sheet.size();

        m_text->setText(
            u"Many words that stand in several lines, one below the other. "_s.repeated(8));
        fitToTexts(sheet);

        QCOMPARE(before.width(), Width);
        QCOMPARE(sheet.width(), Width);
        QVERIFY(sheet.height() > before.height());
        QCOMPARE(sheet.minimumHeight(), sheet.height());
        QVERIFY(sheet.height() > m_text->heightForWidth(Width));
    }

    void aSheetIsWiderWhereItsButtonsNeedIt()
    {
        QWidget window;
        QDialog &sheet = sheetWithText(window);
        m_button->setMinimumWidth(2 * Width);

        fitToTexts(sheet);

        QVERIFY(sheet.width() > 2 * Width);
    }

    void whoMadeTheSheetWiderKeepsTheWidth()
    {
        QWidget window;
        QDialog &sheet = sheetWithText(window);
        sheet.resize(Width + 100, sheet.height());

        fitToTexts(sheet);

        QCOMPARE(sheet.width(), Width + 100);
        QCOMPARE(sheet.minimumWidth(), Width);
    }

private:
    static constexpr int Width = 300;

    QDialog &sheetWithText(QWidget &window)
    {
        QDialog *sheet = makeSheet(window);
        m_text = makeWrappedLabel("typed");
        m_text->setText(u"Short"_s);
        m_button = new QPushButton;
        auto *buttons = makeButtonRow();
        buttons->addWidget(m_button);
        auto *column = new QVBoxLayout(sheet);
        column->addWidget(m_text);
        column->addLayout(buttons);
        setSheetWidth(*sheet, Width);
        return *sheet;
    }

    QLabel *m_text = nullptr;
    QPushButton *m_button = nullptr;
};

QTEST_MAIN(SheetTest)
#include "SheetTest.moc"
