#include "audio/StopButton.h"

#include "widgets/ImageButton.h"

namespace tarvelo::audio {

using widgets::ImageButton;

void lookLikeStop(ImageButton &button, const QString &alternate)
{
    button.setLook(QStringLiteral("stop"), alternate, QStringLiteral("Stop"));
}

void lookLikeRedStop(ImageButton &button)
{
    button.setLook(QStringLiteral("stopRed"), QStringLiteral("stopRedH"), QStringLiteral("Stop"));
}

void lookLikePlay(ImageButton &button)
{
    button.setLook(QStringLiteral("play"), QStringLiteral("playH"), QStringLiteral("Play"));
}

void lookLikePause(ImageButton &button)
{
    button.setLook(QStringLiteral("pause"), QStringLiteral("pauseH"), QStringLiteral("Pause"));
}

} // namespace tarvelo::audio
