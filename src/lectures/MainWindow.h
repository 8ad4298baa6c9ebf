#pragma once

#include "lectures/LectureOutlets.h"
#include "widgets/SlidingWindow.h"

#include <memory>

namespace tarvelo::platform {
class Dates;
}

namespace tarvelo::lectures {

// The calendar, the list beside it, and the pane for the lecture view.
struct MainWindow
{
    std::unique_ptr<widgets::SlidingWindow> window;
    MainWindowOutlets outlets;
};

// `dates` must outlive the window. Its panes are for the caller to name, since the third one has
// nothing in it yet.
MainWindow buildMainWindow(platform::Dates &dates);

} // namespace tarvelo::lectures
