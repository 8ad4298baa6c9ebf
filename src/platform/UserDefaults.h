#pragma once

#include <QHash>
#include <QSettings>
#include <QString>
#include <QVariant>

namespace tarvelo::platform {

// The user's settings, in an INI file of their own, over a layer of registered defaults that is
// never written. Main thread only. A key that nobody set or registered reads as 0, false or an
// invalid value.
class UserDefaults final
{
public:
    // `file` is the full path of the INI file; it need not exist.
    explicit UserDefaults(const QString &file);
    UserDefaults(const UserDefaults &) = delete;
    UserDefaults &operator=(const UserDefaults &) = delete;

    // Tarvelo/Tarvelo.conf below $XDG_CONFIG_HOME.
    static QString standardFile();

    QVariant value(const QString &key) const;
    int integerForKey(const QString &key) const { return value(key).toInt(); }
    bool boolForKey(const QString &key) const { return value(key).toBool(); }

    void registerDefaults(const QHash<QString, QVariant> &defaults);
    void setValue(const QString &key, const QVariant &value);
    // Writes out at once. A failure is not noticed.
    void synchronize() { m_settings.sync(); }

private:
    QSettings m_settings;
    QHash<QString, QVariant> m_registered;
};

} // namespace tarvelo::platform
