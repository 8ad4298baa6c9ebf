#include "platform/HighContrast.h"

#include "support/PaletteCase.h"

#include <QGuiApplication>
#include <QPalette>

using tarvelo::platform::contrastOf;
using tarvelo::platform::isContrastHigh;
using tarvelo::platform::readContrast;

class HighContrastTest final : public tarvelo::tests::PaletteCase
{
    Q_OBJECT

private Q_SLOTS:
    void coloursDifferByOneToTwentyOne()
    {
        QCOMPARE(contrastOf(Qt::white, Qt::white), 1.0);
        QCOMPARE(contrastOf(Qt::white, Qt::black), 21.0);
        QCOMPARE(contrastOf(Qt::black, Qt::white), 21.0);
        QCOMPARE(qRound(contrastOf(QColor(118, 118, 118), Qt::white) * 10), 45);
    }

    void pureBlackAndWhiteIsHighContrast_data()
    {
        QTest::addColumn<QColor>("ink");
        QTest::addColumn<QColor>("ground");
        QTest::addColumn<bool>("high");
        QTest::newRow("black on white") << QColor(Qt::black) << QColor(Qt::white) << true;
        QTest::newRow("white on black") << QColor(Qt::white) << QColor(Qt::black) << true;
        QTest::newRow("light") << QColor(Qt::black) << QColor(239, 239, 239) << false;
        QTest::newRow("dark") << QColor(Qt::white) << QColor(53, 53, 53) << false;
    }
    void pureBlackAndWhiteIsHighContrast()
    {
        QFETCH(const QColor, ink);
        QFETCH(const QColor, ground);
        QFETCH(const bool, high);
        QPalette palette;
        for (const auto role : {QPalette::WindowText, QPalette::Text})
            palette.setColor(role, ink);
        for (const auto role : {QPalette::Window, QPalette::Base})
            palette.setColor(role, ground);

        QGuiApplication::setPalette(palette);
        readContrast();

        QCOMPARE(isContrastHigh(), high);
    }

    void aDesktopThatAsksLaterIsHeardWhenItIsReadAnew()
    {
        readContrast();
        QPalette palette(Qt::black, Qt::black);
        for (const auto role : {QPalette::WindowText, QPalette::Text})
            palette.setColor(role, Qt::white);
        palette.setColor(QPalette::Base, Qt::black);

        QGuiApplication::setPalette(palette);
        QVERIFY(!isContrastHigh());
        readContrast();

        QVERIFY(isContrastHigh());
    }
};

QTEST_MAIN(HighContrastTest)
#include "HighContrastTest.moc"
