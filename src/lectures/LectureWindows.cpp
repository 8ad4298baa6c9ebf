#include "lectures/LectureWindows.h"

#include "audio/PlaybackOutlets.h"
#include "calendar/CKCalendarView.h"
#include "lectures/LectureOutlets.h"
#include "lectures/LectureTable.h" // IWYU pragma: keep: as the view that it is
#include "lectures/LectureTableAccess.h"
#include "platform/HighContrast.h"
#include "widgets/Accessibility.h"
#include "widgets/FocusRing.h"
#include "widgets/MouseDownTextField.h"
#include "widgets/SlidingWindow.h"

#include <QSlider>
#include <QTextEdit>

#include <initializer_list>

namespace tarvelo::lectures {

LectureWindows::LectureWindows(platform::Dates &dates)
{
    platform::readContrast();
    widgets::installAccessibility();
    installTableAccessibility();
    m_main = buildMainWindow(dates);
    m_lectureView = buildLectureView(*m_main.outlets.editPlayView);
    m_newLecture = buildNewLectureWindow();
    m_editLecture = buildEditLectureWindow();
    m_playAudio = buildPlayAudioWindow();
    m_popovers = buildPopovers();
    setPanes();
    showFocusRings();
}

LectureWindows::~LectureWindows() = default;

audio::ClockOutlets LectureWindows::clockOutlets() const
{
    const NewLectureOutlets &newLecture = newLectureOutlets();
    const EditLectureOutlets &edit = editLectureOutlets();
    const LectureViewOutlets &view = lectureViewOutlets();
    return {newLecture.textTime, edit.textEditTime, view.tEditTime,
            newLecture.textDate, edit.textEditDate, view.tEditDate};
}

void LectureWindows::setPanes()
{
    const MainWindowOutlets &main = mainOutlets();
    mainWindow().setPanes({
        {main.calendarView, [calendar = main.calendarView] { return calendar->tabStop(); }},
        {main.tableListView, [table = main.tblRecordSubjectList] { return table; }},
        {main.editPlayView, [subject = lectureViewOutlets().tSubjectName] { return subject; }},
    });
}

void LectureWindows::showFocusRings()
{
    for (QWidget *view : std::initializer_list<QWidget *>{
             newLectureOutlets().txtSubjectForNewNote, editLectureOutlets().txtSubjectForEdit,
             lectureViewOutlets().tSubjectName, newLectureOutlets().txtView,
             editLectureOutlets().txtViewNotesForEdit, lectureViewOutlets().tViewNoteForEdit,
             playAudioOutlets().txtSubjectName, lecturePlayerOutlets().sliderPlayProgress,
             editPlayerOutlets().sliderEditProgress, recordingOutlets().sliderPlayProgress2})
        widgets::showFocusRing(*view);
}

} // namespace tarvelo::lectures
