#pragma once

class QWidget;

namespace tarvelo::widgets {

// Windows whose background is fixed white, or whose drawings have fixed dark colours, keep a light
// palette with the program's accent, so that a dark desktop theme never gives white on white.
void setLightPalette(QWidget &window);

} // namespace tarvelo::widgets
