#pragma once

#include "audio/PlaybackOutlets.h" // IWYU pragma: export
#include "audio/RecordingOutlets.h"
#include "lectures/EditLectureWindow.h"
#include "lectures/LectureOutlets.h" // IWYU pragma: export
#include "lectures/LectureView.h"
#include "lectures/MainWindow.h"
#include "lectures/NewLectureWindow.h"
#include "lectures/PlayAudioWindow.h"
#include "lectures/Popovers.h"

namespace tarvelo::platform {
class Dates;
}
namespace tarvelo::widgets {
class SlidingWindow;
}

namespace tarvelo::lectures {

// Builds the windows of the program and holds them. It knows where things are, not what they do;
// how a window is made from its layout stands with its builder.
class LectureWindows final
{
public:
    // `dates` must outlive this object.
    explicit LectureWindows(platform::Dates &dates);
    LectureWindows(const LectureWindows &) = delete;
    LectureWindows &operator=(const LectureWindows &) = delete;
    ~LectureWindows();

    widgets::SlidingWindow &mainWindow() const { return *m_main.window; }
    const MainWindowOutlets &mainOutlets() const { return m_main.outlets; }
    const LectureViewOutlets &lectureViewOutlets() const { return m_lectureView.outlets; }
    const NewLectureOutlets &newLectureOutlets() const { return m_newLecture.outlets; }
    const audio::RecordingOutlets &recordingOutlets() const { return m_newLecture.recording; }
    const EditLectureOutlets &editLectureOutlets() const { return m_editLecture.outlets; }
    const PlayAudioOutlets &playAudioOutlets() const { return m_playAudio.outlets; }
    const audio::LecturePlayerOutlets &lecturePlayerOutlets() const { return m_playAudio.player; }
    const audio::EditPlayerOutlets &editPlayerOutlets() const { return m_lectureView.player; }
    const PopoverOutlets &popoverOutlets() const { return m_popovers.outlets; }
    audio::ClockOutlets clockOutlets() const;

private:
    void setPanes();
    void showFocusRings();

    MainWindow m_main;
    LectureView m_lectureView;
    NewLectureWindow m_newLecture;
    EditLectureWindow m_editLecture;
    PlayAudioWindow m_playAudio;
    Popovers m_popovers;
};

} // namespace tarvelo::lectures
