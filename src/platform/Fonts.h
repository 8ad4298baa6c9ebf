#pragma once

#include <QFont>

namespace tarvelo::platform {

// The named face, or the system font when it is missing. The size is in points of the canvas, 1/96
// inch at 100 % scaling, so that text keeps its place beside frames given in the same unit.
QFont fontNamed(const QString &face, double size);

// By how much the desktop's letters are larger than ordinary ones: 1 at least, and no more than the
// windows have room for.
double textScale();

// The same for texts that grow with the desktop's.
QFont scaledFontNamed(const QString &face, double size);

// The system font in a size of points of print, for texts that leave the canvas.
QFont systemFontOfSize(double points);

} // namespace tarvelo::platform
