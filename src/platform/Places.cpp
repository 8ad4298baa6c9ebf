#include "platform/Places.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace tarvelo::platform {

namespace {

// The home folder in the place of a leading tilde.
QString expandingTilde(const QString &path)
{
    if (path == u"~" || path.startsWith(u"~/"))
        return QDir::homePath() + path.mid(1);
    return path;
}

// A variable of the environment is a closer wish than the desktop's settings. As in those, only a
// whole path is one.
QString musicFolder()
{
    const QString wished = expandingTilde(qEnvironmentVariable("XDG_MUSIC_DIR"));
    return QDir::isAbsolutePath(wished)
               ? wished
               : QStandardPaths::writableLocation(QStandardPaths::MusicLocation);
}

// Beside the executable's folder, as every prefix has it; the build has the same two folders.
QString resourcesFolder()
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath() +
                           QStringLiteral("/../share/Tarvelo"));
}

} // namespace

Places Places::ofProcess()
{
    return {QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation),
            QFileInfo(QCoreApplication::applicationFilePath()).fileName(), musicFolder(),
            resourcesFolder()};
}

QString Places::processFolder() const
{
    return expandingTilde(applicationSupport + u'/' + processName);
}

QString Places::productFolder() const
{
    return expandingTilde(applicationSupport + QStringLiteral("/Tarvelo"));
}

QString pathForResource(const QString &resources, const QString &name, const QString &type)
{
    const QFileInfo file(QStringLiteral("%1/%2.%3").arg(resources, name, type));
    return file.isFile() ? file.absoluteFilePath() : QString();
}

} // namespace tarvelo::platform
