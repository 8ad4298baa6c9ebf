#include "audio/RecordingDay.h"

#include "audio/AudioFileLocations.h"
#include "platform/Dates.h"

#include <QDate>
#include <QDateTime>
#include <QFileInfo>
#include <QTime>

#include <algorithm>

namespace tarvelo::audio {

namespace {

// A file that was copied by something that knows no times.
bool canBe(const QDateTime &modified, const QDateTime &now)
{
    return modified.isValid() && modified > QDateTime(QDate(1980, 1, 2), QTime(0, 0)) &&
           modified <= now.addDays(1);
}

// Of the digits of any script.
int yearAtTheBeginning(const QString &digits)
{
    int year = 0;
    for (const QChar digit : digits.first(4))
        year = 10 * year + digit.digitValue();
    return year;
}

// Names tell the year of the week, which is another one in some of the days around New Year, and in
// some calendars counts from elsewhere. The moment is the one that would be given this name.
QDateTime momentInName(const QString &path, const platform::Dates &dates)
{
    const QString digits = QFileInfo(path).completeBaseName().section(u' ', -1);
    const bool isMoment =
        digits.size() == SavedMomentPattern.size() &&
        std::all_of(digits.begin(), digits.end(), [](QChar digit) { return digit.isDigit(); });
    if (!isMoment)
        return {};
    const int year = yearAtTheBeginning(digits);
    const int apart = yearAtTheBeginning(dates.format(dates.now(), QStringLiteral("yyyy"))) -
                      yearAtTheBeginning(dates.format(dates.now(), QStringLiteral("YYYY")));
    for (const int years : {0, -1, 1, apart, apart - 1, apart + 1}) {
        const QString text = QString::number(year + years) + digits.mid(4);
        QDateTime moment = dates.parse(text, QStringLiteral("yyyyMMddHHmmss"));
        if (moment.isValid() && dates.format(moment, SavedMomentPattern) == digits)
            return moment;
    }
    return {};
}

} // namespace

QString dayOfRecording(const QString &path, const QDateTime &modified, const platform::Dates &dates)
{
    QDateTime moment = canBe(modified, dates.now()) ? modified : momentInName(path, dates);
    if (!moment.isValid())
        moment = dates.now();
    return dates.askedDay(moment);
}

} // namespace tarvelo::audio
