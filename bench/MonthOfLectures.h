#pragma once

#include "store/Sqlite.h"
#include "store/Statements.h"

#include <QDate>

namespace tarvelo::bench {

inline const QDate LastDay(2024, 3, 31);
constexpr int LecturesADay = 4;

// Into a new file, backwards from the last day of the month, so that the month is full from 124
// lectures on.
inline void fill(store::Sqlite &database, int lectures)
{
    database.beginTransaction();
    for (int number = lectures - 1; number >= 0; --number)
        database.executeNonQueryArguments(
            store::statements::Insert,
            {QStringLiteral("Optics %1").arg(number), QStringLiteral("test course"),
             QStringLiteral("Lenses and mirrors, and what they have in common. ").repeated(4),
             LastDay.addDays(-(number / LecturesADay)).toString(Qt::ISODate),
             QStringLiteral("10.00 AM"), QStringLiteral("11.30 AM"),
             QStringLiteral("/home/student/.local/share/Tarvelo/Audio/%1.aac").arg(number),
             QStringLiteral("00:45:00")});
    database.commit();
}

} // namespace tarvelo::bench
