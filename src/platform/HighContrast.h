#pragma once

class QColor;

namespace tarvelo::platform {

// How much two colours differ in brightness, by the rules of the web: from 1, not at all, to 21.
double contrastOf(const QColor &one, const QColor &other);

// Whether the desktop asks for high contrast. Desktops have no common word for it: those that do
// write in pure black on pure white, or the other way round, which no ordinary theme does.
bool isContrastHigh();

} // namespace tarvelo::platform
