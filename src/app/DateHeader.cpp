#include "app/DateHeader.h"

#include "platform/Dates.h"

#include <QLabel>
#include <QStringList>

namespace tarvelo::app {

namespace {

// The user's locale may write days in numerals of its own.
int numberIn(const QString &numerals)
{
    int number = 0;
    for (const QChar numeral : numerals) {
        if (numeral.digitValue() >= 0)
            number = number * 10 + numeral.digitValue();
    }
    return number;
}

} // namespace

QString buildRankString(int number)
{
    const char *suffix = "th";
    if (number / 10 % 10 != 1) {
        switch (number % 10) {
        case 1:
            suffix = "st";
            break;
        case 2:
            suffix = "nd";
            break;
        case 3:
            suffix = "rd";
            break;
        default:
            break;
        }
    }
    return QString::number(number) + QLatin1String(suffix);
}

DateHeader DateHeader::of(const QDateTime &moment, const platform::Dates &dates)
{
    // The year of the week is wanted here: it differs from the calendar's around New Year, and
    // headers of those days have always shown it.
    QStringList parts = dates.format(moment, QStringLiteral("d MMMM YYYY")).split(u' ');
    if (parts.size() < 3)
        return {};
    const int day = numberIn(parts.takeFirst());
    const QString year = parts.takeLast();
    // Some languages write the name of a month in more than one word.
    const QString month = parts.join(u' ');
    return {QStringLiteral("%1 %2 %3").arg(buildRankString(day), month, year), day < 10 ? 1 : 2};
}

void DateHeader::show(QLabel &label) const
{
    label.clear();
    if (text.isEmpty())
        return;
    const QString before = text.left(suffixStart);
    const QString suffix = text.mid(suffixStart, SuffixLength);
    const QString after = text.mid(suffixStart + SuffixLength);
    // Points of the canvas are 1/96 inch, which Qt's style sheets call px.
    label.setTextFormat(Qt::RichText);
    // The direction is the label's: going by the text, the ordinal would turn every header into one
    // that runs from left to right.
    const QString direction = label.isRightToLeft() ? QStringLiteral("rtl") : QStringLiteral("ltr");
    label.setText(QStringLiteral("<p dir=\"%1\">%2<span style=\"font-size:%3px\">%4</span>%5</p>")
                      .arg(direction, before.toHtmlEscaped(), QString::number(SuffixPoints),
                           suffix.toHtmlEscaped(), after.toHtmlEscaped()));
    label.setAccessibleName(text);
}

} // namespace tarvelo::app
