#pragma once

#include "platform/Workspace.h"

namespace tarvelo::tests {

// A desktop that opens nothing and remembers what it was asked for.
class FakeWorkspace final : public platform::Workspace
{
public:
    QList<QList<QUrl>> shown;

    void activateFileViewerSelectingURLs(const QList<QUrl> &urls) override { shown.append(urls); }
};

} // namespace tarvelo::tests
