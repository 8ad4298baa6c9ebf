#pragma once

#include <QString>

namespace tarvelo::widgets {
class ImageButton;
}

namespace tarvelo::audio {

// One button of the new-lecture window stops a take, and plays and pauses it then. These are its
// looks, each with the image of the press and the tool tip; what a press does is its users'.

void lookLikeStop(widgets::ImageButton &button, const QString &alternate = QStringLiteral("stopH"));
// While there is sound to stop.
void lookLikeRedStop(widgets::ImageButton &button);
void lookLikePlay(widgets::ImageButton &button);
void lookLikePause(widgets::ImageButton &button);

} // namespace tarvelo::audio
