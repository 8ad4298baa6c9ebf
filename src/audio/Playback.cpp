#include "audio/Playback.h"

#include "audio/AudioFileLocations.h"
#include "audio/DurationText.h"
#include "audio/engine/AudioRecorder.h"
#include "audio/engine/SoundBytes.h"
#include "widgets/ImageButton.h"
#include "widgets/LevelIndicator.h"

#include <QLabel>
#include <QSlider>

namespace tarvelo::audio {

namespace {

// The tags under which the stop button, turned into a play button, knows what a press means.
constexpr int TagPaused = 1;
constexpr int TagPlaying = 2;

} // namespace

Playback::Playback(engine::AudioEngine &engine, const AudioFileLocations &locations,
                   const RecordingOutlets &outlets)
    : m_engine(engine)
    , m_locations(locations)
    , m_outlets(outlets)
{
}

void Playback::playRecordTemp(QWidget *)
{
    m_player = m_engine.makePlayer(engine::soundBytesOf(m_locations.tempAudioSavePath()));
    if (m_player) {
        m_player->prepareToPlay();
        m_player->play();
    }
    m_outlets.btnStopRecord->setLook(QStringLiteral("pause"), QStringLiteral("pauseH"),
                                     QStringLiteral("Pause"));
    m_outlets.btnStopRecord->setAction(
        {"pauseResumeRecordTemp", [this](QWidget *sender) { pauseResumeRecordTemp(sender); }});
    m_outlets.btnStopRecord->setTag(TagPlaying);

    m_outlets.audioLevelMeter->hide();
    m_outlets.imgLevelIndicatorBG->hide();
    m_outlets.lblRecordingDuration->hide();
    m_outlets.sliderPlayProgress2->show();
    m_outlets.lblElapsedTimeTemp->show();
    m_outlets.lblRemainingTimeTemp->show();
}

void Playback::pauseResumeRecordTemp(QWidget *)
{
    if (!m_player)
        return;
    widgets::ImageButton &button = *m_outlets.btnStopRecord;
    if (button.tag() == TagPlaying) {
        m_player->pause();
        button.setLook(QStringLiteral("play"), QStringLiteral("playH"), QStringLiteral("Play"));
        button.setTag(TagPaused);
    } else if (button.tag() == TagPaused) {
        m_player->play();
        button.setLook(QStringLiteral("pause"), QStringLiteral("pauseH"), QStringLiteral("Pause"));
        button.setTag(TagPlaying);
    }
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

void Playback::updateTimeDisplay()
{
    if (!m_outlets.lblElapsedTimeTemp->isVisible())
        return;
    const double elapsed = m_player ? m_player->currentTime() : 0;
    const double remaining = m_player ? m_player->duration() - elapsed : 0;
    m_outlets.lblElapsedTimeTemp->setText(getDuration(wholeSeconds(elapsed)));
    m_outlets.lblRemainingTimeTemp->setText(u'-' + getDuration(wholeSeconds(remaining)));
}

} // namespace tarvelo::audio
