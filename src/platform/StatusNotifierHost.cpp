#include "platform/StatusNotifierHost.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>

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
    connect(watcher, &QDBusServiceWatcher::serviceRegistered, this, &StatusNotifierHost::ask);
    // The watcher may be there before the host is.
    bus.connect(Watcher, Path, Watcher, QStringLiteral("StatusNotifierHostRegistered"), this,
                SLOT(ask()));
    ask();
}

void StatusNotifierHost::ask()
{
    QDBusMessage question = QDBusMessage::createMethodCall(
        Watcher, Path, QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"));
    question.setArguments({Watcher, QStringLiteral("IsStatusNotifierHostRegistered")});
    question.setAutoStartService(false);
    auto *call =
        new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(question), this);
    connect(call, &QDBusPendingCallWatcher::finished, this, [this, call] {
        const QDBusPendingReply<QDBusVariant> answer = *call;
        call->deleteLater();
        if (answer.isValid() && answer.value().variant().toBool())
            Q_EMIT appeared();
    });
}

} // namespace tarvelo::platform
