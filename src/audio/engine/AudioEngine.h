#pragma once

#include "audio/engine/AudioPlayer.h"   // IWYU pragma: export
#include "audio/engine/AudioRecorder.h" // IWYU pragma: export

#include <QString>
#include <QVariantMap>

#include <memory>

namespace tarvelo::engine {

// Makes recorders and players. The one production implementation is over the sound server; a test
// that is not about sound brings its own.
class AudioEngine
{
public:
    AudioEngine() = default;
    AudioEngine(const AudioEngine &) = delete;
    AudioEngine &operator=(const AudioEngine &) = delete;
    virtual ~AudioEngine() = default;

    // A recorder on `path`, whatever its extension: MPEG-4 with AAC. Null when the settings name
    // another format or cannot be met. Touches neither the file nor the sound server.
    virtual std::unique_ptr<AudioRecorder> makeRecorder(const QString &path,
                                                        const QVariantMap &settings) = 0;
    // A player of the file whose bytes these are. Null when they are no audio that can be played.
    virtual std::unique_ptr<AudioPlayer> makePlayer(const QByteArray &bytes) = 0;
};

// The engine over the sound server of the session (PulseAudio's protocol, which PipeWire serves
// too).
std::unique_ptr<AudioEngine> makeSoundServerEngine();

} // namespace tarvelo::engine
