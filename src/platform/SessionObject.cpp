#include "platform/SessionObject.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QVariantList>

namespace tarvelo::platform {

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

SessionObject::SessionObject(const QString &name, const QString &path, QObject &object)
    : m_name(name)
    , m_path(path)
{
    constexpr uint DoNotQueue = 4;
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (bus.isConnected() && bus.registerObject(m_path, &object, QDBusConnection::ExportAllSlots))
        bus.send(toBus("RequestName", {m_name, DoNotQueue}));
}

SessionObject::~SessionObject()
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return;
    bus.unregisterObject(m_path);
    bus.send(toBus("ReleaseName", {m_name}));
}

} // namespace tarvelo::platform
