#include "audio/EditPlayback.h"

#include "audio/PlayerDisplay.h"
#include "audio/engine/AudioRecorder.h"
#include "audio/engine/SoundBytes.h"
#include "widgets/ImageButton.h"

#include <QLabel>
#include <QSlider>

namespace tarvelo::audio {

EditPlayback::EditPlayback(engine::AudioEngine &engine, const EditPlayerOutlets &outlets)
    : m_engine(engine)
    , m_outlets(outlets)
{
}

bool EditPlayback::open(const QString &path, engine::AudioPlayerDelegate &delegate)
{
    discard();
    m_editPlayer = m_engine.makePlayer(engine::soundBytesOf(path));
    if (!m_editPlayer)
        return false;
    m_editPlayer->setDelegate(&delegate);
    m_editPlayer->prepareToPlay();
    m_editPlayer->updateMeters();
    m_editPlayer->setMeteringEnabled(true);
    setRange(*m_outlets.sliderEditProgress, *m_editPlayer);
    m_isEditPlayerPlaying = true;
    return true;
}

void EditPlayback::discard()
{
    if (!m_editPlayer)
        return;
    m_editPlayer->stop();
    m_editPlayer.reset();
    m_isEditPlayerPlaying = false;
}

void EditPlayback::onPlayPauseLectureEdit(int tag)
{
    if (!m_editPlayer)
        return;
    const bool isPause = tag == EditPlayerOutlets::TagPause;
    if (isPause)
        m_editPlayer->pause();
    else if (tag == EditPlayerOutlets::TagPlay)
        m_editPlayer->play();
    m_outlets.bPause->setEnabled(!isPause);
    m_outlets.bPlay->setEnabled(isPause);
}

void EditPlayback::ended()
{
    m_outlets.bPlay->setEnabled(true);
    m_outlets.bPause->setEnabled(false);
}

void EditPlayback::updateTimeDisplay()
{
    if (m_isEditPlayerPlaying) {
        m_outlets.tElapsedTime->setText(elapsedText(m_editPlayer.get()));
        m_outlets.tRemainingTime->setText(remainingText(m_editPlayer.get()));
        setSeconds(*m_outlets.sliderEditProgress, m_editPlayer->currentTime());
        return;
    }
    m_outlets.tElapsedTime->setText(QStringLiteral("0:00:00"));
    m_outlets.tRemainingTime->setText(QStringLiteral("0:00:00"));
    m_outlets.bPlay->setEnabled(false);
    m_outlets.bPause->setEnabled(false);
    m_outlets.sliderEditProgress->setEnabled(false);
}

} // namespace tarvelo::audio
