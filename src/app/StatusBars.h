#pragma once

#include "platform/StatusNotifierHost.h"

#include <QAbstractNativeEventFilter>
#include <QObject>

namespace tarvelo::app {

// Tells of the status bars of the desktop that can hold an item: one that takes items over the
// session bus, or one that embeds windows, as it is on X11.
class StatusBars final : public QObject, public QAbstractNativeEventFilter
{
    Q_OBJECT

public:
    StatusBars();
    ~StatusBars() override;

    // Whether there is no need to wait for appeared(): a bar that embeds windows is there, or the
    // screen knows nothing of status bars.
    bool isKnown() const;

Q_SIGNALS:
    void appeared();

protected:
    bool nativeEventFilter(const QByteArray &eventType, void *message, qintptr *result) override;

private:
    platform::StatusNotifierHost m_host;
};

} // namespace tarvelo::app
