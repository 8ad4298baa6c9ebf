#pragma once

#include "lectures/LectureOutlets.h"

namespace tarvelo::lectures {

// The three arrangements of the main window, and the slides between them: calendar and list, both
// with the lecture view beside them, the lecture view alone. Frames have their origin bottom-left.
class ViewChanges final
{
public:
    ViewChanges(const MainWindowOutlets &outlets, const LectureViewOutlets &lectureView);
    ViewChanges(const ViewChanges &) = delete;
    ViewChanges &operator=(const ViewChanges &) = delete;

    // The lecture view is slid in over the calendar.
    bool bIsInEditView() const { return m_bIsInEditView; }
    bool bIsInSingleEditView() const { return m_bIsInSingleEditView; }

    void reset();
    void onExpandView();
    void goToCalendarView();
    void viewEditView();
    // For a lecture that is opened beside the list. Nothing moves.
    void prepareLectureView();
    // For a lecture that was saved: back beside calendar and list, if the view stood alone. The
    // window's width is left to the caller.
    void endSingleEditView();

private:
    // Both panes to their places beside each other, the lecture view at height `y`.
    void placeSideBySide(double y);
    void showSlideButtons();

    MainWindowOutlets m_outlets;
    LectureViewOutlets m_lectureView;
    bool m_bIsInEditView = false;
    bool m_bIsInSingleEditView = false;
};

} // namespace tarvelo::lectures
