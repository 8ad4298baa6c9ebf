#include "platform/Texts.h"

#include <QCoreApplication>
#include <QLocale>
#include <QTranslator>

namespace tarvelo::platform {

void installTexts()
{
    const auto install = [](const QLocale &locale) {
        auto *translator = new QTranslator(QCoreApplication::instance());
        if (translator->load(locale, QStringLiteral("tarvelo"), QStringLiteral("_"),
                             QStringLiteral(":/texts")))
            QCoreApplication::installTranslator(translator);
    };
    // The last one installed is asked first, so English stands behind every language.
    install(QLocale(QLocale::English));
    install(QLocale());
}

QString text(const char *key)
{
    return qtTrId(key);
}

} // namespace tarvelo::platform
