#pragma once

#include "support/PrivateBus.h"
#include "support/StandInCommands.h"
#include "support/TestCase.h"

#include <QDir>

#include <optional>

namespace tarvelo::tests {

// The base of tests of what is handed over to the desktop: a bus for all tests of the class, and
// for each a command that stands in for the desktop's own, and an empty folder, which is the
// current one. Needs tarvelo_test_desktop.
class DesktopCase : public TestCase
{
protected:
    explicit DesktopCase(QString command)
        : m_command(std::move(command))
    {
    }

    void prepare() override
    {
        QVERIFY(m_bus.isRunning());
        m_folder.emplace();
        QDir::setCurrent(m_folder->path());
        m_commands.emplace(QStringList{m_command});
    }
    void finish() override
    {
        m_commands.reset();
        QDir::setCurrent(QDir::rootPath());
        m_folder.reset();
    }

    PrivateBus m_bus;
    std::optional<QTemporaryDir> m_folder;
    std::optional<StandInCommands> m_commands;

private:
    QString m_command;
};

} // namespace tarvelo::tests
