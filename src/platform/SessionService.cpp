#include "platform/SessionService.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QObject>
#include <QString>

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

QString portalService()
{
    return QStringLiteral("org.freedesktop.portal.Desktop");
}

QDBusMessage portalCall(const QString &interface, const QString &method,
                        const QVariantList &arguments)
{
    QDBusMessage call = QDBusMessage::createMethodCall(
        portalService(), QStringLiteral("/org/freedesktop/portal/desktop"),
        QStringLiteral("org.freedesktop.portal.") + interface, method);
    const QString noParentWindow;
    call.setArguments(QVariantList{noParentWindow} + arguments);
    return call;
}

} // namespace tarvelo::platform
