#include "audio/DurationText.h"

#include <cmath>
#include <limits>

namespace tarvelo::audio {

namespace {

template <typename Number>
QString twoDigits(Number number)
{
    return number < 10 ? QStringLiteral("0%1").arg(number) : QString::number(number);
}

} // namespace

QString getDuration(qint32 seconds)
{
    const QString secondsField = twoDigits(seconds - 60 * (seconds / 60));
    if (seconds <= 59)
        return QStringLiteral("00:00:%1").arg(secondsField);
    const auto whole = static_cast<quint32>(seconds);
    const QString minutesField = twoDigits((whole / 60) % 60);
    if (seconds <= 3599)
        return QStringLiteral("00:%1:%2").arg(minutesField, secondsField);
    return QStringLiteral("%1:%2:%3")
        .arg(twoDigits((whole / 3600) % 24), minutesField, secondsField);
}

qint32 wholeSeconds(double seconds)
{
    if (std::isnan(seconds))
        return 0;
    constexpr double Least = std::numeric_limits<qint32>::min();
    constexpr double Most = std::numeric_limits<qint32>::max();
    return static_cast<qint32>(std::fmin(std::fmax(std::trunc(seconds), Least), Most));
}

} // namespace tarvelo::audio
