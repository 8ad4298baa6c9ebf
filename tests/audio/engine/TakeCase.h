#pragma once

#include "support/FileContent.h"
#include "support/FolderCase.h"

#include <string>

namespace tarvelo::tests {

// The base of tests that write a take and see what its file holds.
class TakeCase : public FolderCase
{
protected:
    QString path() const { return m_folder->filePath(QStringLiteral("take.m4a")); }
    std::string file() const { return path().toStdString(); }
    QByteArray content() const { return contentOf(path()); }
};

} // namespace tarvelo::tests
