#pragma once

#include "audio/EditPlayback.h"
#include "audio/PlaybackOutlets.h"
#include "audio/RecordingOutlets.h"
#include "audio/engine/AudioPlayer.h"

#include <QString>

#include <memory>

class QWidget;

namespace tarvelo::engine {
class AudioEngine;
}

namespace tarvelo::audio {

class AudioFileLocations;

// Plays what was recorded. One player serves the lecture of the play window and the finished take
// that waits to be saved; who starts the one ends the other, and a recording that starts ends both.
// The lecture view has a player of its own.
class Playback final : public engine::AudioPlayerDelegate
{
public:
    struct Outlets
    {
        RecordingOutlets recording;
        LecturePlayerOutlets lecture;
        EditPlayerOutlets edit;
    };

    // The engine and the locations must outlive this object.
    Playback(engine::AudioEngine &engine, const AudioFileLocations &locations,
             const Outlets &outlets);
    Playback(const Playback &) = delete;
    Playback &operator=(const Playback &) = delete;

    bool hasPlayer() const { return m_player != nullptr; }
    bool isPlayerPlaying() const { return m_isPlayerPlaying; }
    bool isEditPlayerPlaying() const { return m_edit.isEditPlayerPlaying(); }
    int currentPlaySpeed() const { return m_currentPlaySpeed; }
    float currentPlayRate() const { return m_currentPlayRate; }

    // -- The lecture of the play window
    // Plays the file from its start at the recorded speed, whatever the speed control shows, which
    // is wanted, and brings the window to the front. Without a player, as for a file that cannot be
    // read, the controls and the window change all the same.
    void playLecture(const QString &path, const QString &subject);
    // By the sender's tag. Nothing happens without a player.
    void onPlayPauseLecture(QWidget *sender);
    // The speed of the segment that was chosen. The speed that was applied last changes nothing.
    void onPlaySpeedChanged(QWidget *sender);
    // Seeks only in a sound with a URL, which none has that was read into memory: in practice the
    // slider never seeks, which is wanted.
    void onSetForwardOrBackward(QWidget *sender);
    void setRemainingAndElapsedTime();
    void stopPlaying(QWidget *sender);
    void stopSoundPlay();
    // Stops the player and forgets it; nothing without one.
    void discardPlayer();

    // -- The finished take
    // Plays it from its start, and turns the stop button into its pause button. A take that cannot
    // be read plays nothing; the controls change all the same.
    void playRecordTemp(QWidget *sender);
    // By the stop button's tag: pauses what plays, and plays on. Nothing happens without a player.
    void pauseResumeRecordTemp(QWidget *sender);

    // -- The lecture view
    // Ready to play but silent. False, and no player, for a file that cannot be read or heard.
    bool openEditPlayer(const QString &path);
    void discardEditPlayer() { m_edit.discard(); }
    // By the sender's tag. Nothing happens without a player.
    void onPlayPauseLectureEdit(QWidget *sender);

    // -- All of them
    // The base that every speed is derived from goes back to the recorded speed.
    void resetRate() { m_currentPlayRate = 1.0F; }
    void audioPlayerDidFinishPlayingSuccessfully(engine::AudioPlayer *player,
                                                 bool successfully) override;
    // The playback part of the once-a-second refresh.
    void updateTimeDisplay();

    // Wanted to do nothing. Day changes schedule the stop of the edit player, which needs none
    // then; no level is ever shown, and the labels of the other players follow the refresh.
    void stopSoundPlayEdit() {}
    void updatePlayAudioLevels(QWidget *) {}
    void updatePlayAudioLevels2(QWidget *) {}
    void updateEditAudioLevels(QWidget *) {}
    void setRemainingAndElapsedTime2() {}
    void setRemainingAndElapsedTimeEdit() {}
    void onSetForwardOrBackwardEdit(QWidget *) {}
    void audioDidEndPlaying(QWidget *) {}
    void audioDidEndPlaying2(QWidget *) {}
    void audioDidEndPlayingEdit(QWidget *) {}

private:
    void soundEnded(engine::AudioPlayer &player);

    engine::AudioEngine &m_engine;
    const AudioFileLocations &m_locations;
    RecordingOutlets m_recording;
    LecturePlayerOutlets m_lecture;
    EditPlayback m_edit;
    std::unique_ptr<engine::AudioPlayer> m_player;
    bool m_isPlayerPlaying = false;
    // Starts at the slowest speed, so that choosing that one first does nothing, which is wanted.
    int m_currentPlaySpeed = 0;
    float m_currentPlayRate = 0;
};

} // namespace tarvelo::audio
