#include "app/Activation.h"

namespace tarvelo::app {

Activation::Activation(platform::Clock &clock)
    : m_resign(clock, [this] { m_active = false; })
{
}

void Activation::stateChanged(Qt::ApplicationState state)
{
    m_resign.cancel();
    if (state != Qt::ApplicationActive) {
        m_resign.schedule(FocusChange);
        return;
    }
    const bool wasActive = m_active;
    m_active = true;
    if (!wasActive)
        Q_EMIT becameActive();
}

} // namespace tarvelo::app
