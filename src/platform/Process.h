#pragma once

#include <QString>

namespace tarvelo::platform {

// Where this run keeps things, and under which name it runs. No path ends in a slash.
struct Places
{
    QString applicationSupport; // $XDG_DATA_HOME, ~/.local/share
    QString processName;        // the executable's file name
    QString music = {};         // $XDG_MUSIC_DIR, which a desktop names in user-dirs.dirs

    static Places ofProcess();
};

// `path` with a leading tilde replaced by the home folder.
QString expandingTilde(const QString &path);

} // namespace tarvelo::platform
