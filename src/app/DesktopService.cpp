#include "app/DesktopService.h"

namespace tarvelo::app {

DesktopService::DesktopService()
    : m_onBus(QString::fromLatin1(Name), QString::fromLatin1(Path), *this)
{
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
