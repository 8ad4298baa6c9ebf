#pragma once

#include "audio/engine/AudioRecorder.h"

#include <QVariantMap>

namespace tarvelo::tests {

// The settings that the program asks for.
inline QVariantMap lectureSettings()
{
    using namespace tarvelo::engine;
    return {{RecorderSettingKeys::SampleRate, 44100.0F},
            {RecorderSettingKeys::NumberOfChannels, 2},
            {RecorderSettingKeys::EncoderBitRate, 80000},
            {RecorderSettingKeys::Format, 0x61616320},
            {RecorderSettingKeys::EncoderQuality, 0}};
}

} // namespace tarvelo::tests
