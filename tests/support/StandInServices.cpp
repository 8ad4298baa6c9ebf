#include "support/StandInServices.h"

#include <QDBusArgument>
#include <QDBusUnixFileDescriptor>
#include <QFile>
#include <QFileInfo>

#include <unistd.h>

namespace tarvelo::tests {

namespace {

using Descriptors = QList<QDBusUnixFileDescriptor>;

// From its start, wherever whoever handed it over had read to.
QByteArray contentOf(int descriptor)
{
    QByteArray content;
    QByteArray piece(65536, Qt::Uninitialized);
    for (ssize_t count = 1; count > 0;) {
        count = pread(descriptor, piece.data(), static_cast<size_t>(piece.size()), content.size());
        content.append(piece.constData(), qMax<ssize_t>(count, 0));
    }
    return content;
}

} // namespace

StandInService::StandInService(const QString &busAddress, const QString &name, const QString &path,
                               Manner manner)
    : m_connectionName(QStringLiteral("stand-in for ") + name)
    , m_name(name)
    , m_manner(manner)
{
    QDBusConnection bus = QDBusConnection::connectToBus(busAddress, m_connectionName);
    m_isThere = bus.registerObject(path, this, QDBusConnection::ExportAllSlots) &&
                bus.registerService(name);
}

StandInService::~StandInService()
{
    // The name is given back before anything else happens, so that the next test finds it free.
    QDBusConnection(m_connectionName).unregisterService(m_name);
    QDBusConnection::disconnectFromBus(m_connectionName);
}

bool StandInService::answer()
{
    if (m_manner == Manner::Refuses)
        sendErrorReply(QDBusError::UnknownMethod, QStringLiteral("not here"));
    if (m_manner == Manner::KeepsSilent)
        setDelayedReply(true);
    return m_manner == Manner::Answers;
}

StandInPortal::StandInPortal(const QString &busAddress, Manner manner)
    : StandInService(busAddress, QStringLiteral("org.freedesktop.portal.Desktop"),
                     QStringLiteral("/org/freedesktop/portal/desktop"), manner)
{
}

QDBusObjectPath StandInPortal::ComposeEmail(const QString &parentWindow, const QVariantMap &options)
{
    Mail mail{parentWindow, options, {}, {}};
    const QVariant files = mail.options.take(QStringLiteral("attachment_fds"));
    const auto descriptors =
        files.isValid() ? qdbus_cast<Descriptors>(files.value<QDBusArgument>()) : Descriptors();
    for (const QDBusUnixFileDescriptor &file : descriptors) {
        const int descriptor = file.fileDescriptor();
        mail.paths.append(
            QFileInfo(QStringLiteral("/proc/self/fd/%1").arg(descriptor)).symLinkTarget());
        mail.contents.append(contentOf(descriptor));
    }
    mails.append(mail);
    answer();
    return QDBusObjectPath(QStringLiteral("/org/freedesktop/portal/desktop/request/1_1/t"));
}

StandInFileManager::StandInFileManager(const QString &busAddress, Manner manner)
    : StandInService(busAddress, QStringLiteral("org.freedesktop.FileManager1"),
                     QStringLiteral("/org/freedesktop/FileManager1"), manner)
{
}

void StandInFileManager::ShowItems(const QStringList &addresses, const QString &startupId)
{
    showings.append({addresses, startupId});
    answer();
}

} // namespace tarvelo::tests
