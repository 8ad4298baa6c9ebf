#pragma once

#include <array>

namespace tarvelo::audio {

// A speed at which a lecture can be heard.
struct PlaySpeed
{
    const char *label;   // on its button, UTF-8
    const char *nameKey; // of the text that says it
    float divisor;       // of the base: a third is 1.0 ÷ 3.0, not 0.333
};

// In the order of the control that chooses them: the one place to add one, or to take one away.
inline constexpr std::array PlaySpeeds{
    PlaySpeed{"⅕×", "SPEED_FIFTH", 5.0F},    PlaySpeed{"¼×", "SPEED_QUARTER", 4.0F},
    PlaySpeed{"⅓×", "SPEED_THIRD", 3.0F},    PlaySpeed{"½×", "SPEED_HALF", 2.0F},
    PlaySpeed{"1×", "SPEED_RECORDED", 1.0F},
};

} // namespace tarvelo::audio
