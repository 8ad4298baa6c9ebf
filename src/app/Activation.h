#pragma once

#include "platform/DelayedCall.h"

#include <QObject>

#include <chrono>

namespace tarvelo::platform {
class Clock;
}

namespace tarvelo::app {

// Tells when the user comes to the application from another one. Between two of our own windows
// the focus is nobody's for a moment, which must not count: the main window would come back each
// time it is closed beside another one.
class Activation final : public QObject
{
    Q_OBJECT

public:
    static constexpr std::chrono::milliseconds FocusChange{300};

    explicit Activation(platform::Clock &clock);

    // To be told of every change of the application's state.
    void stateChanged(Qt::ApplicationState state);

Q_SIGNALS:
    void becameActive();

private:
    bool m_active = false;
    platform::DelayedCall m_resign;
};

} // namespace tarvelo::app
