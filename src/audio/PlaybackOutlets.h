#pragma once

#include "audio/PlayPauseButtons.h"

class QLabel;
class QLineEdit;
class QSlider;
class QWidget;

namespace tarvelo::widgets {
class ImageButton;
class SegmentedControl;
} // namespace tarvelo::widgets

namespace tarvelo::audio {

// The controls of the play window. All of them exist.
struct LecturePlayerOutlets
{
    // The tags under which its two buttons say what a press means.
    static constexpr int TagPlay = 1;
    static constexpr int TagPause = 2;

    QWidget *playAudioWindow = nullptr;
    QLineEdit *txtSubjectName = nullptr;
    widgets::ImageButton *btnPlayLecture = nullptr;
    widgets::ImageButton *btnPauseLecture = nullptr;
    QSlider *sliderPlayProgress = nullptr;
    QLabel *txtElapsedTime = nullptr;
    QLabel *txtRemainingTime = nullptr;
    widgets::SegmentedControl *segPlaySpeed = nullptr;

    PlayPauseButtons buttons() const
    {
        return {btnPlayLecture, btnPauseLecture, TagPlay, TagPause};
    }
};

// The controls of the player in the lecture view. All of them exist.
struct EditPlayerOutlets
{
    // That of pausing is another one than in the play window, which is wanted.
    static constexpr int TagPause = 0;
    static constexpr int TagPlay = 1;

    widgets::ImageButton *bPlay = nullptr;
    widgets::ImageButton *bPause = nullptr;
    QSlider *sliderEditProgress = nullptr;
    QLabel *tElapsedTime = nullptr;
    QLabel *tRemainingTime = nullptr;

    PlayPauseButtons buttons() const { return {bPlay, bPause, TagPlay, TagPause}; }
};

} // namespace tarvelo::audio
