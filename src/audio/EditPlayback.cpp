#include "audio/EditPlayback.h"

#include "audio/PlayPauseButtons.h"
#include "audio/PlayerDisplay.h"
#include "audio/engine/AudioEngine.h"
#include "audio/engine/SoundBytes.h"

#include <QLabel>

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
    if (m_editPlayer)
        m_outlets.buttons().pressed(tag, *m_editPlayer);
}

void EditPlayback::ended()
{
    m_outlets.buttons().offerPlay();
}

void EditPlayback::updateTimeDisplay()
{
    if (!m_isEditPlayerPlaying) {
        showNothingToPlay(m_outlets);
        return;
    }
    m_outlets.tElapsedTime->setText(elapsedText(m_editPlayer.get()));
    m_outlets.tRemainingTime->setText(remainingText(m_editPlayer.get()));
    setSeconds(*m_outlets.sliderEditProgress, m_editPlayer->currentTime());
}

} // namespace tarvelo::audio
