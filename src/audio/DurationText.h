#pragma once

#include <QString>

namespace tarvelo::audio {

// The one form of a length of time: two-digit hours, minutes and seconds joined by colons.
// `seconds` is a whole number; hours wrap at 24, so that 25 hours read 01:00:00, which is wanted.
QString getDuration(qint32 seconds);

// Seconds as callers have them, cut toward zero to the whole number that getDuration() takes.
qint32 wholeSeconds(double seconds);

} // namespace tarvelo::audio
