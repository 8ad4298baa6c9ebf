#include "platform/Workspace.h"

#include "platform/DetachedCommand.h"

#include <QDBusMessage>
#include <QFileInfo>
#include <QStringList>
#include <QUrl>

namespace tarvelo::platform {

namespace {

// A whole path begins with a slash, so that the command cannot take it for an option.
void open(const QString &path)
{
    if (path.startsWith(u'/'))
        runDetached(QStringLiteral("xdg-open"), {path});
}

// File managers compare addresses by their letters, and would not find a path with a doubled slash
// among the files of its folder.
QString addressOf(const QUrl &file)
{
    return QString::fromUtf8(file.adjusted(QUrl::NormalizePathSegments).toEncoded());
}

QStringList addressesOf(const QList<QUrl> &urls)
{
    QStringList addresses;
    for (const QUrl &url : urls) {
        if (url.path().startsWith(u'/'))
            addresses.append(addressOf(url));
    }
    return addresses;
}

} // namespace

void DesktopWorkspace::activateFileViewerSelectingURLs(const QList<QUrl> &urls)
{
    const QStringList addresses = addressesOf(urls);
    if (addresses.isEmpty())
        return;
    QDBusMessage call = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.FileManager1"),
        QStringLiteral("/org/freedesktop/FileManager1"),
        QStringLiteral("org.freedesktop.FileManager1"), QStringLiteral("ShowItems"));
    const QString noStartupId;
    call.setArguments({addresses, noStartupId});
    callSessionService(call, m_patience, [file = QUrl(addresses.first()).toLocalFile()] {
        open(QFileInfo(file).absolutePath());
    });
}

void DesktopWorkspace::openFileWithApplication(const QString &path)
{
    open(path);
}

void DesktopWorkspace::openFile(const QString &path)
{
    open(path);
}

// An address with a scheme begins with a letter, so that the command cannot take it for an option.
void DesktopWorkspace::openURL(const QUrl &url)
{
    if (url.isValid() && !url.scheme().isEmpty())
        runDetached(QStringLiteral("xdg-open"), {QString::fromUtf8(url.toEncoded())});
}

} // namespace tarvelo::platform
