#pragma once

#include "audio/engine/PcmFormat.h"
#include "audio/engine/TakeWriter.h"

#include <QByteArray>
#include <QFile>
#include <QTemporaryDir>

namespace tarvelo::tests {

enum class Ending { Stopped, CutOff };

// The bytes of a take of the mono sound, recorded to its end or killed before that.
inline QByteArray recordingOf(std::span<const float> sound, Ending ending = Ending::Stopped)
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("take.m4a")));
    auto writer = engine::TakeWriter::create(QFile::encodeName(file.fileName()).toStdString(),
                                             {44100, 1}, {});
    for (std::size_t at = 0; at < sound.size(); at += 4096)
        writer->write(sound.subspan(at, std::min<std::size_t>(4096, sound.size() - at)));
    if (ending == Ending::Stopped)
        writer->finish();
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace tarvelo::tests
