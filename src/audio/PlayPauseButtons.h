#pragma once

namespace tarvelo::engine {
class AudioPlayer;
}
namespace tarvelo::widgets {
class ImageButton;
}

namespace tarvelo::audio {

// The two buttons of a player, and the tags under which they say what a press means. Of a player
// that can be heard one of the two can be pressed.
struct PlayPauseButtons
{
    widgets::ImageButton *play = nullptr;
    widgets::ImageButton *pause = nullptr;
    int tagPlay = 0;
    int tagPause = 0;

    // By the tag of the button that was pressed. Another tag does nothing to the player, and offers
    // to pause it, which is wanted.
    void pressed(int tag, engine::AudioPlayer &player) const;
    // Only the one can be pressed then.
    void offerPlay() const;
    void offerPause() const;
    void offerNothing() const;
};

} // namespace tarvelo::audio
