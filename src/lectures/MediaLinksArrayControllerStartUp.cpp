#include "lectures/MediaLinksArrayController.h"

#include "audio/RecordingOutlets.h"
#include "calendar/CKCalendarView.h"
#include "lectures/LectureTable.h"
#include "lectures/LectureWindows.h"
#include "lectures/StartUpLooks.h"
#include "platform/WindowLevel.h"
#include "widgets/ImageButton.h"
#include "widgets/SlidingWindow.h"

#include <QLabel>

#include <chrono>

using namespace std::chrono_literals;

namespace tarvelo::lectures {

namespace {

constexpr auto PathAfterStart = 500ms;

// There is no such number on Linux; it stands for a system on which everything is there.
constexpr qint32 SystemVersion = 0x1080;

} // namespace

// One line a step: later ones build on earlier ones, as the folders on the emptied path.
void MediaLinksArrayController::awakeFromNib()
{
    if (m_services.isAwake)
        return;
    m_services.isAwake = true;

    m_recordingControl.resetPauses();
    m_locations.clearTempAudioSavePath();
    m_version = SystemVersion;
    m_viewChanges.reset();
    platform::setWindowLevel(m_windows.mainWindow(), platform::NormalWindowLevel);
    setBackgroundColors(m_windows);
    becomeDelegateOfWindows();
    dressPlayAudioWindow(m_windows);
    setLabels(m_windows);
    m_selectedIndexes = {};
    m_windows.mainOutlets().tblRecordSubjectList->setSelectionHighlightStyle(
        LectureTable::SelectionHighlightStyle::None);
    setTypingAttributes(m_windows);
    m_locations.createFolders();
    m_journal.start();
    if (m_journal.ownsUsualPlace())
        m_locations.removeReserveLeft();
    setInsertionPointColors(m_windows);
    m_windows.recordingOutlets().lblRecordingDuration->setText(QString());
    m_recordingControl.showTimeOfDay();
    m_recordingControl.startDisplayTimer();
    m_recordingControl.showDate();
    m_windows.mainOutlets().calendarView->layoutSubviews();
    tagConfirmButtons();
    m_playback.resetRate();
    setButtonTitleColor();
    m_setTemporaryPath.schedule(PathAfterStart);
}

void MediaLinksArrayController::becomeDelegateOfWindows()
{
    for (QWidget *window : secondaryWindows(m_windows))
        m_closeGuards.guard(*window);
}

void MediaLinksArrayController::tagConfirmButtons()
{
    m_windows.popoverOutlets().btnConfirmNo->setTag(PopoverOutlets::TagNo);
    m_windows.popoverOutlets().btnConfirmYes->setTag(PopoverOutlets::TagYes);
}

void MediaLinksArrayController::setButtonTitleColor()
{
    lectures::setButtonTitleColor(m_windows);
}

} // namespace tarvelo::lectures
