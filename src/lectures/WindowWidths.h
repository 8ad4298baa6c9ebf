#pragma once

namespace tarvelo::lectures {

// The main window with calendar and list, in points. At just this width the list counts as showing.
constexpr int ListShownWidth = 833;

// With the lecture view beside them.
constexpr int ExpandedWidth = 1234;

} // namespace tarvelo::lectures
