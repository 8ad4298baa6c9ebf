#pragma once

#include "platform/SessionService.h"

#include <QList>

#include <chrono>

class QUrl;

namespace tarvelo::platform {

// What the desktop does for us with files: all of it silent, whether or not it succeeds, and none
// of it waited for.
class Workspace
{
public:
    Workspace() = default;
    Workspace(const Workspace &) = delete;
    Workspace &operator=(const Workspace &) = delete;
    virtual ~Workspace() = default;

    // Shows the files in the file manager, selected in their folders.
    virtual void activateFileViewerSelectingURLs(const QList<QUrl> &urls) = 0;
    // Opens the file with the application that the user has chosen for its kind.
    virtual void openFileWithApplication(const QString &path) = 0;
    // Shows a document in the viewer for its kind.
    virtual void openFile(const QString &path) = 0;
    // Opens an address with the application for its scheme: a web browser, a software store.
    virtual void openURL(const QUrl &url) = 0;
};

// Asks the file manager over the session bus; without one that answers, the folder of the first
// file is opened. Neither needs the file to be there.
class DesktopWorkspace final : public Workspace
{
public:
    explicit DesktopWorkspace(std::chrono::milliseconds patience = PatienceWithServices)
        : m_patience(patience)
    {
    }

    void activateFileViewerSelectingURLs(const QList<QUrl> &urls) override;
    void openFileWithApplication(const QString &path) override;
    void openFile(const QString &path) override;
    void openURL(const QUrl &url) override;

private:
    std::chrono::milliseconds m_patience;
};

} // namespace tarvelo::platform
