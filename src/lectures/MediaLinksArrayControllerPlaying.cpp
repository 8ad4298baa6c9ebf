#include "lectures/MediaLinksArrayController.h"

#include "lectures/LectureList.h"
#include "lectures/LectureTable.h"
#include "lectures/LectureWindows.h"
#include "lectures/WindowKeys.h"
#include "platform/WindowLevel.h"
#include "store/LectureInfoItem.h"
#include "widgets/ImageButton.h"
#include "widgets/PopOver.h"
#include "widgets/SegmentedControl.h"
#include "widgets/SlidingWindow.h"

#include <QSlider>
#include <QWidget>

namespace tarvelo::lectures {

void MediaLinksArrayController::connectPlayer()
{
    const audio::LecturePlayerOutlets &player = m_windows.lecturePlayerOutlets();
    const auto playPause = [this](QWidget *sender) { onPlayPauseLecture(sender); };
    player.btnPlayLecture->setAction({"onPlayPauseLecture", playPause});
    player.btnPauseLecture->setAction({"onPlayPauseLecture", playPause});
    player.segPlaySpeed->setAction(
        {"onPlaySpeedChanged", [this](QWidget *sender) { onPlaySpeedChanged(sender); }});
    connect(player.sliderPlayProgress, &QSlider::sliderReleased, this,
            [this, player] { onSetForwardOrBackward(player.sliderPlayProgress); });
    connectPlayingKeys(player);
    m_windows.playAudioOutlets().btnClosePlayAudio->setAction(
        {"performClose", [player](QWidget *) { player.playAudioWindow->close(); }});

    const audio::EditPlayerOutlets &editPlayer = m_windows.editPlayerOutlets();
    const auto playPauseEdit = [this](QWidget *sender) { onPlayPauseLectureEdit(sender); };
    editPlayer.bPlay->setTag(audio::EditPlayerOutlets::TagPlay);
    editPlayer.bPause->setTag(audio::EditPlayerOutlets::TagPause);
    editPlayer.bPlay->setAction({"onPlayPauseLectureEdit", playPauseEdit});
    editPlayer.bPause->setAction({"onPlayPauseLectureEdit", playPauseEdit});
    connect(editPlayer.sliderEditProgress, &QSlider::sliderReleased, this,
            [this, editPlayer] { onSetForwardOrBackwardEdit(editPlayer.sliderEditProgress); });
}

void MediaLinksArrayController::onPlayLecture(QWidget *sender)
{
    // Whatever becomes of this one, the one before it is over.
    m_playback.discardPlayer();
    QWidget *cell = sender ? sender->parentWidget() : nullptr;
    if (!cell)
        return;
    const Lecture lecture = tableViewObjectValueForTableColumnRow(
        0, m_windows.mainOutlets().tblRecordSubjectList->rowForView(cell));
    if (!lecture)
        return;
    const QString path = lecture->getLectureAudioPath();
    if (path.isEmpty()) {
        m_windows.popoverOutlets().popoverAudioConfirmClose->showRelativeTo(sender->geometry(),
                                                                            *cell, Qt::BottomEdge);
        return;
    }
    // A window that is open stays where the user has put it.
    QWidget &window = *m_windows.lecturePlayerOutlets().playAudioWindow;
    if (!window.isVisible())
        platform::centreOver(window, m_windows.mainWindow());
    m_playback.playLecture(path, lecture->strSubject());
}

} // namespace tarvelo::lectures
