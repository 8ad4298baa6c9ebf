#pragma once

#include "audio/engine/AudioEngine.h"
#include "audio/engine/Settings.h"
#include "support/DecodedAudio.h"
#include "support/PrivateSoundServer.h"
#include "support/TestCase.h"
#include "support/TestSound.h"

#include <QFileInfo>

namespace tarvelo::tests {

// The base of tests that record: a folder, an engine, and a sound server as soon as a test asks
// for one.
class RecordingCase : public TestCase
{
protected:
    // Milliseconds. A machine with much to do is slow, not broken.
    static constexpr int Patience = 60000;

    void prepare() override { m_folder = std::make_unique<QTemporaryDir>(); }

    QString path(const QString &name = QStringLiteral("take.m4a")) const
    {
        return m_folder->filePath(name);
    }

    PrivateSoundServer &server() { return *m_server; }
    // The server of the test before serves again when it is whole and of the same kind.
    bool startServer(const PrivateSoundServer::Options &options = {})
    {
        if (m_server && m_server->isIntact() && m_options == options)
            return m_server->silence();
        m_server.reset();
        m_server = std::make_unique<PrivateSoundServer>();
        m_options = options;
        return m_server->start(options);
    }

    // Plays into the microphone from now on.
    bool speak(std::span<const float> sound) { return m_server->speak(wavOf(sound)); }
    QString wavOf(std::span<const float> sound) const
    {
        const QString wav = path(QStringLiteral("spoken.wav"));
        return writeWav(wav, sound, 44100) ? wav : QString();
    }

    std::unique_ptr<engine::AudioRecorder> recorder(const QString &file = QString()) const
    {
        return m_engine->makeRecorder(file.isEmpty() ? path() : file, lectureSettings());
    }
    // Null when it does not come to recording.
    std::unique_ptr<engine::AudioRecorder> recording(const QString &file = QString()) const
    {
        auto made = recorder(file);
        const bool records = made && made->prepareToRecord() && made->record();
        return records ? std::move(made) : nullptr;
    }
    static bool reaches(const engine::AudioRecorder &recorder, double seconds)
    {
        return QTest::qWaitFor([&] { return recorder.currentTime() >= seconds; }, Patience);
    }

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<PrivateSoundServer> m_server;
    PrivateSoundServer::Options m_options;
    std::unique_ptr<engine::AudioEngine> m_engine = engine::makeSoundServerEngine();
};

} // namespace tarvelo::tests
