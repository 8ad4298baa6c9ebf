#pragma once

#include <QString>

class QSlider;

namespace tarvelo::engine {
class AudioPlayer;
}

namespace tarvelo::audio {

struct EditPlayerOutlets;

// What the controls of every player show: texts of whole seconds, cut and not rounded, and a slider
// that counts milliseconds, so that it also moves through a short take.

// The length of what has been played; of no player, nothing.
QString elapsedText(const engine::AudioPlayer *player);
// What is still to come, behind a minus sign.
QString remainingText(const engine::AudioPlayer *player);

// From the beginning to the end of the sound.
void setRange(QSlider &slider, const engine::AudioPlayer &player);
void setSeconds(QSlider &slider, double seconds);

// The lecture view without a player. Its times read "0:00:00" then, unlike those of the play
// window, which read "00:00:00": wanted so.
void showNothingToPlay(const EditPlayerOutlets &outlets);

} // namespace tarvelo::audio
