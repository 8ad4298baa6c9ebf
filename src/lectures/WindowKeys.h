#pragma once

namespace tarvelo::audio {
struct LecturePlayerOutlets;
}

namespace tarvelo::lectures {

class LectureWindows;

// Which of the windows has which of the EditingKeys, and the keys of the player.

void connectEditingKeys(const LectureWindows &windows);
// Space and F8 press whichever of the two buttons can be pressed; Escape closes.
void connectPlayingKeys(const audio::LecturePlayerOutlets &player);

} // namespace tarvelo::lectures
