#include "app/DesktopService.h"

#include <QDBusConnection>
#include <QDBusMessage>

namespace tarvelo::app {

namespace {

QDBusMessage toBus(const char *method, const QVariantList &arguments)
{
    QDBusMessage call = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"),
        QStringLiteral("org.freedesktop.DBus"), QString::fromLatin1(method));
    call.setArguments(arguments);
    return call;
}

} // namespace

DesktopService::DesktopService()
{
    // Who owns the name already keeps it.
    constexpr uint DoNotQueue = 4;
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (bus.isConnected() &&
        bus.registerObject(QString::fromLatin1(Path), this, QDBusConnection::ExportAllSlots))
        bus.send(toBus("RequestName", {QString::fromLatin1(Name), DoNotQueue}));
}

DesktopService::~DesktopService()
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return;
    bus.unregisterObject(QString::fromLatin1(Path));
    bus.send(toBus("ReleaseName", {QString::fromLatin1(Name)}));
}

void DesktopService::Activate(const QVariantMap &)
{
    Q_EMIT requested(Request::Reopen);
}

void DesktopService::Open(const QStringList &, const QVariantMap &)
{
    Q_EMIT requested(Request::Reopen);
}

void DesktopService::ActivateAction(const QString &name, const QVariantList &, const QVariantMap &)
{
    if (const auto request = requestOf(name.toUtf8()))
        Q_EMIT requested(*request);
}

} // namespace tarvelo::app
