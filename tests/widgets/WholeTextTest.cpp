#include "widgets/WholeText.h"

#include "support/TestCase.h"

#include <QTextEdit>

using namespace Qt::StringLiterals;
using tarvelo::widgets::showsText;
using tarvelo::widgets::wholeText;

class WholeTextTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void whatWasPutInComesOut_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("nothing") << QString();
        QTest::newRow("lines") << u"one\n\ntwo\n"_s;
        QTest::newRow("blanks at which no line breaks") << u"5\u00a0km, 3\u202fs"_s;
        QTest::newRow("tabs and blanks") << u"\ta  b "_s;
        QTest::newRow("beyond the first plane") << u"\U0001f600 \u05d0\u0628"_s;
        QTest::newRow("markup") << u"<b>not bold</b> &amp; %1"_s;
    }

    void whatWasPutInComesOut()
    {
        QFETCH(QString, text);
        QTextEdit view;

        view.setPlainText(text);

        QCOMPARE(wholeText(view), text);
        QVERIFY(showsText(view, text));
    }

    void everyEndOfALineIsALineFeed()
    {
        QTextEdit view;

        view.setPlainText(u"one\r\ntwo\rthree\u2028four"_s);

        QCOMPARE(wholeText(view), u"one\ntwo\nthree\nfour"_s);
        QVERIFY(showsText(view, u"one\r\ntwo\rthree\u2028four"_s));
    }

    void aTouchedTextIsAnother()
    {
        QTextEdit view;
        view.setPlainText(u"5\u00a0km"_s);

        QVERIFY(!showsText(view, u"5 km"_s));
        QVERIFY(!showsText(view, u"5\u00a0km\n"_s));
    }
};

QTEST_MAIN(WholeTextTest)
#include "WholeTextTest.moc"
