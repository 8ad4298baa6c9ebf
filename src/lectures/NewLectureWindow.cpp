#include "lectures/NewLectureWindow.h"

#include "audio/StopButton.h"
#include "lectures/Dressing.h"
#include "platform/Images.h"
#include "platform/Texts.h"
#include "widgets/Colours.h"
#include "widgets/CustomTextView.h"
#include "widgets/Faces.h"
#include "widgets/ImageButton.h"
#include "widgets/ImageView.h"
#include "widgets/LightPalette.h"

#include "ui_NewLectureWindow.h"

#include <QLabel>
#include <QStringLiteral>
#include <Qt>

namespace tarvelo::lectures {

using platform::imageNamed;
using platform::text;
using widgets::ImageButton;

namespace {

NewLectureOutlets outletsOf(QWidget *window, const Ui::NewLectureWindow &ui)
{
    return {window,
            ui.txtSubjectForNewNote,
            ui.txtView,
            ui.lblNotesForAdd,
            ui.textTime,
            ui.textDate,
            ui.BtnDoneOrClose,
            ui.btnCloseNewLecture,
            ui.BtnCancelAddNewLecture,
            ui.recordAnimationView};
}

audio::RecordingOutlets recordingOutletsOf(QWidget *window, const Ui::NewLectureWindow &ui)
{
    return {window,
            ui.btnStartRecord,
            ui.btnStopRecord,
            ui.btnPauseResumeRecording,
            ui.btnTimeTag,
            ui.btnStartStopRecording,
            ui.audioLevelMeter,
            ui.imgLevelIndicatorBG,
            ui.lblRecordingDuration,
            ui.sliderPlayProgress2,
            ui.lblElapsedTimeTemp,
            ui.lblRemainingTimeTemp,
            ui.txtView,
            ui.lblRecordingWarning};
}

void dressTexts(const Ui::NewLectureWindow &ui)
{
    for (QLabel *label : {ui.textDate, ui.textTime, ui.lblNotesForAdd, ui.lblElapsedTimeTemp,
                          ui.lblRemainingTimeTemp})
        style(*label, 13, widgets::colours().faint);
    style(*ui.lblRecordingDuration, 24, widgets::colours().ink);
    ui.lblRecordingDuration->setFont(widgets::fixedFace(24));
    style(*ui.lblRecordingWarning, 13, widgets::colours().warning);
    ui.txtSubjectForNewNote->setFont(widgets::scaledFace(16));
}

// Both of its lines have their place whether they show or not: the buttons of a take must not move
// from under the mouse that is about to press them.
void keepRoomForWarnings(QLabel &warnings)
{
    warnings.setText(text("RECORDING_HARDLY_ANY_ROOM") + u'\n' + text("RECORDING_NOTHING_HEARD"));
    warnings.setMinimumHeight(warnings.sizeHint().height());
    warnings.clear();
    keepRoom(warnings);
    warnings.hide();
}

// As they stand before a take.
void dressRecordingControls(const audio::RecordingOutlets &controls)
{
    controls.btnStartRecord->setImage(imageNamed(QStringLiteral("record")));
    controls.btnStartRecord->setAlternateImage(imageNamed(QStringLiteral("recordH")));
    controls.btnPauseResumeRecording->setLook(QStringLiteral("BtnPause"),
                                              QStringLiteral("BtnPauseH"), QStringLiteral("Pause"));
    audio::lookLikeStop(*controls.btnStopRecord);
    controls.btnTimeTag->setImage(imageNamed(QStringLiteral("timetag")));
    keepRoom(*controls.btnTimeTag);
    controls.btnTimeTag->hide();
    controls.btnPauseResumeRecording->hide();
    controls.sliderPlayProgress2->hide();
    controls.lblElapsedTimeTemp->hide();
    controls.lblRemainingTimeTemp->hide();
}

} // namespace

NewLectureWindow buildNewLectureWindow()
{
    NewLectureWindow built;
    built.window = std::make_unique<QWidget>(nullptr, Qt::Window);
    widgets::setLightPalette(*built.window);
    Ui::NewLectureWindow ui;
    ui.setupUi(built.window.get());
    for (ImageButton *button :
         {ui.BtnDoneOrClose, ui.btnCloseNewLecture, ui.BtnCancelAddNewLecture})
        giveRoomToTitle(*button);
    built.outlets = outletsOf(built.window.get(), ui);
    built.recording = recordingOutletsOf(built.window.get(), ui);

    dressTexts(ui);
    keepRoomForWarnings(*ui.lblRecordingWarning);
    limitSubject(*ui.txtSubjectForNewNote);
    giveMargins(*ui.txtSubjectForNewNote, *ui.txtView);
    ui.imgLevelIndicatorBG->setImage(imageNamed(QStringLiteral("levelBackground")));
    dressRecordingControls(built.recording);
    ui.BtnDoneOrClose->setTag(NewLectureOutlets::TagDone);
    ui.btnCloseNewLecture->setTag(NewLectureOutlets::TagClose);
    return built;
}

} // namespace tarvelo::lectures
