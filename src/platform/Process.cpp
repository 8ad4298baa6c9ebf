#include "platform/Process.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace tarvelo::platform {

namespace {

// A variable of the environment is a closer wish than the desktop's settings. As in those, only a
// whole path is one.
QString musicFolder()
{
    const QString wished = expandingTilde(qEnvironmentVariable("XDG_MUSIC_DIR"));
    return QDir::isAbsolutePath(wished)
               ? wished
               : QStandardPaths::writableLocation(QStandardPaths::MusicLocation);
}

} // namespace

Places Places::ofProcess()
{
    return {QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation),
            QFileInfo(QCoreApplication::applicationFilePath()).fileName(), musicFolder()};
}

QString expandingTilde(const QString &path)
{
    if (path == u"~" || path.startsWith(u"~/"))
        return QDir::homePath() + path.mid(1);
    return path;
}

} // namespace tarvelo::platform
