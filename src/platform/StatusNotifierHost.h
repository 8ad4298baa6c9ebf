#pragma once

#include <QObject>

namespace tarvelo::platform {

// The status bar of the desktop that takes items over the session bus: a host, which shows them,
// and a watcher, which knows the hosts and the items. Without a bus there is none.
class StatusNotifierHost final : public QObject
{
    Q_OBJECT

public:
    static constexpr int PatienceMilliseconds = 500;

    StatusNotifierHost();

    // Waits for the watcher's answer, and no longer than the patience.
    bool isThere() const;

Q_SIGNALS:
    void appeared();

private Q_SLOTS:
    void changed();
};

} // namespace tarvelo::platform
