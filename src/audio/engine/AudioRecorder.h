#pragma once

#include "audio/engine/Hearing.h"

#include <QLatin1StringView>

namespace tarvelo::engine {

class AudioRecorder;

// Hears from a recorder on the main thread. Must outlive the recorder or take itself off it.
class AudioRecorderDelegate
{
public:
    virtual ~AudioRecorderDelegate() = default;
    virtual void audioRecorderDidFinishRecordingSuccessfully(AudioRecorder *recorder,
                                                             bool successfully) = 0;
};

// One take: sound from the default input into one file. All operations are for the main thread,
// none of them throws or waits for sound. Destroying a recorder that still runs finishes the take
// as stop() does.
class AudioRecorder
{
public:
    AudioRecorder() = default;
    AudioRecorder(const AudioRecorder &) = delete;
    AudioRecorder &operator=(const AudioRecorder &) = delete;
    virtual ~AudioRecorder() = default;

    virtual void setDelegate(AudioRecorderDelegate *delegate) = 0;
    // Creates or truncates the file and gets ready. False when there is nothing to record from or
    // the file cannot be written; no file of ours is left behind then.
    virtual bool prepareToRecord() = 0;
    // Starts, or goes on after a pause, into the same file. False when there is nothing prepared.
    virtual bool record() = 0;
    // The file stays open and currentTime() stands still.
    virtual void pause() = 0;
    // Returns when the file is complete and playable; a second call does nothing. The delegate
    // hears of it later, from the event loop.
    virtual void stop() = 0;
    // Seconds of sound taken so far, counted in samples: time spent paused is no part of it. Keeps
    // its value after stop().
    virtual double currentTime() const = 0;
    // What the microphone gave to the take that runs, nothing while there is none. Time spent
    // paused is no part of it.
    virtual SoundHeard soundHeard() const = 0;
    virtual void setMeteringEnabled(bool enabled) = 0;
    virtual void updateMeters() = 0;
};

// The keys of a recorder's settings.
struct RecorderSettingKeys
{
    static constexpr QLatin1StringView SampleRate{"AVSampleRateKey"};             // float, hertz
    static constexpr QLatin1StringView NumberOfChannels{"AVNumberOfChannelsKey"}; // int
    static constexpr QLatin1StringView EncoderBitRate{"AVEncoderBitRateKey"}; // int, bits a second
    static constexpr QLatin1StringView Format{"AVFormatIDKey"}; // int, four-character code
    static constexpr QLatin1StringView EncoderQuality{"AVEncoderAudioQualityKey"}; // int
};

} // namespace tarvelo::engine
