#pragma once

#include <QString>

namespace tarvelo::widgets {

// What a tool tip is given so that it shows these words as they stand. It would take some of them
// for markup, and shows what is escaped needlessly with the escapes.
QString plainToolTip(const QString &words);

} // namespace tarvelo::widgets
