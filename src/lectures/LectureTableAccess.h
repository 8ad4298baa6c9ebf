#pragma once

namespace tarvelo::lectures {

// From now on screen readers hear the lecture table as a list, and its rows as the items of it.
// More than once does no harm.
void installTableAccessibility();

} // namespace tarvelo::lectures
