#include "platform/Workspace.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QFileInfo>
#include <QProcess>
#include <QStringList>

namespace tarvelo::platform {

namespace {

void openFolderOf(const QUrl &url)
{
    const QFileInfo file(url.toLocalFile());
    // Started detached with nothing of ours on its streams: what the opener prints is not ours to
    // show.
    QProcess opener;
    opener.setProgram(QStringLiteral("xdg-open"));
    opener.setArguments({file.absolutePath()});
    opener.setStandardOutputFile(QProcess::nullDevice());
    opener.setStandardErrorFile(QProcess::nullDevice());
    opener.startDetached();
}

} // namespace

void DesktopWorkspace::activateFileViewerSelectingURLs(const QList<QUrl> &urls)
{
    if (urls.isEmpty())
        return;
    QStringList addresses;
    for (const QUrl &url : urls)
        addresses.append(QString::fromUtf8(url.toEncoded()));

    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) {
        openFolderOf(urls.first());
        return;
    }
    QDBusMessage call = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.FileManager1"),
        QStringLiteral("/org/freedesktop/FileManager1"),
        QStringLiteral("org.freedesktop.FileManager1"), QStringLiteral("ShowItems"));
    call.setArguments({addresses, QString()});
    auto *watcher = new QDBusPendingCallWatcher(bus.asyncCall(call));
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, watcher,
                     [watcher, first = urls.first()] {
                         if (QDBusPendingReply<>(*watcher).isError())
                             openFolderOf(first);
                         watcher->deleteLater();
                     });
}

} // namespace tarvelo::platform
