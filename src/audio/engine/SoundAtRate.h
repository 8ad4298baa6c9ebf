#pragma once

#include "audio/engine/DecodedSource.h"
#include "audio/engine/OnsetKeeper.h"
#include "audio/engine/PcmFormat.h"

#include <rubberband/RubberBandStretcher.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <vector>

namespace tarvelo::engine {

// The sound from one place on, as it is heard at one rate, its pitch kept. As long as what is left
// of the sound divided by the rate, to the frame; what happens in it begins, and has its middle,
// within 20 ms of its place.
class SoundAtRate final
{
public:
    // The source, which must outlive this object, is moved to the frame and read from there.
    SoundAtRate(DecodedSource &source, std::int64_t startFrame, double rate);
    SoundAtRate(const SoundAtRate &) = delete;
    SoundAtRate &operator=(const SoundAtRate &) = delete;

    // Interleaved; how many frames there were. Fewer than asked for only at the end.
    std::size_t read(std::span<float> samples);

private:
    void prime();
    bool stretchMore();
    void feed(std::size_t frames);
    void dropDelay();
    std::size_t channels() const { return static_cast<std::size_t>(m_source.format().channels); }

    DecodedSource &m_source;
    std::int64_t m_startFrame;
    double m_rate;
    std::unique_ptr<RubberBand::RubberBandStretcher> m_stretcher; // none at the recorded rate
    std::unique_ptr<OnsetKeeper> m_onsets;
    std::size_t m_delayLeft = 0;
    std::int64_t m_framesGiven = 0;
    std::int64_t m_framesInAll = -1; // unknown until the source has come to its end
    std::vector<float> m_interleaved;
    std::vector<std::vector<float>> m_planes;
};

} // namespace tarvelo::engine
