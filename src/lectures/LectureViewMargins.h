#pragma once

class QWidget;

namespace tarvelo::lectures {

// Lays the content of the lecture view out within what the window shows of it. The view has the
// frames of the panes that it slides over: it reaches below the window, and after it stood alone it
// is as wide as the calendar, which is wider than the window is there or beside the list.
void keepContentInSight(QWidget &lectureView);

} // namespace tarvelo::lectures
