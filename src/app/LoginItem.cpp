#include "app/LoginItem.h"

#include "platform/PrivateFiles.h"

#include <QFile>
#include <QIODevice>
#include <QSaveFile>
#include <QStandardPaths>

namespace tarvelo::app {

QString quotedForExec(const QString &argument)
{
    QString quoted;
    for (const QChar character : argument) {
        if (QStringView(u"\"`$\\").contains(character))
            quoted += u'\\';
        // A single % starts a field code.
        if (character == u'%')
            quoted += u'%';
        quoted += character;
    }
    // The value is a string of a desktop file, in which a backslash is written twice.
    return u'"' + quoted.replace(u'\\', QStringLiteral("\\\\")) + u'"';
}

LoginItem::LoginItem(const QString &autostartFolder, const QString &program)
    : m_folder(autostartFolder)
    , m_program(program)
{
}

QString LoginItem::standardFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/autostart");
}

bool LoginItem::isEnabled() const
{
    QFile entry(file());
    if (!entry.open(QIODevice::ReadOnly))
        return false;
    const QList<QByteArray> lines = entry.readAll().split('\n');
    return !lines.contains("Hidden=true") && !lines.contains("X-GNOME-Autostart-enabled=false");
}

void LoginItem::setEnabled(bool enabled)
{
    if (!enabled) {
        QFile::remove(file());
        return;
    }
    platform::createFolderIfMissing(m_folder);
    // A session that starts while the entry is being written must not find half of it.
    QSaveFile entry(file());
    if (!entry.open(QIODevice::WriteOnly))
        return;
    const QString content = QStringLiteral("[Desktop Entry]\n"
                                           "Type=Application\n"
                                           "Name=Tarvelo\n"
                                           "Icon=org.tarvelo.Tarvelo\n"
                                           "Terminal=false\n"
                                           "Exec=%1\n");
    entry.write(content.arg(quotedForExec(m_program)).toUtf8());
    entry.commit();
    platform::keepFilePrivate(file());
}

} // namespace tarvelo::app
