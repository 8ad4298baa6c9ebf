#pragma once

#include <optional>
#include <string>

namespace tarvelo::engine {

struct TakeExtent;

// Turns a take in fragments into a plain MPEG-4 with one index over all of it, from which every
// reader knows the exact length at once. The new file is complete, on the disk and read again
// before it takes the old one's name: false, and the old file as it was, when that cannot be done,
// when the old file cannot be read to its end, or when it does not give back all that it must hold.
// Without an extent that is what a reader finds in it.
bool replaceWithIndexedCopy(const std::string &path, const std::optional<TakeExtent> &extent);

} // namespace tarvelo::engine
