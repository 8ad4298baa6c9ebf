#pragma once

#include <QStringList>

#include <functional>
#include <vector>

class QWidget;

namespace tarvelo::platform {
class Alerts;
}

namespace tarvelo::app {

class TaskbarEntry;

// The program's entry in the dock or task bar: that of its windows. It comes back at once, and goes
// only with a fresh start, which is offered.
class DockIcon final
{
public:
    // What the operations need of the program around them; none may be empty.
    struct Around
    {
        std::function<void()> activateIgnoringOtherApps;
        std::function<void()> onCloseSettingPanel;
        std::function<void()> terminate;
        std::function<void(const QString &program, const QStringList &arguments)> launch;
    };

    // `windows` and `alerts` must outlive this object.
    DockIcon(const std::vector<QWidget *> &windows, platform::Alerts &alerts, Around around);
    DockIcon(const DockIcon &) = delete;
    DockIcon &operator=(const DockIcon &) = delete;
    ~DockIcon() = default;

    // At the launch, before there is anything to see.
    void startWith(bool shown);
    // The user's choice. Hiding it asks whether to start again now, and waits for the answer.
    void setShowsDockIcon(bool shows);

    const std::vector<TaskbarEntry *> &entries() const { return m_entries; }

private:
    void offerRelaunch();
    void relaunch();

    platform::Alerts &m_alerts;
    Around m_around;
    std::vector<TaskbarEntry *> m_entries; // children of their windows
};

} // namespace tarvelo::app
