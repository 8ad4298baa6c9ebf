#include "platform/StatusNotifierHost.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusServiceWatcher>
#include <QDBusVariant>

namespace tarvelo::platform {

namespace {

const QString Watcher = QStringLiteral("org.kde.StatusNotifierWatcher");
const QString Path = QStringLiteral("/StatusNotifierWatcher");

} // namespace

StatusNotifierHost::StatusNotifierHost()
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return;
    auto *watcher =
        new QDBusServiceWatcher(Watcher, bus, QDBusServiceWatcher::WatchForRegistration, this);
    connect(watcher, &QDBusServiceWatcher::serviceRegistered, this, &StatusNotifierHost::changed);
    // The watcher may be there before the host is.
    bus.connect(Watcher, Path, Watcher, QStringLiteral("StatusNotifierHostRegistered"), this,
                SLOT(changed()));
}

bool StatusNotifierHost::isThere() const
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected() || !bus.interface()->isServiceRegistered(Watcher))
        return false;
    QDBusMessage question = QDBusMessage::createMethodCall(
        Watcher, Path, QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"));
    question.setArguments({Watcher, QStringLiteral("IsStatusNotifierHostRegistered")});
    const QDBusMessage answer = bus.call(question, QDBus::Block, PatienceMilliseconds);
    return answer.type() == QDBusMessage::ReplyMessage &&
           answer.arguments().value(0).value<QDBusVariant>().variant().toBool();
}

void StatusNotifierHost::changed()
{
    if (isThere())
        Q_EMIT appeared();
}

} // namespace tarvelo::platform
