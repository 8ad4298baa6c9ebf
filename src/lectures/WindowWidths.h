#pragma once

namespace tarvelo::lectures {

// The widths of the main window, in points: one for each arrangement of its three views.

// Calendar alone.
constexpr int FoldedWidth = 452;

// Calendar and list. At just this width the list counts as showing.
constexpr int ListShownWidth = 833;

// Calendar, list and lecture view, as much of which shows then as when it is alone, give or take
// the line between.
constexpr int ExpandedWidth = 1234;

// Lecture view alone.
constexpr int SingleViewWidth = 400;

} // namespace tarvelo::lectures
