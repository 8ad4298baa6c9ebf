#include "app/SingleInstance.h"

#include "platform/PrivateFiles.h"

#include <QDeadlineTimer>
#include <QLocalSocket>
#include <QStandardPaths>
#include <QThread>

namespace tarvelo::app {

namespace {
constexpr std::chrono::milliseconds RetryInterval{20};
}

SingleInstance::SingleInstance(const QString &folder, QObject *parent)
    : QObject(parent)
    , m_socket(folder + QStringLiteral("/tarvelo.socket"))
    , m_lock(folder + QStringLiteral("/tarvelo.lock"))
{
    // However long the program runs, its lock does not grow old: only that of a process that is
    // gone may be taken over.
    m_lock.setStaleLockTime(0);
    m_isFirst = m_lock.tryLock(0) || m_lock.error() != QLockFile::LockFailedError;
    if (!m_lock.isLocked())
        return;
    platform::keepFilePrivate(m_lock.fileName());
    listen();
}

QString SingleInstance::standardFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
}

void SingleInstance::listen()
{
    // Left behind by a process that was killed: the lock says that nobody listens there.
    QLocalServer::removeServer(m_socket);
    m_server.setSocketOptions(QLocalServer::UserAccessOption);
    connect(&m_server, &QLocalServer::newConnection, this, [this] {
        while (QLocalSocket *asking = m_server.nextPendingConnection()) {
            connect(asking, &QLocalSocket::disconnected, asking, &QObject::deleteLater);
            connect(asking, &QLocalSocket::readyRead, this, [this, asking] { hear(*asking); });
            hear(*asking);
        }
    });
    m_server.listen(m_socket);
}

// One line is all there is to ask; it is answered by hanging up.
void SingleInstance::hear(QLocalSocket &asking)
{
    if (!asking.canReadLine())
        return;
    const auto request = requestOf(asking.readLine().trimmed());
    asking.disconnectFromServer();
    if (request)
        Q_EMIT requested(*request);
}

bool SingleInstance::askFirst(Request request, std::chrono::milliseconds patience) const
{
    const QDeadlineTimer deadline(patience);
    const auto timeLeft = [&deadline] { return static_cast<int>(deadline.remainingTime()); };
    QLocalSocket socket;
    // The first one may have its lock and not yet its socket.
    do {
        socket.connectToServer(m_socket);
        if (socket.waitForConnected(timeLeft())) {
            socket.write(wordOf(request) + '\n');
            socket.waitForBytesWritten(timeLeft());
            return socket.state() == QLocalSocket::UnconnectedState ||
                   socket.waitForDisconnected(timeLeft());
        }
        QThread::msleep(static_cast<unsigned long>(RetryInterval.count()));
    } while (!deadline.hasExpired());
    return false;
}

} // namespace tarvelo::app
