#pragma once

#include "audio/PlaySpeeds.h"
#include "audio/Playback.h"
#include "widgets/ImageButton.h"
#include "widgets/LevelIndicator.h"
#include "widgets/SegmentedControl.h"

#include <QLabel>
#include <QLineEdit>
#include <QSlider>
#include <QTextEdit>

namespace tarvelo::tests {

// The controls of recording and playing in bare windows of their own, as they stand before a take:
// shown, with no pause button and no time tag. The speed control has one segment more than there
// are speeds. Needs tarvelo_audio.
class RecordingWindow final
{
public:
    // A segment that stands for no speed.
    static constexpr int NoSpeed = static_cast<int>(audio::PlaySpeeds.size());

    RecordingWindow()
    {
        btnPauseResumeRecording.setCheckable(true);
        window.show();
        btnPauseResumeRecording.hide();
        btnTimeTag.hide();
        btnPlayLecture.setTag(audio::LecturePlayerOutlets::TagPlay);
        btnPauseLecture.setTag(audio::LecturePlayerOutlets::TagPause);
        bPlay.setTag(audio::EditPlayerOutlets::TagPlay);
        bPause.setTag(audio::EditPlayerOutlets::TagPause);
        for (int segment = 0; segment <= NoSpeed; ++segment)
            segPlaySpeed.addSegment(QString::number(segment), QString::number(segment));
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
                &txtView,
                &lblRecordingWarning};
    }
    audio::Playback::Outlets playbackOutlets()
    {
        return {outlets(),
                {&playAudioWindow, &txtSubjectName, &btnPlayLecture, &btnPauseLecture,
                 &sliderPlayProgress, &txtElapsedTime, &txtRemainingTime, &segPlaySpeed},
                {&bPlay, &bPause, &sliderEditProgress, &tElapsedTime, &tRemainingTime}};
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
    QLabel lblRecordingWarning{&window};

    QWidget playAudioWindow;
    QLineEdit txtSubjectName{&playAudioWindow};
    widgets::ImageButton btnPlayLecture{&playAudioWindow};
    widgets::ImageButton btnPauseLecture{&playAudioWindow};
    QSlider sliderPlayProgress{&playAudioWindow};
    QLabel txtElapsedTime{&playAudioWindow};
    QLabel txtRemainingTime{&playAudioWindow};
    widgets::SegmentedControl segPlaySpeed{&playAudioWindow};

    widgets::ImageButton bPlay{&window};
    widgets::ImageButton bPause{&window};
    QSlider sliderEditProgress{&window};
    QLabel tElapsedTime{&window};
    QLabel tRemainingTime{&window};

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
