#pragma once

#include "audio/RecordingOutlets.h"
#include "audio/engine/AudioPlayer.h"

#include <memory>

namespace tarvelo::engine {
class AudioEngine;
}

namespace tarvelo::audio {

class AudioFileLocations;

// Plays what was recorded. The one player serves a finished take that waits to be saved; a
// recording that starts discards it.
class Playback final
{
public:
    // The engine and the locations must outlive this object.
    Playback(engine::AudioEngine &engine, const AudioFileLocations &locations,
             const RecordingOutlets &outlets);
    Playback(const Playback &) = delete;
    Playback &operator=(const Playback &) = delete;

    bool hasPlayer() const { return m_player != nullptr; }
    bool isPlayerPlaying() const { return m_isPlayerPlaying; }
    float currentPlayRate() const { return m_currentPlayRate; }

    // Plays the finished take from its start, and turns the stop button into its pause button. A
    // take that cannot be read plays nothing; the controls change all the same.
    void playRecordTemp(QWidget *sender);
    // By the stop button's tag: 2 pauses, 1 plays on. Nothing happens without a player.
    void pauseResumeRecordTemp(QWidget *sender);
    void stopSoundPlay();
    // The base that every speed is derived from goes back to the recorded speed.
    void resetRate() { m_currentPlayRate = 1.0F; }
    // Wanted to do nothing: day changes schedule it, and the edit player needs no stopping then.
    void stopSoundPlayEdit() {}
    void discardPlayer();
    // The playback part of the once-a-second refresh.
    void updateTimeDisplay();

private:
    engine::AudioEngine &m_engine;
    const AudioFileLocations &m_locations;
    RecordingOutlets m_outlets;
    std::unique_ptr<engine::AudioPlayer> m_player;
    bool m_isPlayerPlaying = false;
    float m_currentPlayRate = 0;
};

} // namespace tarvelo::audio
