#include "audio/engine/Resampler.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <utility>

namespace tarvelo::engine {

namespace {

AVChannelLayout layoutFor(int channels)
{
    AVChannelLayout layout;
    av_channel_layout_default(&layout, channels);
    return layout;
}

// The encoder gives up for good at one value that is no number or beyond all bounds, and a broken
// driver is no reason to lose a lecture.
float safeForEncoder(float sample)
{
    return std::isfinite(sample) ? std::clamp(sample, -4.0F, 4.0F) : 0.0F;
}

} // namespace

std::unique_ptr<Resampler> Resampler::create(const PcmFormat &input, const PcmFormat &output)
{
    AVChannelLayout from = layoutFor(input.channels);
    AVChannelLayout to = layoutFor(output.channels);
    SwrContext *context = nullptr;
    swr_alloc_set_opts2(&context, &to, AV_SAMPLE_FMT_FLTP, output.rate, &from, AV_SAMPLE_FMT_FLT,
                        input.rate, 0, nullptr);
    ResamplerPointer resampler(context);
    if (!resampler)
        return nullptr;
    // One microphone is heard at its full level on both sides, not 3 dB lower.
    constexpr std::array Both{1.0, 1.0};
    if (input.channels == 1 && output.channels == 2)
        swr_set_matrix(resampler.get(), Both.data(), 1);
    if (swr_init(resampler.get()) < 0)
        return nullptr;
    return std::unique_ptr<Resampler>(new Resampler(std::move(resampler), input, output));
}

Resampler::Resampler(ResamplerPointer resampler, const PcmFormat &input, const PcmFormat &output)
    : m_resampler(std::move(resampler))
    , m_input(input)
    , m_output(output)
    , m_planes(static_cast<std::size_t>(output.channels))
{
}

int Resampler::available() const
{
    return static_cast<int>(m_planes.front().size());
}

bool Resampler::put(std::span<const float> interleaved)
{
    return convert(interleaved.data(), static_cast<int>(interleaved.size()) / m_input.channels);
}

bool Resampler::finish()
{
    return convert(nullptr, 0);
}

bool Resampler::convert(const float *samples, int frames)
{
    const std::size_t before = m_planes.front().size();
    const int room = std::max(0, swr_get_out_samples(m_resampler.get(), frames));
    std::array<std::uint8_t *, 2> out{};
    for (std::size_t channel = 0; channel < m_planes.size(); ++channel) {
        m_planes[channel].resize(before + static_cast<std::size_t>(room));
        out[channel] = reinterpret_cast<std::uint8_t *>(m_planes[channel].data() + before);
    }
    auto in = reinterpret_cast<const std::uint8_t *>(samples);
    const int made =
        swr_convert(m_resampler.get(), out.data(), room, samples ? &in : nullptr, frames);
    for (auto &plane : m_planes)
        plane.resize(before + static_cast<std::size_t>(std::max(0, made)));
    return made >= 0;
}

bool Resampler::take(AVFrame &frame, int count)
{
    if (available() < count)
        return false;
    for (std::size_t channel = 0; channel < m_planes.size(); ++channel) {
        auto &plane = m_planes[channel];
        std::transform(plane.begin(), plane.begin() + count,
                       reinterpret_cast<float *>(frame.data[channel]), safeForEncoder);
        plane.erase(plane.begin(), plane.begin() + count);
    }
    return true;
}

} // namespace tarvelo::engine
