#pragma once

#include "app/Request.h"
#include "platform/SessionObject.h"

#include <QObject>
#include <QStringList>
#include <QVariantList>
#include <QVariantMap>

namespace tarvelo::app {

// The program on the session bus, as menus and launchers know programs: they start it there, bring
// it forward, and ask for what its entry in the menu offers besides.
class DesktopService final : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    static constexpr const char *Name = "org.tarvelo.Tarvelo";
    static constexpr const char *Path = "/org/tarvelo/Tarvelo";

    DesktopService();

Q_SIGNALS:
    void requested(tarvelo::app::Request request);

public Q_SLOTS:
    // Called from the bus. What a platform says besides is not needed.
    void Activate(const QVariantMap &platformData);
    // There are no files to open; the program comes forward.
    void Open(const QStringList &uris, const QVariantMap &platformData);
    // An action that is not offered does nothing.
    void ActivateAction(const QString &name, const QVariantList &parameters,
                        const QVariantMap &platformData);

private:
    const platform::SessionObject m_onBus;
};

} // namespace tarvelo::app
