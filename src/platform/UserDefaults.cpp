#include "platform/UserDefaults.h"

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

void UserDefaults::registerDefaults(const QHash<QString, QVariant> &defaults)
{
    m_registered.insert(defaults);
}

} // namespace tarvelo::platform
