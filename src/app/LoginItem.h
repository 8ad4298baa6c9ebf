#pragma once

#include <QString>

namespace tarvelo::app {

// The entry with which the desktop starts the program when the user logs in: a desktop file in the
// session's autostart folder. Failures are not noticed; isEnabled() tells what is on the disk.
class LoginItem final
{
public:
    // `program` is the full path of the executable.
    LoginItem(const QString &autostartFolder, const QString &program);

    // $XDG_CONFIG_HOME/autostart.
    static QString standardFolder();

    // Named as the menu's entry, by which the desktop knows whose it is.
    QString file() const { return m_folder + QStringLiteral("/org.tarvelo.Tarvelo.desktop"); }
    // An entry that the desktop's own settings switched off counts as off.
    bool isEnabled() const;

    void setEnabled(bool enabled);

private:
    QString m_folder;
    QString m_program;
};

// One argument of an Exec line, quoted so that the desktop takes it as it stands.
QString quotedForExec(const QString &argument);

} // namespace tarvelo::app
