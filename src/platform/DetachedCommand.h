#pragma once

#include <QStringList>

namespace tarvelo::platform {

// Starts a command of the desktop that lives on without us, and returns at once. The arguments
// reach it as they are: no shell reads them. What it prints is not ours to show, so that it has
// nothing of ours on its streams; one that cannot be started is no trouble.
void runDetached(const QString &program, const QStringList &arguments);

} // namespace tarvelo::platform
