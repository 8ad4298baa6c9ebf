#pragma once

class QFont;

namespace tarvelo::widgets {

// The face of the windows, in a size that follows the desktop's.
QFont scaledFace(double size);
// The same in one size on every desktop.
QFont fixedFace(double size);

} // namespace tarvelo::widgets
