#pragma once

#include "audio/PlaybackOutlets.h"
#include "audio/RecordingOutlets.h"
#include "lectures/LectureOutlets.h"

#include <memory>

namespace tarvelo::platform {
class Dates;
}

namespace tarvelo::lectures {

// Builds the windows of the program from their layouts and holds them. It knows where things are,
// not what they do.
class LectureWindows final
{
public:
    // `dates` must outlive this object.
    explicit LectureWindows(platform::Dates &dates);
    LectureWindows(const LectureWindows &) = delete;
    LectureWindows &operator=(const LectureWindows &) = delete;
    ~LectureWindows();

    widgets::SlidingWindow &mainWindow() const { return *m_main.mainWindow; }
    const MainWindowOutlets &mainOutlets() const { return m_main; }
    const LectureViewOutlets &lectureViewOutlets() const { return m_lectureView; }
    const NewLectureOutlets &newLectureOutlets() const { return m_newLecture; }
    const audio::RecordingOutlets &recordingOutlets() const { return m_recording; }
    const EditLectureOutlets &editLectureOutlets() const { return m_editLecture; }
    const PlayAudioOutlets &playAudioOutlets() const { return m_playAudio; }
    const audio::LecturePlayerOutlets &lecturePlayerOutlets() const { return m_lecturePlayer; }
    const audio::EditPlayerOutlets &editPlayerOutlets() const { return m_editPlayer; }
    const PopoverOutlets &popoverOutlets() const { return m_popovers; }
    audio::ClockOutlets clockOutlets() const;

private:
    void buildMainWindow(platform::Dates &dates);
    void buildLectureView();
    void buildNewLectureWindow();
    void buildEditLectureWindow();
    void buildPlayAudioWindow();
    void buildPopovers();

    std::unique_ptr<widgets::SlidingWindow> m_mainWindow;
    std::unique_ptr<QWidget> m_newNoteWindow;
    std::unique_ptr<QWidget> m_windowEditLecture;
    std::unique_ptr<QWidget> m_playAudioWindow;
    std::unique_ptr<widgets::PopOver> m_popoverConfirmRecordDelete;
    std::unique_ptr<widgets::PopOver> m_popoverAudioConfirmClose;
    MainWindowOutlets m_main;
    LectureViewOutlets m_lectureView;
    NewLectureOutlets m_newLecture;
    audio::RecordingOutlets m_recording;
    EditLectureOutlets m_editLecture;
    PlayAudioOutlets m_playAudio;
    audio::LecturePlayerOutlets m_lecturePlayer;
    audio::EditPlayerOutlets m_editPlayer;
    PopoverOutlets m_popovers;
};

} // namespace tarvelo::lectures
