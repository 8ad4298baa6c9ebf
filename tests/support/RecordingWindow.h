#pragma once

#include "audio/RecordingOutlets.h"
#include "widgets/ImageButton.h"
#include "widgets/LevelIndicator.h"

#include <QLabel>
#include <QSlider>
#include <QTextEdit>

namespace tarvelo::tests {

// The recording controls of the new-lecture window in a bare window of their own, as they stand
// before a take: shown, with no pause button and no time tag. Needs tarvelo_audio.
class RecordingWindow final
{
public:
    RecordingWindow()
    {
        btnPauseResumeRecording.setCheckable(true);
        window.show();
        btnPauseResumeRecording.hide();
        btnTimeTag.hide();
    }

    audio::RecordingOutlets outlets()
    {
        return {&window,
                &btnStartRecord,
                &btnStopRecord,
                &btnPauseResumeRecording,
                &btnTimeTag,
                &btnStartStopRecording,
                &audioLevelMeter,
                &imgLevelIndicatorBG,
                &lblRecordingDuration,
                &sliderPlayProgress2,
                &lblElapsedTimeTemp,
                &lblRemainingTimeTemp,
                &txtView};
    }
    audio::ClockOutlets clockOutlets()
    {
        return {&textTime, &textEditTime, &tEditTime, &textDate, &textEditDate, &tEditDate};
    }

    QWidget window;
    widgets::ImageButton btnStartRecord{&window};
    widgets::ImageButton btnStopRecord{&window};
    widgets::ImageButton btnPauseResumeRecording{&window};
    widgets::ImageButton btnTimeTag{&window};
    widgets::ImageButton btnStartStopRecording{&window};
    widgets::LevelIndicator audioLevelMeter{&window};
    QLabel imgLevelIndicatorBG{&window};
    QLabel lblRecordingDuration{&window};
    QSlider sliderPlayProgress2{&window};
    QLabel lblElapsedTimeTemp{&window};
    QLabel lblRemainingTimeTemp{&window};
    QTextEdit txtView{&window};

    QLabel textTime{&window};
    QLabel textEditTime{&window};
    QLabel tEditTime{&window};
    QLabel textDate{&window};
    QLabel textEditDate{&window};
    QLabel tEditDate{&window};
};

// How an image button looks: "image/pressed image/tool tip".
inline QString lookOf(const widgets::ImageButton &button)
{
    return QStringList{button.image().name(), button.alternateImage().name(), button.toolTip()}
        .join(u'/');
}

} // namespace tarvelo::tests
