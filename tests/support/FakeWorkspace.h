#pragma once

#include "platform/Workspace.h"

#include <QStringList>

namespace tarvelo::tests {

// A desktop that opens nothing and remembers what it was asked for.
class FakeWorkspace final : public platform::Workspace
{
public:
    QList<QList<QUrl>> shown;
    QStringList opened;

    void activateFileViewerSelectingURLs(const QList<QUrl> &urls) override { shown.append(urls); }
    void openFileWithApplication(const QString &path) override { opened.append(path); }
};

} // namespace tarvelo::tests
