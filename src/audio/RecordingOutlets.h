#pragma once

class QLabel;
class QSlider;
class QTextEdit;
class QWidget;

namespace tarvelo::widgets {
class ImageButton;
class LevelIndicator;
} // namespace tarvelo::widgets

namespace tarvelo::audio {

// The controls of the new-lecture window that recording works on. All of them exist.
struct RecordingOutlets
{
    QWidget *newNoteWindow = nullptr;
    widgets::ImageButton *btnStartRecord = nullptr;
    widgets::ImageButton *btnStopRecord = nullptr;
    widgets::ImageButton *btnPauseResumeRecording = nullptr; // a toggle
    widgets::ImageButton *btnTimeTag = nullptr;
    widgets::ImageButton *btnStartStopRecording = nullptr;
    widgets::LevelIndicator *audioLevelMeter = nullptr;
    QWidget *imgLevelIndicatorBG = nullptr;
    QLabel *lblRecordingDuration = nullptr;
    QSlider *sliderPlayProgress2 = nullptr;
    QLabel *lblElapsedTimeTemp = nullptr;
    QLabel *lblRemainingTimeTemp = nullptr;
    QTextEdit *txtView = nullptr;
    QLabel *lblRecordingWarning = nullptr; // one line, hidden while nothing is wrong
};

// The labels that show the time of day and the date.
struct ClockOutlets
{
    QLabel *textTime = nullptr;
    QLabel *textEditTime = nullptr;
    QLabel *tEditTime = nullptr;
    QLabel *textDate = nullptr;
    QLabel *textEditDate = nullptr;
    QLabel *tEditDate = nullptr;
};

} // namespace tarvelo::audio
