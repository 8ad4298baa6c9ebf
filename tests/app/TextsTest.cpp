#include "platform/Texts.h"

#include "support/TestCase.h"

#include <QCoreApplication>
#include <QDirIterator>
#include <QFile>
#include <QMap>
#include <QTranslator>
#include <QXmlStreamReader>

using Texts = QMap<QString, QString>;

namespace {

const QString Root = QStringLiteral(TARVELO_SOURCE_DIR);

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

Texts textsOf(const QString &language)
{
    Texts texts;
    QXmlStreamReader xml(
        contentOf(QStringLiteral("%1/resources/texts/tarvelo_%2.ts").arg(Root, language)));
    QString key;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == u"message")
            key = xml.attributes().value(QStringLiteral("id")).toString();
        else if (xml.name() == u"translation")
            texts.insert(key, xml.readElementText());
    }
    return texts;
}

QStringList languages()
{
    QStringList languages;
    const QRegularExpression name(QStringLiteral("tarvelo_(\\w+)\\.ts$"));
    QDirIterator files(Root + QStringLiteral("/resources/texts"), QDir::Files);
    while (files.hasNext())
        languages << name.match(files.next()).captured(1);
    languages.sort();
    return languages;
}

QStringList placeholdersIn(const QString &text)
{
    static const QRegularExpression placeholder(QStringLiteral("%(L?\\d+|n)"));
    QStringList found;
    for (auto matches = placeholder.globalMatch(text); matches.hasNext();)
        found << matches.next().captured();
    found.sort();
    return found;
}

// The keys that the code asks for by text("KEY") and the window layouts by id="KEY".
QStringList keysUsed()
{
    static const QRegularExpression use(
        QStringLiteral("(?:\\btext\\(|<string id=)\"([A-Z_0-9]+)\""));
    QStringList keys;
    QDirIterator files(Root + QStringLiteral("/src"),
                       {QStringLiteral("*.cpp"), QStringLiteral("*.ui")}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString content = QString::fromUtf8(contentOf(files.next()));
        for (auto matches = use.globalMatch(content); matches.hasNext();)
            keys << matches.next().captured(1);
    }
    return keys;
}

} // namespace

class TextsTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void everyLanguageHasEveryKey()
    {
        const Texts english = textsOf(QStringLiteral("en"));

        QVERIFY(languages().size() >= 3);
        QVERIFY(english.size() > 40);
        for (const QString &language : languages())
            QCOMPARE(textsOf(language).keys(), english.keys());
    }

    void noTextIsEmpty()
    {
        for (const QString &language : languages()) {
            const Texts texts = textsOf(language);
            for (auto text = texts.cbegin(); text != texts.cend(); ++text)
                QVERIFY2(!text->trimmed().isEmpty(), qPrintable(language + text.key()));
        }
    }

    void everyLanguageHasTheSamePlaceholders()
    {
        const Texts english = textsOf(QStringLiteral("en"));

        for (const QString &language : languages()) {
            const Texts texts = textsOf(language);
            for (auto text = english.cbegin(); text != english.cend(); ++text)
                QCOMPARE(placeholdersIn(texts.value(text.key())), placeholdersIn(*text));
        }
    }

    void everyKeyThatIsAskedForHasAText()
    {
        const Texts english = textsOf(QStringLiteral("en"));

        for (const QString &key : keysUsed())
            QVERIFY2(english.contains(key), qPrintable(key));
    }

    void theProgramSpeaksEveryLanguageThatHasTexts()
    {
        for (const QString &language : languages()) {
            QTranslator translator;

            QVERIFY(translator.load(QStringLiteral(":/texts/tarvelo_%1.qm").arg(language)));
            QCOMPARE(translator.translate("", "MENU_QUIT"),
                     textsOf(language).value(QStringLiteral("MENU_QUIT")));
        }
    }

    void aLanguageWithoutTextsIsShownInEnglish()
    {
        QLocale::setDefault(QLocale(QLocale::Icelandic));

        tarvelo::platform::installTexts();

        QCOMPARE(tarvelo::platform::text("LABEL_NOTES"), QStringLiteral("Notes"));
    }
};

QTEST_GUILESS_MAIN(TextsTest)
#include "TextsTest.moc"
