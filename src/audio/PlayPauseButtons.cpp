#include "audio/PlayPauseButtons.h"

#include "audio/engine/AudioPlayer.h"
#include "widgets/ImageButton.h"

namespace tarvelo::audio {

void PlayPauseButtons::pressed(int tag, engine::AudioPlayer &player) const
{
    if (tag == tagPause) {
        player.pause();
        offerPlay();
        return;
    }
    if (tag == tagPlay)
        player.play();
    offerPause();
}

void PlayPauseButtons::offerPlay() const
{
    pause->setEnabled(false);
    play->setEnabled(true);
}

// The other one first: it gets the keyboard from the one that loses it.
void PlayPauseButtons::offerPause() const
{
    pause->setEnabled(true);
    play->setEnabled(false);
}

void PlayPauseButtons::offerNothing() const
{
    play->setEnabled(false);
    pause->setEnabled(false);
}

} // namespace tarvelo::audio
