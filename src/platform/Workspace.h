#pragma once

#include <QList>
#include <QUrl>

namespace tarvelo::platform {

// What the desktop does for us with files: all of it silent, whether or not it succeeds.
class Workspace
{
public:
    Workspace() = default;
    Workspace(const Workspace &) = delete;
    Workspace &operator=(const Workspace &) = delete;
    virtual ~Workspace() = default;

    // Shows the files in the file manager, selected in their folders.
    virtual void activateFileViewerSelectingURLs(const QList<QUrl> &urls) = 0;
};

// Asks the file manager over the session bus; without one that answers, the folder of the first
// file is opened with the desktop's default application.
class DesktopWorkspace final : public Workspace
{
public:
    void activateFileViewerSelectingURLs(const QList<QUrl> &urls) override;
};

} // namespace tarvelo::platform
