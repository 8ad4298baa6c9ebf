#pragma once

#include "audio/engine/AudioRecorder.h"

namespace tarvelo::tests {

// The settings that the program asks for.
inline QVariantMap lectureSettings()
{
    using namespace tarvelo::engine;
    return {{RecorderSetting::SampleRate, 44100.0F},
            {RecorderSetting::NumberOfChannels, 2},
            {RecorderSetting::EncoderBitRate, 80000},
            {RecorderSetting::Format, 0x61616320},
            {RecorderSetting::EncoderQuality, 0}};
}

} // namespace tarvelo::tests
