#pragma once

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

} // namespace tarvelo::platform
