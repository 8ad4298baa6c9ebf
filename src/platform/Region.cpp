#include "platform/Region.h"

#include <QTimeZone>

#include <unicode/uloc.h>

#include <array>
#include <cstdint>

namespace tarvelo::platform {

namespace {

QByteArray localeOfEnvironment()
{
    for (const char *variable : {"LC_ALL", "LC_TIME", "LANG"}) {
        QByteArray value = qgetenv(variable);
        if (!value.isEmpty())
            return value;
    }
    return {};
}

} // namespace

Region Region::ofUser()
{
    QByteArray posix = localeOfEnvironment();
    const QByteArray language =
        posix.left(posix.indexOf('.') < 0 ? posix.size() : posix.indexOf('.'));
    if (language.isEmpty() || language == "C" || language == "POSIX")
        posix = "en_US";

    std::array<char, 128> name{};
    UErrorCode status = U_ZERO_ERROR;
    uloc_canonicalize(posix.constData(), name.data(), static_cast<int32_t>(name.size()) - 1,
                      &status);
    return {U_SUCCESS(status) ? QByteArray(name.data()) : QByteArray("en_US"),
            QString::fromLatin1(QTimeZone::systemTimeZoneId())};
}

} // namespace tarvelo::platform
