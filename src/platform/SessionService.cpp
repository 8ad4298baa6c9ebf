#include "platform/SessionService.h"

#include <QDBusConnection>
#include <QDBusPendingCallWatcher>
#include <QObject>

#include <utility>

namespace tarvelo::platform {

void callSessionService(const QDBusMessage &call, std::chrono::milliseconds patience,
                        std::function<void()> otherwise)
{
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) {
        otherwise();
        return;
    }
    auto *watcher =
        new QDBusPendingCallWatcher(bus.asyncCall(call, static_cast<int>(patience.count())));
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, watcher,
                     [watcher, instead = std::move(otherwise)] {
                         watcher->deleteLater();
                         if (watcher->isError())
                             instead();
                     });
}

} // namespace tarvelo::platform
