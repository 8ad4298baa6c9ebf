#pragma once

#include <QVariantMap>

#include <optional>

namespace tarvelo::engine {

// What a take is encoded with.
struct RecorderSettings
{
    int sampleRate = 44100; // hertz
    int channels = 2;
    int bitRate = 80000; // bits per second

    // Nothing when a value is missing, names another format than MPEG-4 AAC, or is none that AAC
    // can be encoded with.
    static std::optional<RecorderSettings> fromDictionary(const QVariantMap &dictionary);
};

} // namespace tarvelo::engine
