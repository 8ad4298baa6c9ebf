#include "platform/MailComposer.h"

#include "platform/DetachedCommand.h"

#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusUnixFileDescriptor>
#include <QFile>
#include <QStringList>
#include <QUrl>
#include <QVariant>
#include <QVariantMap>

#include <fcntl.h>
#include <sys/stat.h>

namespace tarvelo::platform {

namespace {

using Descriptors = QList<QDBusUnixFileDescriptor>;

// Invalid unless `path` is a plain file that can be read. What a path leads to may be anything, a
// pipe that nobody writes into among them, and must not keep us waiting.
QDBusUnixFileDescriptor opened(const QString &path)
{
    QDBusUnixFileDescriptor descriptor;
    const int file =
        ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
    if (file < 0)
        return descriptor;
    descriptor.giveFileDescriptor(file);
    struct stat status = {};
    const bool isFile = ::fstat(file, &status) == 0 && S_ISREG(status.st_mode);
    return isFile ? descriptor : QDBusUnixFileDescriptor();
}

QDBusMessage callWith(const QString &body, const QDBusUnixFileDescriptor &file)
{
    QVariantMap options{{QStringLiteral("body"), body}};
    if (file.isValid()) {
        qDBusRegisterMetaType<Descriptors>();
        options[QStringLiteral("attachment_fds")] = QVariant::fromValue(Descriptors{file});
    }
    return portalCall(QStringLiteral("Email"), QStringLiteral("ComposeEmail"), {options});
}

// The body stands in an address, percent-encoded: the command is a script, and an echo of its
// shell may take a backslash in plain words for its own, which would cut notes off at "\cos". An
// address is also no option, whatever it begins with, and has its own line end.
QString addressWith(const QString &body)
{
    QString lines = body;
    const QString lineEnd = QStringLiteral("\r\n");
    lines.replace(lineEnd, QStringLiteral("\n")).replace(u'\n', lineEnd);
    return QStringLiteral("mailto:?body=") + QString::fromLatin1(QUrl::toPercentEncoding(lines));
}

void runMailCommand(const QString &body, const QString &readablePath)
{
    QStringList arguments{QStringLiteral("--utf8")};
    if (!readablePath.isEmpty())
        arguments += {QStringLiteral("--attach"), readablePath};
    arguments += addressWith(body);
    runDetached(QStringLiteral("xdg-email"), arguments);
}

} // namespace

void DesktopMailComposer::compose(const StyledText &text, const QUrl &attachment)
{
    const QString body = plainText(text);
    const QString path = attachment.toLocalFile();
    const QDBusUnixFileDescriptor file = opened(path);
    callSessionService(callWith(body, file), m_patience,
                       [body, readablePath = file.isValid() ? path : QString()] {
                           runMailCommand(body, readablePath);
                       });
}

} // namespace tarvelo::platform
