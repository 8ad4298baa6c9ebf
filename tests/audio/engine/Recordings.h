#pragma once

#include "audio/engine/PcmFormat.h"
#include "audio/engine/TakeWriter.h"
#include "support/FileContent.h"
#include "support/TestSound.h"

#include <QByteArray>
#include <QFile>
#include <QTemporaryDir>

namespace tarvelo::tests {

enum class Ending { Stopped, CutOff };

// The bytes of a take of the mono sound, recorded to its end or killed before that.
inline QByteArray recordingOf(std::span<const float> sound, Ending ending = Ending::Stopped)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("take.m4a"));
    auto writer = engine::TakeWriter::create(QFile::encodeName(path).toStdString(), {44100, 1}, {});
    for (std::size_t at = 0; at < sound.size(); at += 4096)
        writer->write(sound.subspan(at, std::min<std::size_t>(4096, sound.size() - at)));
    if (ending == Ending::Stopped)
        writer->finish();
    return contentOf(path);
}

// The bytes of a file that holds the sound as it is: an encoder smears what it does not take for
// important. Needs tarvelo_test_audio.
inline QByteArray exactRecordingOf(std::span<const float> sound, int rate = 44100, int channels = 1)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("sound.wav"));
    return writeWav(path, sound, rate, channels) ? contentOf(path) : QByteArray();
}

} // namespace tarvelo::tests
