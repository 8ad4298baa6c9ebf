#pragma once

#include "support/EnvironmentVariable.h"
#include "support/StandInCommands.h"

#include <QDir>

namespace tarvelo::tests {

// Players that stand in for the user's, one for each kind of sound file, registered in a home of
// their own as a desktop registers them. The real xdg-open finds them, and they write down what
// they are to open. Which kind a file is, is told from its content.
class StandInPlayers final
{
public:
    StandInPlayers()
    {
        QByteArray list("[Default Applications]\n");
        for (const auto &[kind, player] : Players) {
            write(QLatin1String("data/applications/") + QLatin1String(player) +
                      QLatin1String(".desktop"),
                  QByteArray("[Desktop Entry]\nType=Application\nName=Player\nMimeType=") + kind +
                      ";\nExec=" + player + " %f\n");
            list += QByteArray(kind) + '=' + player + ".desktop\n";
        }
        write(QLatin1String("config/mimeapps.list"), list);
    }

    static constexpr std::pair<const char *, const char *> Players[] = {
        {"audio/mp4", "audio-mp4-player"},
        {"audio/x-m4a", "audio-m4a-player"},
        {"audio/aac", "audio-aac-player"},
        {"audio/x-hx-aac-adts", "audio-adts-player"},
        {"video/mp4", "video-mp4-player"}};

    // What every player was to open.
    QStringList opened() const
    {
        QStringList paths;
        for (const auto &[kind, player] : Players) {
            for (const QStringList &call : m_commands.callsOf(QLatin1String(player)))
                paths += call;
        }
        return paths;
    }

private:
    static QStringList names()
    {
        QStringList all;
        for (const auto &[kind, player] : Players)
            all.append(QLatin1String(player));
        return all;
    }
    void write(const QString &name, const QByteArray &text) const
    {
        QFile file(m_home.filePath(name));
        QDir(m_home.path()).mkpath(QFileInfo(file).path());
        if (file.open(QIODevice::WriteOnly))
            file.write(text);
    }

    QTemporaryDir m_home;
    StandInCommands m_commands{names()};
    EnvironmentVariable m_config{"XDG_CONFIG_HOME", m_home.filePath(QStringLiteral("config"))};
    EnvironmentVariable m_data{"XDG_DATA_HOME", m_home.filePath(QStringLiteral("data"))};
    EnvironmentVariable m_desktop{"XDG_CURRENT_DESKTOP", QStringLiteral("X-Generic")};
    // The command looks for an application only where there is a screen to show it on.
    EnvironmentVariable m_display{"DISPLAY", QStringLiteral(":none")};
};

} // namespace tarvelo::tests
