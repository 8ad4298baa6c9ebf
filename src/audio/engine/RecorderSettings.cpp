#include "audio/engine/RecorderSettings.h"

#include "audio/engine/AudioRecorder.h"

#include <algorithm>
#include <array>

namespace tarvelo::engine {

namespace {

constexpr int FormatAac = 0x61616320; // 'aac '
constexpr int HighestBitRate = 512000;
constexpr std::array SampleRates{96000, 88200, 64000, 48000, 44100, 32000, 24000,
                                 22050, 16000, 12000, 11025, 8000,  7350};

// Whole numbers only, whatever number type holds them: the rate comes as a float.
std::optional<int> wholeNumber(const QVariantMap &dictionary, QLatin1StringView key)
{
    bool isNumber = false;
    const double value = dictionary.value(key).toDouble(&isNumber);
    if (!isNumber || !(value >= 1 && value <= 0x7fffffff) || value != static_cast<int>(value))
        return std::nullopt;
    return static_cast<int>(value);
}

} // namespace

std::optional<RecorderSettings> RecorderSettings::fromDictionary(const QVariantMap &dictionary)
{
    const auto format = wholeNumber(dictionary, RecorderSettingKeys::Format);
    const auto rate = wholeNumber(dictionary, RecorderSettingKeys::SampleRate);
    const auto channels = wholeNumber(dictionary, RecorderSettingKeys::NumberOfChannels);
    const auto bitRate = wholeNumber(dictionary, RecorderSettingKeys::EncoderBitRate);
    if (format != FormatAac || !rate || !channels || !bitRate)
        return std::nullopt;
    if (std::ranges::find(SampleRates, *rate) == SampleRates.end())
        return std::nullopt;
    if (*channels > 2 || *bitRate > HighestBitRate)
        return std::nullopt;
    return RecorderSettings{*rate, *channels, *bitRate};
}

} // namespace tarvelo::engine
