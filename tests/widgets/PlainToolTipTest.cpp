#include "widgets/PlainToolTip.h"

#include "support/TestCase.h"

#include <QTextDocumentFragment>

using namespace Qt::StringLiterals;
using tarvelo::widgets::plainToolTip;

namespace {

// What somebody reads in it.
QString shown(const QString &toolTip)
{
    return Qt::mightBeRichText(toolTip) ? QTextDocumentFragment::fromHtml(toolTip).toPlainText()
                                        : toolTip;
}

} // namespace

class PlainToolTipTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void wordsShowAsTheyStand_data()
    {
        QTest::addColumn<QString>("words");
        QTest::newRow("none") << QString();
        QTest::newRow("words") << u"Optics"_s;
        QTest::newRow("ampersand") << u"Maths & Physics"_s;
        QTest::newRow("less") << u"a < b"_s;
        QTest::newRow("markup") << u"<b>bold</b>"_s;
        QTest::newRow("markup and ampersand") << u"Waves & <b>sound</b>"_s;
        QTest::newRow("escaped by hand") << u"a &lt; b"_s;
    }
    void wordsShowAsTheyStand()
    {
        QFETCH(const QString, words);

        QCOMPARE(shown(plainToolTip(words)), words);
    }
};

QTEST_MAIN(PlainToolTipTest)
#include "PlainToolTipTest.moc"
