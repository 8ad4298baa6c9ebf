#pragma once

#include <QString>

namespace tarvelo::engine {

// A take whose recorder did not live to finish it.

// Seconds of sound, 0 when nothing of it can be heard. What was cut off counts as far as it is
// whole. Looks at every packet of a take in fragments, which is quick.
double secondsOfLeftTake(const QString &path);

// Turns a take that is still in fragments into a plain MPEG-4 with one index, as stopping does; the
// new file is complete and on the disk before it takes the old one's name. What was cut off at the
// end stays out of it. False, and the old file as it was, when that cannot be done.
bool finishLeftTake(const QString &path);

} // namespace tarvelo::engine
