#pragma once

#include "audio/engine/AudioEngine.h"
#include "audio/engine/AudioPlayer.h"
#include "audio/engine/PcmFormat.h"
#include "audio/engine/RecorderSettings.h"
#include "audio/engine/TakeWriter.h"

#include <QFile>

namespace tarvelo::torture {

// Records as the program does, but what it is given, as fast as the machine can: takes of minutes
// in seconds. Plays through the engine of the sound server.
class QuickEngine final : public engine::AudioEngine
{
public:
    class Recorder;

    std::unique_ptr<engine::AudioRecorder> makeRecorder(const QString &path,
                                                        const QVariantMap &with) override;
    std::unique_ptr<engine::AudioPlayer> makePlayer(const QByteArray &bytes) override
    {
        return m_server->makePlayer(bytes);
    }

    // Into the take that runs, if one does.
    void hear(std::span<const float> mono);
    // What the recorder tells; 0 without one.
    double time() const;

private:
    Recorder *m_recorder = nullptr;
    std::unique_ptr<engine::AudioEngine> m_server = engine::makeSoundServerEngine();
};

class QuickEngine::Recorder final : public engine::AudioRecorder
{
public:
    static constexpr engine::PcmFormat Microphone{44100, 1};

    Recorder(QuickEngine &engine, const QString &path, const engine::RecorderSettings &settings)
        : m_engine(engine)
        , m_path(QFile::encodeName(path).toStdString())
        , m_settings(settings)
    {
        m_engine.m_recorder = this;
    }
    ~Recorder() override
    {
        if (m_engine.m_recorder == this)
            m_engine.m_recorder = nullptr;
    }

    void hear(std::span<const float> mono)
    {
        if (m_writer && m_runs && m_writer->write(mono))
            m_taken += static_cast<double>(mono.size()) / Microphone.rate;
    }

    void setDelegate(engine::AudioRecorderDelegate *) override {}
    bool prepareToRecord() override
    {
        m_writer = engine::TakeWriter::create(m_path, Microphone, m_settings);
        return m_writer != nullptr;
    }
    bool record() override { return m_runs = m_writer != nullptr; }
    void pause() override { m_runs = false; }
    void stop() override
    {
        if (!m_writer)
            return;
        m_writer->finish();
        m_last = time();
        m_writer.reset();
    }
    double currentTime() const override { return m_writer ? time() : m_last; }
    engine::SoundHeard soundHeard() const override { return {m_taken, m_taken}; }
    void setMeteringEnabled(bool) override {}
    void updateMeters() override {}

private:
    // As a take tells it: sound that waits counts where the reserve is for it.
    double time() const { return std::min(m_writer->secondsSafe(), m_taken); }

    QuickEngine &m_engine;
    std::string m_path;
    engine::RecorderSettings m_settings;
    std::unique_ptr<engine::TakeWriter> m_writer;
    bool m_runs = false;
    double m_taken = 0;
    double m_last = 0;
};

inline std::unique_ptr<engine::AudioRecorder> QuickEngine::makeRecorder(const QString &path,
                                                                        const QVariantMap &with)
{
    const auto settings = engine::RecorderSettings::fromDictionary(with);
    return settings ? std::make_unique<Recorder>(*this, path, *settings) : nullptr;
}

inline double QuickEngine::time() const
{
    return m_recorder ? m_recorder->currentTime() : 0;
}

inline void QuickEngine::hear(std::span<const float> mono)
{
    if (m_recorder)
        m_recorder->hear(mono);
}

} // namespace tarvelo::torture
