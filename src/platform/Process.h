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

// Makes `folder` with all that is missing above it, unless something stands there already. A
// failure is not noticed here: what is written into the folder later fails in its own way.
void createFolderIfMissing(const QString &folder);

} // namespace tarvelo::platform
