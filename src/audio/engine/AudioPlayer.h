#pragma once

#include <QUrl>

namespace tarvelo::engine {

class AudioPlayer;

// Hears from a player on the main thread.
class AudioPlayerDelegate
{
public:
    virtual ~AudioPlayerDelegate() = default;
    virtual void audioPlayerDidFinishPlayingSuccessfully(AudioPlayer *player,
                                                         bool successfully) = 0;
};

// Plays the bytes of one audio file to the default output. All operations are for the main thread
// and never wait for sound.
class AudioPlayer
{
public:
    // What the stretcher does well.
    static constexpr double SlowestRate = 0.1;
    static constexpr double FastestRate = 4.0;

    AudioPlayer() = default;
    AudioPlayer(const AudioPlayer &) = delete;
    AudioPlayer &operator=(const AudioPlayer &) = delete;
    virtual ~AudioPlayer() = default;

    // The delegate hears of the natural end. None by default.
    virtual void setDelegate(AudioPlayerDelegate *delegate) = 0;
    virtual bool prepareToPlay() = 0;
    virtual bool play() = 0;
    virtual void pause() = 0;
    virtual void stop() = 0;
    virtual bool isPlaying() const = 0;
    virtual double currentTime() const = 0; // seconds into the recording
    virtual void setCurrentTime(double seconds) = 0;
    virtual double duration() const = 0; // seconds
    virtual float rate() const = 0;
    // 1.0 is the recorded speed; the pitch is kept. What plays is heard so within a moment, and
    // without a gap. Beyond the slowest and the fastest rate it is heard at those.
    virtual void setRate(float rate) = 0;
    // Where the sound was read from; empty for a player that was made from bytes.
    virtual QUrl url() const = 0;
    // No level is ever read.
    virtual void setMeteringEnabled(bool enabled) = 0;
    virtual void updateMeters() = 0;
};

} // namespace tarvelo::engine
