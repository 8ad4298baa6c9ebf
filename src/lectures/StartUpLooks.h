#pragma once

#include <array>

class QWidget;

namespace tarvelo::lectures {

class LectureWindows;

// What the start-up gives the windows besides what their layouts say, step by step.

// Those of a new lecture, of a change, and of the player.
std::array<QWidget *, 3> secondaryWindows(const LectureWindows &windows);
// White, all of the secondary ones.
void setBackgroundColors(const LectureWindows &windows);
void dressPlayAudioWindow(const LectureWindows &windows);
void setLabels(const LectureWindows &windows);
void setTypingAttributes(const LectureWindows &windows);
void setInsertionPointColors(const LectureWindows &windows);
// Also the face of the notes.
void setButtonTitleColor(const LectureWindows &windows);

} // namespace tarvelo::lectures
