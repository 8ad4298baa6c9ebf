#pragma once

#include "audio/engine/AudioPlayer.h"
#include "audio/engine/SoundAhead.h"

#include <QUrl>

#include <memory>

namespace tarvelo::engine {

class DecodedSource;
class PulseOutput;

// A player over the session's sound server. Without one it plays in name only, and is heard from
// where it stands as soon as there is one.
class SoundServerPlayer final : public AudioPlayer
{
public:
    // Null when the bytes are nothing that can be heard.
    static std::unique_ptr<SoundServerPlayer> create(const QByteArray &bytes);
    explicit SoundServerPlayer(std::unique_ptr<DecodedSource> source);
    ~SoundServerPlayer() override;

    void setDelegate(AudioPlayerDelegate *delegate) override { m_delegate = delegate; }
    bool prepareToPlay() override;
    bool play() override;
    void pause() override;
    // Keeps the place, as pause() does, but lets go of the server's stream.
    void stop() override;
    bool isPlaying() const override { return m_isPlaying; }
    double currentTime() const override;
    void setCurrentTime(double seconds) override;
    double duration() const override { return m_ahead->seconds(); }
    float rate() const override { return m_rate; }
    void setRate(float rate) override;
    QUrl url() const override { return {}; }
    // There is no meter.
    void setMeteringEnabled(bool) override {}
    void updateMeters() override {}

private:
    // What is heard comes from the sound that is ready, or nothing of either is to be used again.
    enum class Sound { None, Ready, Streaming };

    double soundRate() const;
    void forgetSound();
    void ended();

    AudioPlayerDelegate *m_delegate = nullptr;
    float m_rate = 1.0F;
    bool m_isPlaying = false;
    Sound m_sound = Sound::None;
    double m_lastTime = 0; // where it stands without a stream
    std::shared_ptr<SoundServerPlayer *> m_self;
    std::unique_ptr<PulseOutput> m_output;
    std::unique_ptr<SoundAhead> m_ahead; // gone before the output that it tells of more
};

} // namespace tarvelo::engine
