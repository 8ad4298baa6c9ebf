#include "platform/Texts.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace tarvelo::platform {

namespace {

// The language of the installed texts, empty when there are none in a language that the user wants.
QString install(const QLocale &locale, const QString &name, const QString &folder)
{
    auto *translator = new QTranslator(QCoreApplication::instance());
    if (!translator->load(locale, name, QStringLiteral("_"), folder))
        return {};
    QCoreApplication::installTranslator(translator);
    return translator->language();
}

} // namespace

void installTexts()
{
    const QString own = QStringLiteral(":/texts");
    // The last one installed is asked first, so English stands behind every language.
    install(QLocale(QLocale::English), QStringLiteral("tarvelo"), own);
    const QString language = install(QLocale(), QStringLiteral("tarvelo"), own);
    // The menus of text fields are Qt's. They speak the language of the program, also when the user
    // has put another one first that Qt knows and the program does not.
    install(QLocale(language), QStringLiteral("qtbase"),
            QLibraryInfo::path(QLibraryInfo::TranslationsPath));
}

QString text(const char *key)
{
    return qtTrId(key);
}

} // namespace tarvelo::platform
