#pragma once

#include <cstdint>

namespace tarvelo::engine {

// How much sound there is, of a take that was encoded.
struct TakeExtent
{
    std::int64_t packets = 0;
    std::int64_t samples = 0; // a channel, without the encoder's run-up
};

} // namespace tarvelo::engine
