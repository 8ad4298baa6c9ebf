#include "audio/Playback.h"

#include "audio/AudioFileLocations.h"
#include "audio/PlayPauseButtons.h"
#include "audio/PlaySpeeds.h"
#include "audio/PlayerDisplay.h"
#include "audio/RecordingDisplay.h"
#include "audio/StopButton.h"
#include "audio/engine/AudioEngine.h"
#include "audio/engine/SoundBytes.h"
#include "platform/Images.h"
#include "platform/WindowLevel.h"
#include "widgets/ImageButton.h"
#include "widgets/LevelIndicator.h"
#include "widgets/SegmentedControl.h"

#include <QLabel>
#include <QLineEdit>
#include <QObject>
#include <QSlider>
#include <QWidget>

#include <cstddef>
#include <optional>

namespace tarvelo::audio {

using engine::soundBytesOf;
using widgets::ImageButton;

namespace {

// The tags under which the stop button, turned into a play button, knows what a press means.
constexpr int TagPaused = 1;
constexpr int TagPlaying = 2;

// Of a control that is no button of ours, one that means nothing; of no sender, 0.
int tagOf(const QWidget *sender)
{
    if (!sender)
        return 0;
    const auto *button = qobject_cast<const ImageButton *>(sender);
    return button ? button->tag() : -1;
}

void showPlay(ImageButton &button)
{
    button.setImage(platform::imageNamed(QStringLiteral("play")));
    button.setAlternateImage(platform::imageNamed(QStringLiteral("playH")));
}

// In single precision, each from the base. Nothing for a segment that stands for no speed.
std::optional<float> rateOfSegment(int segment, float base)
{
    const auto at = static_cast<std::size_t>(segment);
    return at < PlaySpeeds.size() ? std::optional(base / PlaySpeeds[at].divisor) : std::nullopt;
}

} // namespace

Playback::Playback(engine::AudioEngine &engine, const AudioFileLocations &locations,
                   const Outlets &outlets)
    : m_engine(engine)
    , m_locations(locations)
    , m_recording(outlets.recording)
    , m_lecture(outlets.lecture)
    , m_edit(engine, outlets.edit)
{
}

void Playback::playLecture(const QString &path, const QString &subject)
{
    m_player = m_engine.makePlayer(soundBytesOf(path));
    if (m_player && !m_player->isPlaying()) {
        m_player->setDelegate(this);
        m_player->prepareToPlay();
        m_player->updateMeters();
        setRange(*m_lecture.sliderPlayProgress, *m_player);
        m_isPlayerPlaying = true;
    }
    if (m_player)
        m_player->play();
    m_lecture.buttons().offerPause();
    m_lecture.btnPauseLecture->setFocus(Qt::NoFocusReason);

    m_lecture.txtSubjectName->setText(subject);
    m_lecture.txtSubjectName->setCursorPosition(0);
    QWidget &window = *m_lecture.playAudioWindow;
    window.setWindowTitle(subject);
    platform::makeKeyAndOrderFront(window);
}

void Playback::onPlayPauseLecture(QWidget *sender)
{
    if (m_player)
        m_lecture.buttons().pressed(tagOf(sender), *m_player);
}

void Playback::onPlaySpeedChanged(QWidget *)
{
    if (!m_player)
        return;
    const int segment = m_lecture.segPlaySpeed->selectedSegment();
    if (segment == m_currentPlaySpeed)
        return;
    m_currentPlaySpeed = segment;
    if (const auto rate = rateOfSegment(segment, m_currentPlayRate))
        m_player->setRate(*rate);
    // Who changes the speed of a paused lecture hears it go on, which is wanted.
    m_player->play();
}

void Playback::onSetForwardOrBackward(QWidget *)
{
    if (!m_player || m_player->url().isEmpty())
        return;
    const QSlider &slider = *m_lecture.sliderPlayProgress;
    // By the time that has passed, not by the whole length, which is wanted.
    const double share =
        slider.maximum() > 0 ? static_cast<double>(slider.value()) / slider.maximum() : 0;
    m_player->setCurrentTime(share * m_player->currentTime());
    setRemainingAndElapsedTime();
}

void Playback::setRemainingAndElapsedTime()
{
    const QString none = QStringLiteral("00:00:00");
    m_lecture.txtElapsedTime->setText(m_player ? elapsedText(m_player.get()) : none);
    m_lecture.txtRemainingTime->setText(m_player ? remainingText(m_player.get()) : none);
}

void Playback::stopPlaying(QWidget *)
{
    if (!m_player)
        return;
    m_player->stop();
    m_lecture.btnPlayLecture->setState(0);
    showPlay(*m_lecture.btnPlayLecture);
    m_recording.audioLevelMeter->setFloatValue(0);
}

void Playback::stopSoundPlay()
{
    if (m_player)
        m_player->stop();
}

void Playback::discardPlayer()
{
    if (!m_player)
        return;
    m_player->stop();
    m_player.reset();
    m_isPlayerPlaying = false;
}

void Playback::playRecordTemp(QWidget *)
{
    m_player = m_engine.makePlayer(soundBytesOf(m_locations.tempAudioSavePath()));
    if (m_player) {
        m_player->prepareToPlay();
        m_player->play();
    }
    lookLikePause(*m_recording.btnStopRecord);
    m_recording.btnStopRecord->setAction(
        {"pauseResumeRecordTemp", [this](QWidget *sender) { pauseResumeRecordTemp(sender); }});
    m_recording.btnStopRecord->setTag(TagPlaying);

    showPlayer(m_recording);
}

void Playback::pauseResumeRecordTemp(QWidget *)
{
    if (!m_player)
        return;
    ImageButton &button = *m_recording.btnStopRecord;
    if (button.tag() == TagPlaying) {
        m_player->pause();
        lookLikePlay(button);
        button.setTag(TagPaused);
    } else if (button.tag() == TagPaused) {
        m_player->play();
        lookLikePause(button);
        button.setTag(TagPlaying);
    }
}

bool Playback::openEditPlayer(const QString &path)
{
    if (!m_edit.open(path, *this))
        return false;
    // The play window's slider begins anew as well, which is wanted.
    setSeconds(*m_lecture.sliderPlayProgress, 0);
    return true;
}

void Playback::onPlayPauseLectureEdit(QWidget *sender)
{
    m_edit.onPlayPauseLectureEdit(tagOf(sender));
}

void Playback::audioPlayerDidFinishPlayingSuccessfully(engine::AudioPlayer *player, bool)
{
    if (m_edit.isEditPlayer(player))
        m_edit.ended();
    else if (player)
        soundEnded(*player);
}

// The labels read "0:00:00" here and "00:00:00" where there is no player, which is wanted.
void Playback::soundEnded(engine::AudioPlayer &player)
{
    m_lecture.txtElapsedTime->setText(QStringLiteral("0:00:00"));
    m_lecture.txtRemainingTime->setText(QStringLiteral("0:00:00"));
    setSeconds(*m_lecture.sliderPlayProgress, 0);
    player.stop();
    m_lecture.buttons().offerPlay();
    m_lecture.btnPlayLecture->setTag(LecturePlayerOutlets::TagPlay);
    showPlay(*m_lecture.btnPlayLecture);
    if (!m_recording.lblElapsedTimeTemp->isVisible())
        return;
    lookLikePlay(*m_recording.btnStopRecord);
    m_recording.btnStopRecord->setTag(TagPaused);
}

void Playback::updateTimeDisplay()
{
    m_edit.updateTimeDisplay();
    // Goes on after a pause and after the end, which is wanted.
    if (m_isPlayerPlaying) {
        if (m_player) {
            setSeconds(*m_lecture.sliderPlayProgress, m_player->currentTime());
            m_player->updateMeters();
        }
        setRemainingAndElapsedTime();
    }
    if (m_recording.lblElapsedTimeTemp->isVisible()) {
        m_recording.lblElapsedTimeTemp->setText(elapsedText(m_player.get()));
        m_recording.lblRemainingTimeTemp->setText(remainingText(m_player.get()));
    }
}

} // namespace tarvelo::audio
