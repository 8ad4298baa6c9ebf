#include "audio/PlayerDisplay.h"

#include "audio/DurationText.h"
#include "audio/PlayPauseButtons.h"
#include "audio/PlaybackOutlets.h"
#include "audio/engine/AudioPlayer.h"

#include <QLabel>
#include <QSlider>

#include <algorithm>
#include <cmath>
#include <limits>

namespace tarvelo::audio {

namespace {

int milliseconds(double seconds)
{
    constexpr double Most = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp(std::round(seconds * 1000), 0.0, Most));
}

} // namespace

QString elapsedText(const engine::AudioPlayer *player)
{
    return getDuration(wholeSeconds(player ? player->currentTime() : 0));
}

QString remainingText(const engine::AudioPlayer *player)
{
    const double remaining = player ? player->duration() - player->currentTime() : 0;
    return u'-' + getDuration(wholeSeconds(remaining));
}

void setRange(QSlider &slider, const engine::AudioPlayer &player)
{
    slider.setRange(0, milliseconds(player.duration()));
}

void setSeconds(QSlider &slider, double seconds)
{
    slider.setValue(milliseconds(seconds));
}

void showNothingToPlay(const EditPlayerOutlets &outlets)
{
    for (QLabel *time : {outlets.tElapsedTime, outlets.tRemainingTime})
        time->setText(QStringLiteral("0:00:00"));
    outlets.buttons().offerNothing();
    outlets.sliderEditProgress->setEnabled(false);
}

} // namespace tarvelo::audio
