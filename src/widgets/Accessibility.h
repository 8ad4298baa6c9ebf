#pragma once

namespace tarvelo::widgets {

// From now on screen readers hear what the windows, pop-overs, groups, lines, toggles and level
// indicators of the program are. To be called before the first of them is made; more than once does
// no harm.
void installAccessibility();

} // namespace tarvelo::widgets
