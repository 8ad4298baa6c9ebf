#pragma once

#include <QString>

namespace tarvelo::platform {

// Where this run keeps things, and under which name it runs. No path ends in a slash.
struct Places
{
    QString applicationSupport; // $XDG_DATA_HOME, ~/.local/share
    QString processName;        // the executable's file name
    QString music = {};         // $XDG_MUSIC_DIR, which a desktop names in user-dirs.dirs
    QString resources = {};     // files that were installed with the executable

    static Places ofProcess();

    // Below the one what is this process's lies, below the other what is the product's, whatever
    // name the process runs under. The two are one when the program runs under its own name, and
    // both are wanted.
    QString processFolder() const;
    QString productFolder() const;
};

// The file `name`.`type` of the program's resources, or nothing when it is not there.
QString pathForResource(const QString &resources, const QString &name, const QString &type);

} // namespace tarvelo::platform
