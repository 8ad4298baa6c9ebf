#include "platform/UserDefaults.h"

#include "platform/PrivateFiles.h"

#include <QFileInfo>
#include <QStandardPaths>

namespace tarvelo::platform {

UserDefaults::UserDefaults(const QString &file)
    : m_settings(file, QSettings::IniFormat)
{
}

QString UserDefaults::standardFile()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/Tarvelo/Tarvelo.conf");
}

QVariant UserDefaults::value(const QString &key) const
{
    return m_settings.value(key, m_registered.value(key));
}

// What writes the settings later keeps the mode of the file that it finds.
void UserDefaults::setValue(const QString &key, const QVariant &value)
{
    createFolderIfMissing(QFileInfo(m_settings.fileName()).path());
    createFileIfMissing(m_settings.fileName());
    m_settings.setValue(key, value);
}

void UserDefaults::registerDefaults(const QHash<QString, QVariant> &defaults)
{
    m_registered.insert(defaults);
}

} // namespace tarvelo::platform
