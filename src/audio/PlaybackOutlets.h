#pragma once

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
    QWidget *playAudioWindow = nullptr;
    QLineEdit *txtSubjectName = nullptr;
    widgets::ImageButton *btnPlayLecture = nullptr;
    widgets::ImageButton *btnPauseLecture = nullptr;
    QSlider *sliderPlayProgress = nullptr;
    QLabel *txtElapsedTime = nullptr;
    QLabel *txtRemainingTime = nullptr;
    widgets::SegmentedControl *segPlaySpeed = nullptr;
};

// The controls of the player in the lecture view. All of them exist.
struct EditPlayerOutlets
{
    widgets::ImageButton *bPlay = nullptr;
    widgets::ImageButton *bPause = nullptr;
    QSlider *sliderEditProgress = nullptr;
    QLabel *tElapsedTime = nullptr;
    QLabel *tRemainingTime = nullptr;
};

} // namespace tarvelo::audio
