#include "store/Capitalised.h"
#include "support/TestCase.h"

using namespace Qt::StringLiterals;
using tarvelo::store::capitalised;

class CapitalisedTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void everyWordStartsWithACapitalAndGoesOnSmall_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("expected");

        QTest::newRow("plain") << u"history of art"_s << u"History Of Art"_s;
        QTest::newRow("accents") << u"ÉTUDES de cas"_s << u"Études De Cas"_s;
        QTest::newRow("hyphen") << u"e-mail"_s << u"E-mail"_s;
        QTest::newRow("apostrophe") << u"o'neill"_s << u"O'neill"_s;
        QTest::newRow("shouted") << u"DNA AND RNA"_s << u"Dna And Rna"_s;
        QTest::newRow("digit first") << u"2ND law, 3d"_s << u"2nd Law, 3d"_s;
        QTest::newRow("bracket first") << u"(part two)"_s << u"(part Two)"_s;
        QTest::newRow("one letter") << u"a b"_s << u"A B"_s;
        QTest::newRow("letter with two capitals") << u"ßtraße GROẞ"_s << u"Sstraße Groß"_s;
        QTest::newRow("ligature") << u"ﬁlm"_s << u"Film"_s;
        QTest::newRow("surrogate pair") << u"𐐨𐐀𐐀 😀BC"_s << u"𐐀𐐨𐐨 😀bc"_s;
        QTest::newRow("combining accent") << u"e\u0301TUDE"_s << u"E\u0301tude"_s;
        QTest::newRow("Greek and Cyrillic") << u"ФИЗИКА λογική"_s << u"Физика Λογική"_s;
        QTest::newRow("no letter case") << u"歴史 中文"_s << u"歴史 中文"_s;
        QTest::newRow("unpaired surrogate") << QString(QChar(0xD801)) << QString(QChar(0xD801));
        QTest::newRow("empty") << QString() << u""_s;
    }

    void everyWordStartsWithACapitalAndGoesOnSmall()
    {
        QFETCH(const QString, text);
        QFETCH(const QString, expected);

        QCOMPARE(capitalised(text), expected);
    }

    void spacesTabsAndLineEndsPartWordsAndStayAsTheyAre_data()
    {
        QTest::addColumn<QString>("gap");

        QTest::newRow("space") << u" "_s;
        QTest::newRow("several") << u"   "_s;
        QTest::newRow("tab") << u"\t"_s;
        QTest::newRow("line feed") << u"\n"_s;
        QTest::newRow("carriage return, line feed") << u"\r\n"_s;
        QTest::newRow("line separator") << u"\u2028"_s;
        QTest::newRow("paragraph separator") << u"\u2029"_s;
        QTest::newRow("no-break space") << u"\u00a0"_s;
        QTest::newRow("ideographic space") << u"\u3000"_s;
    }

    void spacesTabsAndLineEndsPartWordsAndStayAsTheyAre()
    {
        QFETCH(const QString, gap);

        QCOMPARE(capitalised(gap + u"oNE"_s + gap + u"tWO"_s + gap),
                 gap + u"One"_s + gap + u"Two"_s + gap);
    }

    void capitalisingTwiceChangesNothing()
    {
        const QString once = capitalised(u"ßtraße ﬁlm E-MAIL o'neill"_s);

        QCOMPARE(capitalised(once), once);
    }
};

QTEST_GUILESS_MAIN(CapitalisedTest)
#include "CapitalisedTest.moc"
