#pragma once

#include "audio/engine/AudioPlayer.h"

#include <algorithm>
#include <array>
#include <functional>

namespace tarvelo::audio {

// A speed at which a lecture can be heard.
struct PlaySpeed
{
    const char *label;   // on its button, UTF-8
    const char *nameKey; // of the text that says it
    float divisor;       // of the base: a third is 1.0 ÷ 3.0, not 0.333
};

// In the order of the control that chooses them, from slow to fast: the one place to add one, or to
// take one away.
inline constexpr std::array PlaySpeeds{
    PlaySpeed{"⅕×", "SPEED_FIFTH", 5.0F},    PlaySpeed{"¼×", "SPEED_QUARTER", 4.0F},
    PlaySpeed{"⅓×", "SPEED_THIRD", 3.0F},    PlaySpeed{"½×", "SPEED_HALF", 2.0F},
    PlaySpeed{"1×", "SPEED_RECORDED", 1.0F},
};
// Playback begins with the first one as the one applied last.
static_assert(std::ranges::is_sorted(PlaySpeeds, std::greater(), &PlaySpeed::divisor));
static_assert(std::ranges::all_of(PlaySpeeds, [](const PlaySpeed &speed) {
    const double rate = 1.0 / speed.divisor;
    return rate >= engine::AudioPlayer::SlowestRate && rate <= engine::AudioPlayer::FastestRate;
}));

// The segment of the speed at which every lecture begins.
inline constexpr auto RecordedSpeed =
    static_cast<int>(std::ranges::find(PlaySpeeds, 1.0F, &PlaySpeed::divisor) - PlaySpeeds.begin());
static_assert(RecordedSpeed < static_cast<int>(PlaySpeeds.size()));

} // namespace tarvelo::audio
