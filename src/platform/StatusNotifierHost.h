#pragma once

#include <QObject>

namespace tarvelo::platform {

// The status bar of the desktop that takes items over the session bus: a host, which shows them,
// and a watcher, which knows the hosts and the items. Nothing is waited for; without a bus there is
// no such bar.
class StatusNotifierHost final : public QObject
{
    Q_OBJECT

public:
    StatusNotifierHost();

Q_SIGNALS:
    // There is one: also soon after this object was made, when it was there before.
    void appeared();

private Q_SLOTS:
    void ask();
};

} // namespace tarvelo::platform
