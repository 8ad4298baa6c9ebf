#pragma once

#include <QVariantList>

#include <chrono>
#include <functional>

class QDBusMessage;

namespace tarvelo::platform {

// How long a service of the session may take to answer, its start included. One that hangs is
// given up then, though it may still do what it was asked for.
inline constexpr std::chrono::milliseconds PatienceWithServices = std::chrono::seconds(10);

// Calls a service on the session bus and does not wait for it. `otherwise` runs, later or at once,
// when there is no bus, no such service, or no good answer in time.
void callSessionService(const QDBusMessage &call, std::chrono::milliseconds patience,
                        std::function<void()> otherwise);

// The portal of the desktop: its name on the session bus, and a call of one of its interfaces, for
// no window of ours.
QString portalService();
QDBusMessage portalCall(const QString &interface, const QString &method,
                        const QVariantList &arguments);

} // namespace tarvelo::platform
