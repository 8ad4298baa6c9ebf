#pragma once

#include "audio/engine/Ffmpeg.h"
#include "audio/engine/PcmFormat.h"

#include <memory>
#include <span>
#include <vector>

namespace tarvelo::engine {

// Turns what a microphone gives into planar floats at the rate and with the channels of a take, cut
// into frames of one length. The first sample that goes in is the first that comes out; the length
// in seconds stays.
class Resampler final
{
public:
    // Null when the two formats have no way between them.
    static std::unique_ptr<Resampler> create(const PcmFormat &input, const PcmFormat &output);

    bool put(std::span<const float> interleaved);
    // No more will come: what is still inside becomes available.
    bool finish();
    // Fills `frame` with exactly `count` samples a channel; false, and nothing taken, when there
    // are not as many.
    bool take(AVFrame &frame, int count);
    int available() const;

private:
    Resampler(ResamplerPointer resampler, const PcmFormat &input, const PcmFormat &output);
    bool convert(const float *samples, int frames);

    ResamplerPointer m_resampler;
    PcmFormat m_input;
    PcmFormat m_output;
    std::vector<std::vector<float>> m_planes; // one a channel, all of one length
};

} // namespace tarvelo::engine
