#pragma once

#include "support/TestCase.h"

#include <QTemporaryDir>

#include <memory>

namespace tarvelo::tests {

// The base of tests that work in a folder: every test has an empty one.
class FolderCase : public TestCase
{
protected:
    void prepare() override { m_folder = std::make_unique<QTemporaryDir>(); }
    void finish() override { m_folder.reset(); }

    std::unique_ptr<QTemporaryDir> m_folder;
};

} // namespace tarvelo::tests
