#pragma once

#include "audio/engine/PcmFormat.h"
#include "audio/engine/TakeWriter.h"
#include "support/TestSound.h"

#include <QDir>
#include <QFile>
#include <QProcess>

namespace tarvelo::bench {

// A recording of our own of so many minutes in the folder; its path, or none. One minute of it is
// encoded, and repeated for the others.
inline QString lectureOf(int minutes, const QString &folder)
{
    const QDir place(folder);
    const QString minute = place.filePath(QStringLiteral("minute.m4a"));
    const QString lecture = place.filePath(QStringLiteral("%1 minutes.m4a").arg(minutes));
    const auto writer =
        engine::TakeWriter::create(QFile::encodeName(minute).toStdString(), {44100, 1}, {});
    const auto sound = tests::tune(44100, 60);
    constexpr std::size_t Block = 4410;
    for (std::size_t at = 0; writer && at < sound.size(); at += Block)
        writer->write(std::span(sound).subspan(at, Block));
    const QStringList repeat{QStringLiteral("-nostdin"),
                             QStringLiteral("-v"),
                             QStringLiteral("quiet"),
                             QStringLiteral("-y"),
                             QStringLiteral("-stream_loop"),
                             QString::number(minutes - 1),
                             QStringLiteral("-i"),
                             minute,
                             QStringLiteral("-c"),
                             QStringLiteral("copy"),
                             lecture};
    const bool isMade =
        writer && writer->finish() && QProcess::execute(QStringLiteral("ffmpeg"), repeat) == 0;
    return isMade ? lecture : QString();
}

} // namespace tarvelo::bench
