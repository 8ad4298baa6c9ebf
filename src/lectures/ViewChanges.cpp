#include "lectures/ViewChanges.h"

#include "calendar/CKCalendarView.h"
#include "lectures/Slides.h"
#include "lectures/WindowWidths.h"
#include "platform/Frames.h"
#include "widgets/ImageButton.h"
#include "widgets/SlidingWindow.h"

#include <QRectF>
#include <QWidget>

#include <chrono>

using namespace std::chrono_literals;

namespace tarvelo::lectures {

using platform::frameOf;
using platform::setFrame;

namespace {

constexpr double LectureViewX = ListShownWidth;
constexpr double LectureViewY = -50;
constexpr double CalendarX = -2;
constexpr auto SideBySideDuration = 600ms;
constexpr auto SingleViewDuration = 500ms;

QRectF movedTo(const QWidget &view, double x, double y)
{
    QRectF frame = frameOf(view);
    frame.moveTo(x, y);
    return frame;
}

} // namespace

ViewChanges::ViewChanges(const MainWindowOutlets &outlets, const LectureViewOutlets &lectureView)
    : m_outlets(outlets)
    , m_lectureView(lectureView)
{
}

void ViewChanges::reset()
{
    m_bIsInEditView = false;
    m_bIsInSingleEditView = false;
}

void ViewChanges::placeSideBySide(double y)
{
    m_outlets.calendarView->show();
    m_outlets.tableListView->show();
    const QRectF lectureView = movedTo(*m_outlets.editPlayView, LectureViewX, y);
    const QRectF calendar = movedTo(*m_outlets.calendarView, CalendarX, 0);
    setFrame(*m_outlets.editPlayView, lectureView);
    setFrame(*m_outlets.calendarView, calendar);
    slideTo(*m_outlets.editPlayView, lectureView, SideBySideDuration);
    slideTo(*m_outlets.calendarView, calendar, SideBySideDuration);
}

void ViewChanges::showSlideButtons()
{
    m_lectureView.btnSlidetoView->setHidden(m_bIsInEditView);
    m_lectureView.btnSlideToListView->setHidden(!m_bIsInEditView);
    m_outlets.weekDayView->setHidden(m_bIsInEditView);
    m_outlets.topHorizontalLine->setHidden(m_bIsInEditView);
}

void ViewChanges::onExpandView()
{
    m_bIsInSingleEditView = false;
    m_bIsInEditView = false;
    placeSideBySide(LectureViewY);
    showSlideButtons();
    m_outlets.mainWindow->setFrameWidth(ExpandedWidth, true);
}

void ViewChanges::goToCalendarView()
{
    // The single view's flag stays as it is, which is wanted.
    m_bIsInEditView = false;
    placeSideBySide(frameOf(*m_outlets.editPlayView).y());
    showSlideButtons();
    m_outlets.mainWindow->setFrameWidth(ListShownWidth, true);
}

void ViewChanges::viewEditView()
{
    m_bIsInSingleEditView = true;
    m_lectureView.btnSlideToListView->show();
    m_outlets.calendarView->hide();
    m_outlets.tableListView->hide();
    const QRectF calendar = frameOf(*m_outlets.calendarView);
    setFrame(*m_outlets.editPlayView,
             {calendar.width(), LectureViewY, calendar.width(), calendar.height()});
    m_bIsInEditView = true;
    slideTo(*m_outlets.editPlayView, movedTo(*m_outlets.editPlayView, 0, LectureViewY),
            SingleViewDuration);
    m_lectureView.btnSlidetoView->setHidden(m_bIsInEditView);
    m_outlets.weekDayView->setHidden(m_bIsInEditView);
    m_outlets.topHorizontalLine->setHidden(m_bIsInEditView);
    m_outlets.mainWindow->setFrameWidth(SingleViewWidth, true);
}

void ViewChanges::prepareLectureView()
{
    m_bIsInSingleEditView = false;
    m_lectureView.btnSlideToListView->hide();
    m_lectureView.btnSlidetoView->setHidden(m_bIsInSingleEditView);
}

void ViewChanges::endSingleEditView()
{
    if (!m_bIsInSingleEditView)
        return;
    m_bIsInSingleEditView = false;
    placeSideBySide(LectureViewY);
    m_lectureView.btnSlidetoView->setHidden(m_bIsInEditView);
    // Unlike after the other changes, what stands over the calendar shows while the lecture view
    // counts as slid in, as it still does: wanted so.
    m_lectureView.btnSlideToListView->setHidden(!m_bIsInEditView);
    m_outlets.weekDayView->setHidden(!m_bIsInEditView);
    m_outlets.topHorizontalLine->setHidden(!m_bIsInEditView);
}

} // namespace tarvelo::lectures
