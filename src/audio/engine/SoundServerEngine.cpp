#include "audio/engine/RecorderSettings.h"

#include "audio/engine/AudioEngine.h"
#include "audio/engine/SoundServerPlayer.h"
#include "audio/engine/SoundServerRecorder.h"

#include <QFile>

#include <memory>

namespace tarvelo::engine {

namespace {

class SoundServerEngine final : public AudioEngine
{
public:
    std::unique_ptr<AudioRecorder> makeRecorder(const QString &path,
                                                const QVariantMap &settings) override
    {
        const auto wanted = RecorderSettings::fromDictionary(settings);
        if (!wanted || path.isEmpty())
            return nullptr;
        return std::make_unique<SoundServerRecorder>(QFile::encodeName(path).toStdString(),
                                                     *wanted);
    }

    std::unique_ptr<AudioPlayer> makePlayer(const QByteArray &bytes) override
    {
        return SoundServerPlayer::create(bytes);
    }
};

} // namespace

std::unique_ptr<AudioEngine> makeSoundServerEngine()
{
    return std::make_unique<SoundServerEngine>();
}

} // namespace tarvelo::engine
