#pragma once

#include <QString>

namespace tarvelo::platform {

// The one way in which the program makes its folders and files: for their user alone, 0700 and
// 0600, whatever the umask. That of the process stays as it is, since the players and openers that
// we start take it over. Failures are not noticed here: what is written there later fails in its
// own way.

// Makes `folder` with all that is missing above it, unless something stands there already. What is
// there already keeps its mode.
void createFolderIfMissing(const QString &folder);

// Makes an empty file for who then opens it by name, unless something stands there already.
void createFileIfMissing(const QString &path);

// Takes from everybody but their user what earlier versions allowed on a folder of the program's
// own; nothing is ever allowed that was not. A link is left alone, for what it leads to may serve
// others, and so is a folder of somebody else.
void keepFolderPrivate(const QString &folder);

// The same for a file that was just made.
void keepFilePrivate(const QString &path);

} // namespace tarvelo::platform
