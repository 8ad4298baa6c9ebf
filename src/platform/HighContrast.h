#pragma once

class QColor;

namespace tarvelo::platform {

// How much two colours differ in brightness, by the rules of the web: from 1, not at all, to 21.
double contrastOf(const QColor &one, const QColor &other);

// Whether the desktop asked for high contrast when that was read last. Desktops have no common word
// for it: those that do write in pure black on pure white, or the other way round, which no
// ordinary theme does.
bool isContrastHigh();

// Reads it anew, which is for the moment at which the windows are built: what they hold of colours
// and drawings from then on, and what they ask for later, must not be of two kinds.
void readContrast();

} // namespace tarvelo::platform
