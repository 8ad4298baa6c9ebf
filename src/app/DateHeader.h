#pragma once

#include <QString>

class QDateTime;
class QLabel;

namespace tarvelo::platform {
class Dates;
}

namespace tarvelo::app {

// "1st", "2nd", "3rd", "11th": the ordinal of a day number.
QString buildRankString(int number);

// The day shown, as the main window's header writes it: "5th March 2024", the two letters of the
// ordinal smaller than the rest.
struct DateHeader
{
    static constexpr int SuffixLength = 2;
    static constexpr int SuffixPoints = 18;

    QString text;
    int suffixStart = 1; // 0-based; the suffix is SuffixLength long

    static DateHeader of(const QDateTime &moment, const platform::Dates &dates);

    // In the label's own font, colour and alignment, but for the suffix, which is SuffixPoints
    // high.
    void show(QLabel &label) const;
};

} // namespace tarvelo::app
