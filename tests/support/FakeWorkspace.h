#pragma once

#include "platform/Workspace.h"

#include <QStringList>
#include <QUrl>

namespace tarvelo::tests {

// A desktop that opens nothing and remembers what it was asked for.
class FakeWorkspace final : public platform::Workspace
{
public:
    QList<QList<QUrl>> shown;
    QStringList opened;
    QStringList documents;
    QList<QUrl> addresses;

    void activateFileViewerSelectingURLs(const QList<QUrl> &urls) override { shown.append(urls); }
    void openFileWithApplication(const QString &path) override { opened.append(path); }
    void openFile(const QString &path) override { documents.append(path); }
    void openURL(const QUrl &url) override { addresses.append(url); }
};

} // namespace tarvelo::tests
