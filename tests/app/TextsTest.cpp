#include "platform/Texts.h"

#include "support/TestCase.h"

#include <QCoreApplication>
#include <QDir>
#include <QProcess>
#include <QTranslator>

namespace {

// Set for a child process of this test, which only says its words for notes and for pasting.
const char *const Asked = "TARVELO_TEST_SAYS_ITS_WORDS";

int sayWords()
{
    tarvelo::platform::installTexts();
    const QString words = tarvelo::platform::text("LABEL_NOTES") + u',' +
                          QCoreApplication::translate("QLineEdit", "&Paste");
    fputs(words.toUtf8().constData(), stdout);
    return 0;
}

// What a student sees whose desktop sets these variables.
QStringList wordsWith(const QString &settings)
{
    const QStringList variables = settings.split(u' ', Qt::SkipEmptyParts);
    QProcess child;
    child.setProgram(QCoreApplication::applicationFilePath());
    QStringList environment = variables;
    environment << QString::fromLatin1(Asked) + QStringLiteral("=1");
    child.setEnvironment(environment);
    child.start();
    child.waitForFinished(-1);
    return QString::fromUtf8(child.readAllStandardOutput() + child.readAllStandardError())
        .split(u',');
}

QString notesIn(const QString &language)
{
    QTranslator texts;
    const bool loaded = texts.load(QStringLiteral(":/texts/tarvelo_%1.qm").arg(language));
    return loaded ? texts.translate("", "LABEL_NOTES") : QString();
}

} // namespace

class TextsTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theProgramSpeaksEveryLanguageThatHasTexts()
    {
        const QDir files(QStringLiteral(TARVELO_SOURCE_DIR "/resources/texts"));

        QVERIFY(files.entryList(QDir::Files).size() >= 17);
        for (const QFileInfo &file : files.entryInfoList(QDir::Files))
            QVERIFY2(!notesIn(file.baseName().section(u'_', 1)).isEmpty(),
                     qPrintable(file.baseName()));
    }

    void theLanguageIsTheFirstOneWantedThatHasTexts_data()
    {
        QTest::addColumn<QString>("variables");
        QTest::addColumn<QString>("language");

        const auto row = [](const char *variables, const char *language) {
            QTest::newRow(variables)
                << QString::fromLatin1(variables) << QString::fromLatin1(language);
        };
        row("LANG=de_DE.UTF-8", "de");
        row("LANG=de_DE.UTF-8 LC_MESSAGES=fr_FR.UTF-8", "fr");
        row("LANG=de_DE.UTF-8 LC_MESSAGES=fr_FR.UTF-8 LC_ALL=es_MX.UTF-8", "es");
        row("LANG=de_DE.UTF-8 LANGUAGE=uk", "uk");
        row("LANG=de_DE.UTF-8 LANGUAGE=is:ja:fr", "ja");
        row("LANG=de_DE.UTF-8 LANGUAGE=en_GB:fr", "en");
        row("LANG=de_DE.UTF-8 LC_TIME=fr_FR.UTF-8", "de");
        row("LANG=de_AT", "de");
        row("LANG=pt_BR.UTF-8", "pt");
        row("LANG=pt_PT.UTF-8", "pt");
        row("LANG=zh_CN.UTF-8", "zh");
        row("LANG=zh_TW.UTF-8", "zh");
        row("LANG=he_IL.UTF-8", "he");
        row("LANG=iw_IL.UTF-8", "he");
        row("LANG=is_IS.UTF-8", "en");
        row("LANG=xx", "en");
        row("LANG=C", "en");
        row("", "en");
    }

    void theLanguageIsTheFirstOneWantedThatHasTexts()
    {
        QFETCH(QString, variables);
        QFETCH(QString, language);

        const QStringList shown = wordsWith(variables);

        QCOMPARE(shown.first(), notesIn(language));
    }

    void theMenusOfTextFieldsSpeakTheLanguageOfTheProgram_data()
    {
        QTest::addColumn<QString>("variables");
        QTest::addColumn<QString>("paste");

        QTest::newRow("German") << "LANG=de_DE.UTF-8" << QStringLiteral("Einfügen");
        QTest::newRow("Chinese") << "LANG=zh_CN.UTF-8" << QStringLiteral("粘贴(P)");
        QTest::newRow("Brazil") << "LANG=pt_BR.UTF-8"
                                << "Colar";
        QTest::newRow("Portugal") << "LANG=pt_PT.UTF-8"
                                  << "Colar";
        QTest::newRow("a language only Qt knows") << "LANGUAGE=fi:de" << QStringLiteral("Einfügen");
        QTest::newRow("neither knows") << "LANG=is_IS.UTF-8"
                                       << "Paste";
    }

    void theMenusOfTextFieldsSpeakTheLanguageOfTheProgram()
    {
        QFETCH(QString, variables);
        QFETCH(QString, paste);

        const QStringList shown = wordsWith(variables);

        QCOMPARE(QString(shown.last()).remove(u'&'), paste);
    }

    void aLanguageWithoutTextsIsShownInEnglish()
    {
        QLocale::setDefault(QLocale(QLocale::Icelandic));

        tarvelo::platform::installTexts();

        QCOMPARE(tarvelo::platform::text("LABEL_NOTES"), QStringLiteral("Notes"));
    }
};

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    if (qEnvironmentVariableIsSet(Asked))
        return sayWords();
    TextsTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "TextsTest.moc"
