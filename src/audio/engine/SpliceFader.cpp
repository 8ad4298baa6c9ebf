#include "audio/engine/SpliceFader.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

namespace tarvelo::engine {

SpliceFader::SpliceFader(int rate, int channels, Output output)
    : m_channels(static_cast<std::size_t>(channels))
    , m_fadeFrames(static_cast<std::size_t>(rate * FadeSeconds))
    , m_fadedIn(m_fadeFrames)
    , m_output(std::move(output))
{
}

float SpliceFader::gain(std::size_t frame) const
{
    const double part = (static_cast<double>(frame) + 0.5) / static_cast<double>(m_fadeFrames);
    return static_cast<float>(0.5 - 0.5 * std::cos(std::numbers::pi * part));
}

void SpliceFader::fadeIn(std::span<float> samples)
{
    for (std::size_t i = 0; i < samples.size() && m_fadedIn < m_fadeFrames; ++m_fadedIn)
        for (std::size_t channel = 0; channel < m_channels; ++channel, ++i)
            samples[i] *= gain(m_fadedIn);
}

void SpliceFader::put(std::span<const float> samples)
{
    const std::size_t before = m_heldBack.size();
    m_heldBack.insert(m_heldBack.end(), samples.begin(), samples.end());
    fadeIn(std::span(m_heldBack).subspan(before));
    const std::size_t keep = m_fadeFrames * m_channels;
    if (m_heldBack.size() <= keep)
        return;
    const std::size_t leaving = m_heldBack.size() - keep;
    m_output(std::span(m_heldBack).first(leaving));
    m_heldBack.erase(m_heldBack.begin(), m_heldBack.begin() + static_cast<std::ptrdiff_t>(leaving));
}

void SpliceFader::breakOff()
{
    const std::size_t frames = m_heldBack.size() / m_channels;
    for (std::size_t i = 0; i < m_heldBack.size(); ++i)
        m_heldBack[i] *= gain(std::min(frames - 1 - i / m_channels, m_fadeFrames - 1));
    if (!m_heldBack.empty()) {
        m_output(m_heldBack);
        m_fadedIn = 0;
    }
    m_heldBack.clear();
}

} // namespace tarvelo::engine
