#include "support/FileContent.h"
#include "support/TestCase.h"

#include <QDirIterator>
#include <QMap>
#include <QRegularExpression>
#include <QXmlStreamReader>

using tarvelo::tests::contentOf;
using Texts = QMap<QString, QString>;

namespace {

const QString Root = QStringLiteral(TARVELO_SOURCE_DIR);

QByteArray fileOf(const QString &language)
{
    return contentOf(QStringLiteral("%1/resources/texts/tarvelo_%2.ts").arg(Root, language));
}

// What a file of texts says, and into faults what is wrong with it by itself.
Texts textsIn(const QByteArray &file, QStringList *faults = nullptr)
{
    Texts texts;
    QStringList found;
    QXmlStreamReader xml(file);
    QString key;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == u"message")
            key = xml.attributes().value(QStringLiteral("id")).toString();
        else if (xml.name() == u"translation") {
            if (xml.attributes().hasAttribute(QStringLiteral("type")))
                found << QStringLiteral("unfinished %1").arg(key);
            if (texts.contains(key))
                found << QStringLiteral("twice %1").arg(key);
            texts.insert(key, xml.readElementText());
        }
    }
    if (xml.hasError())
        found << xml.errorString();
    if (faults)
        *faults << found;
    return texts;
}

Texts textsOf(const QString &language)
{
    return textsIn(fileOf(language));
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

// The blanks before and after a text, which the code may rely on to join it with another.
QString blanksAround(const QString &text)
{
    static const QRegularExpression blanks(QStringLiteral("^(\\s*).*?(\\s*)$"),
                                           QRegularExpression::DotMatchesEverythingOption);
    const auto match = blanks.match(text);
    return match.captured(1) + u'|' + match.captured(2);
}

// What is wrong with the texts of a language beside the English ones.
QStringList faultsIn(const QByteArray &file, const Texts &english)
{
    QStringList faults;
    const Texts texts = textsIn(file, &faults);
    for (const QString &key : texts.keys())
        if (!english.contains(key))
            faults << QStringLiteral("unknown %1").arg(key);
    for (auto text = english.cbegin(); text != english.cend(); ++text) {
        const QString translated = texts.value(text.key());
        if (!texts.contains(text.key()))
            faults << QStringLiteral("missing %1").arg(text.key());
        else if (translated.trimmed().isEmpty())
            faults << QStringLiteral("empty %1").arg(text.key());
        else if (placeholdersIn(translated) != placeholdersIn(*text))
            faults << QStringLiteral("placeholders %1").arg(text.key());
        else if (blanksAround(translated) != blanksAround(*text))
            faults << QStringLiteral("blanks %1").arg(text.key());
    }
    return faults;
}

QByteArray message(const char *key, const char *text)
{
    return QByteArray("<message id=\"") + key + "\"><translation>" + text +
           "</translation></message>";
}

// The keys that the code asks for and the window layouts by id="KEY".
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

// All strings of the code that look like a key: some keys are chosen first and asked for later.
QStringList stringsInTheCode()
{
    static const QRegularExpression string(QStringLiteral("\"([A-Z][A-Z_0-9]+)\""));
    QStringList strings;
    QDirIterator files(Root + QStringLiteral("/src"), QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString content = QString::fromUtf8(contentOf(files.next()));
        for (auto matches = string.globalMatch(content); matches.hasNext();)
            strings << matches.next().captured(1);
    }
    return strings;
}

} // namespace

class TextFilesTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void everyLanguageHasEveryTextOnceWithTheSamePlaceholdersAndBlanks()
    {
        const Texts english = textsOf(QStringLiteral("en"));

        QVERIFY(languages().size() >= 17);
        QVERIFY(english.size() > 40);
        for (const QString &language : languages())
            QCOMPARE(language + faultsIn(fileOf(language), english).join(u','), language);
    }

    void aFaultyTextIsFound_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<QString>("fault");

        const QByteArray good = message("A", "eins %1 ");
        QTest::newRow("none") << good + message("B", "zwei") << QString();
        QTest::newRow("missing") << good << "missing B";
        QTest::newRow("empty") << good + message("B", " ") << "empty B";
        QTest::newRow("twice") << good + message("B", "zwei") + message("B", "zwei") << "twice B";
        QTest::newRow("unknown") << good + message("B", "zwei") + message("C", "drei")
                                 << "unknown C";
        QTest::newRow("placeholder")
            << message("A", "eins %2 ") + message("B", "zwei") << "placeholders A";
        QTest::newRow("more placeholders") << good + message("B", "%n zwei") << "placeholders B";
        QTest::newRow("blank") << message("A", "eins %1") + message("B", "zwei") << "blanks A";
        QTest::newRow("unfinished")
            << good + "<message id='B'><translation type='unfinished'>zwei</translation></message>"
            << "unfinished B";
    }

    void aFaultyTextIsFound()
    {
        QFETCH(QByteArray, file);
        QFETCH(QString, fault);

        const Texts english{{QStringLiteral("A"), QStringLiteral("one %1 ")},
                            {QStringLiteral("B"), QStringLiteral("two")}};

        QCOMPARE(faultsIn("<TS>" + file + "</TS>", english).join(QStringLiteral(", ")), fault);
    }

    void noTextIsKeptThatNothingAsksFor()
    {
        const QStringList strings = stringsInTheCode() + keysUsed();

        for (const QString &key : textsOf(QStringLiteral("en")).keys())
            QVERIFY2(strings.contains(key), qPrintable(key));
    }

    void everyKeyThatIsAskedForHasAText()
    {
        const Texts english = textsOf(QStringLiteral("en"));

        for (const QString &key : keysUsed())
            QVERIFY2(english.contains(key), qPrintable(key));
    }
};

QTEST_GUILESS_MAIN(TextFilesTest)
#include "TextFilesTest.moc"
