#include "platform/Process.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace tarvelo::platform {

Places Places::ofProcess()
{
    return {QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation),
            QFileInfo(QCoreApplication::applicationFilePath()).fileName()};
}

QString expandingTilde(const QString &path)
{
    if (path == u"~" || path.startsWith(u"~/"))
        return QDir::homePath() + path.mid(1);
    return path;
}

void createFolderIfMissing(const QString &folder)
{
    if (!QFileInfo::exists(folder))
        QDir().mkpath(folder);
}

} // namespace tarvelo::platform
