#pragma once

#include <cstddef>
#include <functional>
#include <span>
#include <vector>

namespace tarvelo::engine {

// Takes the click out of the places where sound was broken off and taken up again, without making
// it longer or shorter: the last moment before the break fades out, the first one after it fades
// in. For that it holds the last moment back.
class SpliceFader final
{
public:
    using Output = std::function<void(std::span<const float>)>;

    // 1.5 ms to each side: together far below the 5 ms at which a break begins to be heard.
    static constexpr double FadeSeconds = 0.0015;

    SpliceFader(int rate, int channels, Output output);

    std::size_t samplesHeldBack() const { return m_heldBack.size(); }

    void put(std::span<const float> samples);
    // The sound ends here, for now or for good.
    void breakOff();

private:
    void fadeIn(std::span<float> samples);
    float gain(std::size_t frame) const;

    std::size_t m_channels;
    std::size_t m_fadeFrames;
    std::size_t m_fadedIn; // frames since the last break, up to m_fadeFrames
    std::vector<float> m_heldBack;
    Output m_output;
};

} // namespace tarvelo::engine
