#include "audio/engine/SoundAtRate.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace tarvelo::engine {

namespace {

using RubberBand::RubberBandStretcher;

constexpr std::size_t BlockFrames = 1024;

// By so many seconds of the original the stretcher is late, at every rate, measured by the energy
// of bursts of a tone and of noise.
constexpr double Lateness = 0.0015;

// Both channels together, so that a voice in the middle stays there.
constexpr int Options =
    RubberBandStretcher::OptionProcessRealTime | RubberBandStretcher::OptionEngineFiner |
    RubberBandStretcher::OptionChannelsTogether | RubberBandStretcher::OptionThreadingNever;

} // namespace

SoundAtRate::SoundAtRate(DecodedSource &source, std::int64_t startFrame, double rate)
    : m_source(source)
    , m_startFrame(startFrame)
    , m_rate(rate)
    , m_interleaved(BlockFrames * channels())
    , m_planes(channels(), std::vector<float>(BlockFrames))
{
    if (m_rate == 1.0)
        m_source.seek(m_startFrame);
    else
        prime();
}

// The stretcher wants some sound before the first that counts. Before the beginning that is
// silence, elsewhere what comes before.
void SoundAtRate::prime()
{
    const auto rate = static_cast<std::size_t>(m_source.format().rate);
    m_stretcher = std::make_unique<RubberBandStretcher>(rate, channels(), Options, 1.0 / m_rate);
    m_stretcher->setMaxProcessSize(BlockFrames);
    const auto pad = static_cast<std::int64_t>(m_stretcher->getPreferredStartPad());
    m_onsets = std::make_unique<OnsetKeeper>(m_source.format(), m_rate, pad);
    const double late = Lateness * m_source.format().rate / m_rate;
    m_delayLeft = m_stretcher->getStartDelay() + static_cast<std::size_t>(std::llround(late));
    const std::int64_t early = std::min(pad, m_startFrame);
    for (std::int64_t silence = pad - early; silence > 0;) {
        const auto count = static_cast<std::size_t>(std::min<std::int64_t>(silence, BlockFrames));
        std::ranges::fill(m_interleaved, 0.0F);
        feed(count);
        silence -= static_cast<std::int64_t>(count);
    }
    m_source.seek(m_startFrame - early);
}

std::size_t SoundAtRate::read(std::span<float> samples)
{
    if (!m_stretcher)
        return m_source.read(samples);
    std::size_t given = 0;
    const std::size_t wanted = samples.size() / channels();
    while (given < wanted) {
        std::size_t count = std::min(wanted - given, BlockFrames);
        if (m_framesInAll >= 0)
            count = std::min(count, static_cast<std::size_t>(m_framesInAll - m_framesGiven));
        const int available = m_stretcher->available();
        count = std::min(count, static_cast<std::size_t>(std::max(available, 0)));
        if (count == 0) {
            if (m_framesInAll == m_framesGiven || !stretchMore())
                break;
            continue;
        }
        std::array<float *, 2> planes{m_planes.front().data(), m_planes.back().data()};
        count = m_stretcher->retrieve(planes.data(), count);
        for (std::size_t at = 0; at < count; ++at)
            for (std::size_t channel = 0; channel < channels(); ++channel)
                samples[(given + at) * channels() + channel] = m_planes[channel][at];
        m_onsets->shape(samples.subspan(given * channels(), count * channels()));
        given += count;
        m_framesGiven += static_cast<std::int64_t>(count);
    }
    return given;
}

// Behind the end of the sound silence pushes out what is still inside.
bool SoundAtRate::stretchMore()
{
    const std::size_t count = m_source.read(m_interleaved);
    if (count < BlockFrames && m_framesInAll < 0) {
        const auto left = static_cast<double>(m_source.position() - m_startFrame);
        m_framesInAll = std::max<std::int64_t>(std::llround(left / m_rate), m_framesGiven);
    }
    std::fill(m_interleaved.begin() + static_cast<std::ptrdiff_t>(count * channels()),
              m_interleaved.end(), 0.0F);
    feed(BlockFrames);
    dropDelay();
    return true;
}

void SoundAtRate::feed(std::size_t frames)
{
    for (std::size_t channel = 0; channel < channels(); ++channel)
        for (std::size_t at = 0; at < frames; ++at)
            m_planes[channel][at] = m_interleaved[at * channels() + channel];
    const std::array<const float *, 2> planes{m_planes.front().data(), m_planes.back().data()};
    m_stretcher->process(planes.data(), frames, false);
    m_onsets->follow(std::span(m_interleaved).first(frames * channels()));
}

void SoundAtRate::dropDelay()
{
    std::array<float *, 2> planes{m_planes.front().data(), m_planes.back().data()};
    while (m_delayLeft > 0 && m_stretcher->available() > 0) {
        const std::size_t count = std::min(
            {m_delayLeft, BlockFrames, static_cast<std::size_t>(m_stretcher->available())});
        m_delayLeft -= m_stretcher->retrieve(planes.data(), count);
    }
}

} // namespace tarvelo::engine
