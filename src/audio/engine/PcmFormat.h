#pragma once

namespace tarvelo::engine {

// Interleaved 32-bit float samples: what comes from a microphone and goes into a take.
struct PcmFormat
{
    int rate = 0; // frames per second
    int channels = 0;

    bool operator==(const PcmFormat &) const = default;
};

} // namespace tarvelo::engine
