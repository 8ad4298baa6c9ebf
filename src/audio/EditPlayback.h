#pragma once

#include "audio/PlaybackOutlets.h"
#include "audio/engine/AudioPlayer.h"

#include <QString>

#include <memory>

namespace tarvelo::engine {
class AudioEngine;
}

namespace tarvelo::audio {

// The player of the lecture view: listens while the notes are written. Its speed is always the
// recorded one.
class EditPlayback final
{
public:
    // The engine must outlive this object.
    EditPlayback(engine::AudioEngine &engine, const EditPlayerOutlets &outlets);
    EditPlayback(const EditPlayback &) = delete;
    EditPlayback &operator=(const EditPlayback &) = delete;

    bool isEditPlayerPlaying() const { return m_isEditPlayerPlaying; }
    // Whether this is the player; no player is none.
    bool isEditPlayer(const engine::AudioPlayer *player) const
    {
        return player && player == m_editPlayer.get();
    }

    // Makes the player of the whole file, ready to play but silent, and lets the slider run through
    // it. False, and no player, for a file that cannot be read or heard.
    bool open(const QString &path, engine::AudioPlayerDelegate &delegate);
    // Stops the player and forgets it; nothing without one.
    void discard();
    // By the tag of the button. Nothing happens without a player.
    void onPlayPauseLectureEdit(int tag);
    // The player has come to its end.
    void ended();
    void updateTimeDisplay();

private:
    engine::AudioEngine &m_engine;
    EditPlayerOutlets m_outlets;
    std::unique_ptr<engine::AudioPlayer> m_editPlayer;
    bool m_isEditPlayerPlaying = false;
};

} // namespace tarvelo::audio
