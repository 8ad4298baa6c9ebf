#pragma once

#include "audio/engine/TakeExtent.h"

#include <string>

namespace tarvelo::engine {

// Turns a finished fragmented take into a plain MPEG-4 with one index over all of it, from which
// every reader knows the exact length at once. The new file is complete and on the disk before it
// takes the old one's name: false, and the old file as it was, when that cannot be done or when the
// old file does not give back all that it must hold.
bool replaceWithIndexedCopy(const std::string &path, const TakeExtent &extent);

} // namespace tarvelo::engine
