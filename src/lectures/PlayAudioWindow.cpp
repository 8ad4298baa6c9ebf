#include "lectures/PlayAudioWindow.h"

#include "audio/PlaySpeeds.h"
#include "lectures/Dressing.h"
#include "lectures/PlayingTitle.h"
#include "platform/Images.h"
#include "platform/Texts.h"
#include "widgets/Colours.h"
#include "widgets/CustomWindow.h"
#include "widgets/Faces.h"
#include "widgets/ImageButton.h"
#include "widgets/LightPalette.h"
#include "widgets/SegmentedControl.h"

#include "ui_PlayAudioWindow.h"

#include <QAbstractButton>
#include <QKeySequence>
#include <QRectF>

#include <limits>

namespace tarvelo::lectures {

using platform::imageNamed;

namespace {

const QRectF PlayWindowContent(0, 0, 440, 190);

} // namespace

PlayAudioWindow buildPlayAudioWindow()
{
    using widgets::CustomWindow;
    PlayAudioWindow built;
    built.window = std::make_unique<CustomWindow>(PlayWindowContent, CustomWindow::Borderless,
                                                  CustomWindow::Buffered, false);
    widgets::setLightPalette(*built.window);
    Ui::PlayAudioWindow ui;
    ui.setupUi(built.window.get());
    built.outlets = {built.window.get(), ui.txtSubjectName, ui.txtCourseName, ui.txtFieldForAudio,
                     ui.btnClosePlayAudio};
    built.player = {built.window.get(),  ui.txtSubjectName,     ui.btnPlayLecture,
                    ui.btnPauseLecture,  ui.sliderPlayProgress, ui.txtElapsedTime,
                    ui.txtRemainingTime, ui.segPlaySpeed};

    ui.txtSubjectName->setFont(widgets::scaledFace(18));
    ui.txtSubjectName->setMaxLength(std::numeric_limits<int>::max());
    keepTitleInSight(*ui.txtSubjectName);
    ui.btnClosePlayAudio->setImage(imageNamed(QStringLiteral("close")));
    ui.btnClosePlayAudio->setToolTip(QStringLiteral("%1 (%2)").arg(
        platform::text("BUTTON_CLOSE"),
        QKeySequence(Qt::Key_Escape).toString(QKeySequence::NativeText)));
    for (QLabel *label : {ui.txtElapsedTime, ui.txtRemainingTime, ui.lblSpeed})
        style(*label, 13, widgets::colours().faint);
    dressPlayPause(*ui.btnPlayLecture, *ui.btnPauseLecture);
    ui.btnPlayLecture->setTag(audio::LecturePlayerOutlets::TagPlay);
    ui.btnPauseLecture->setTag(audio::LecturePlayerOutlets::TagPause);
    for (const audio::PlaySpeed &speed : audio::PlaySpeeds)
        ui.segPlaySpeed->addSegment(QString::fromUtf8(speed.label), platform::text(speed.nameKey));
    ui.segPlaySpeed->setSelectedSegment(audio::RecordedSpeed);
    // The speeds came into being last, and are not what comes last.
    QWidget::setTabOrder(ui.segPlaySpeed->findChildren<QAbstractButton *>().constLast(),
                         ui.btnClosePlayAudio);
    return built;
}

} // namespace tarvelo::lectures
