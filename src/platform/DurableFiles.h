#pragma once

#include <QString>

namespace tarvelo::platform {

// What is said to be on the disk is there after a power cut too.

// Forces the file's content to the disk, gives it the other name, in the place of what had that,
// and forces the names to the disk. False when the file does not have the name.
bool renameDurably(const QString &from, const QString &to);

// Forces the names in the folder of `path` to the disk.
bool syncFolderOf(const QString &path);

// The file goes, also after a power cut. False when it was not there.
bool removeDurably(const QString &path);

// Takes so much room on the disk with a file that holds nothing, until it is removed. What is there
// already grows, and never shrinks. False when that would be more than a third of what is free:
// then everything else needs the room more, and none is taken.
bool holdRoom(const QString &path, qint64 bytes);

} // namespace tarvelo::platform
