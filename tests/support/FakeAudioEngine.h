#pragma once

#include "audio/engine/AudioEngine.h"
#include "audio/engine/AudioPlayer.h"

#include <QFile>
#include <QStringList>

#include <initializer_list>
#include <optional>
#include <utility>

namespace tarvelo::tests {

// Neither hears nor plays anything: writes down what it was asked, in order, and does as the test
// tells it. One recorder at a time. Needs tarvelo_engine.
class FakeAudioEngine final : public engine::AudioEngine
{
public:
    // What it was asked: "makeRecorder", "recorder prepareToRecord", "player play" ...; also
    // "recorder gone" when a recorder is destroyed.
    QStringList asked;

    bool makesRecorders = true;
    bool prepares = true;
    double recordedSeconds = 0;
    // Where a test cares: what the recorder says once it was stopped, as a real one does.
    std::optional<double> secondsAfterStop;
    engine::SoundHeard soundHeard;
    QString recorderPath;
    bool fileWasThere = false; // at recorderPath, when the last recorder was made
    QVariantMap settings;
    engine::AudioRecorder *recorder = nullptr;
    engine::AudioRecorderDelegate *recorderDelegate = nullptr;

    bool makesPlayers = true;
    double playedSeconds = 0;
    double playerDuration = 0;
    QByteArray playerBytes;
    QUrl playerUrl;
    // The one made last, as long as it lives.
    engine::AudioPlayer *player = nullptr;
    engine::AudioPlayerDelegate *playerDelegate = nullptr; // of that one

    std::unique_ptr<engine::AudioRecorder> makeRecorder(const QString &path,
                                                        const QVariantMap &with) override;
    std::unique_ptr<engine::AudioPlayer> makePlayer(const QByteArray &bytes) override;

    // The player made last comes to its natural end.
    void endPlayer() const
    {
        if (playerDelegate)
            playerDelegate->audioPlayerDidFinishPlayingSuccessfully(player, true);
    }
    // What it was asked since this was last called.
    QStringList takeAsked() { return std::exchange(asked, {}); }

private:
    class Recorder;
    class Player;
};

// A prepared recorder leaves a file, as a real one does.
class FakeAudioEngine::Recorder final : public engine::AudioRecorder
{
public:
    explicit Recorder(FakeAudioEngine &engine)
        : m_engine(engine)
        , m_path(engine.recorderPath)
    {
    }
    ~Recorder() override
    {
        note("gone");
        if (m_engine.recorder == this)
            m_engine.recorder = nullptr;
    }

    void setDelegate(engine::AudioRecorderDelegate *delegate) override
    {
        note("setDelegate");
        m_engine.recorderDelegate = delegate;
    }
    bool prepareToRecord() override
    {
        note("prepareToRecord");
        QFile file(m_path);
        return m_engine.prepares && file.open(QIODevice::WriteOnly) && file.write("a take") > 0;
    }
    bool record() override { return note("record"); }
    void pause() override { note("pause"); }
    void stop() override
    {
        note("stop");
        m_engine.recordedSeconds = m_engine.secondsAfterStop.value_or(m_engine.recordedSeconds);
    }
    double currentTime() const override { return m_engine.recordedSeconds; }
    engine::SoundHeard soundHeard() const override { return m_engine.soundHeard; }
    void setMeteringEnabled(bool enabled) override
    {
        note(enabled ? "metering on" : "metering off");
    }
    void updateMeters() override { note("updateMeters"); }

private:
    bool note(const char *what)
    {
        m_engine.asked.append(QStringLiteral("recorder ") + QString::fromLatin1(what));
        return true;
    }

    FakeAudioEngine &m_engine;
    QString m_path;
};

class FakeAudioEngine::Player final : public engine::AudioPlayer
{
public:
    explicit Player(FakeAudioEngine &engine)
        : m_engine(engine)
    {
    }
    ~Player() override
    {
        note("gone");
        if (m_engine.player == this)
            m_engine.player = nullptr;
    }

    void setDelegate(engine::AudioPlayerDelegate *delegate) override
    {
        note("setDelegate");
        m_engine.playerDelegate = delegate;
    }
    bool prepareToPlay() override { return note("prepareToPlay"); }
    bool play() override { return m_isPlaying = note("play"); }
    void pause() override { m_isPlaying = !note("pause"); }
    void stop() override { m_isPlaying = !note("stop"); }
    bool isPlaying() const override { return m_isPlaying; }
    double currentTime() const override { return m_engine.playedSeconds; }
    void setCurrentTime(double seconds) override { m_engine.playedSeconds = seconds; }
    double duration() const override { return m_engine.playerDuration; }
    float rate() const override { return m_rate; }
    void setRate(float rate) override
    {
        note("setRate");
        m_rate = rate;
    }
    QUrl url() const override { return m_engine.playerUrl; }
    void setMeteringEnabled(bool enabled) override
    {
        note(enabled ? "metering on" : "metering off");
    }
    void updateMeters() override { note("updateMeters"); }

private:
    bool note(const char *what)
    {
        m_engine.asked.append(QStringLiteral("player ") + QString::fromLatin1(what));
        return true;
    }

    FakeAudioEngine &m_engine;
    bool m_isPlaying = false;
    float m_rate = 1;
};

inline std::unique_ptr<engine::AudioRecorder> FakeAudioEngine::makeRecorder(const QString &path,
                                                                            const QVariantMap &with)
{
    asked.append(QStringLiteral("makeRecorder"));
    recorderPath = path;
    fileWasThere = QFile::exists(path);
    settings = with;
    if (!makesRecorders)
        return nullptr;
    auto made = std::make_unique<Recorder>(*this);
    recorder = made.get();
    return made;
}

inline std::unique_ptr<engine::AudioPlayer> FakeAudioEngine::makePlayer(const QByteArray &bytes)
{
    asked.append(QStringLiteral("makePlayer"));
    playerBytes = bytes;
    if (!makesPlayers || bytes.isEmpty())
        return nullptr;
    auto made = std::make_unique<Player>(*this);
    player = made.get();
    playerDelegate = nullptr;
    return made;
}

// What is expected to have been asked.
inline QStringList inOrder(std::initializer_list<const char *> asked)
{
    QStringList list;
    for (const char *one : asked)
        list.append(QString::fromLatin1(one));
    return list;
}

} // namespace tarvelo::tests
