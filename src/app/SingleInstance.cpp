#include "app/SingleInstance.h"

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
    if (m_lock.isLocked())
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
            asking->disconnectFromServer();
            Q_EMIT reopenRequested();
        }
    });
    m_server.listen(m_socket);
}

bool SingleInstance::askFirstToReopen(std::chrono::milliseconds patience) const
{
    const QDeadlineTimer deadline(patience);
    QLocalSocket socket;
    // The first one may have its lock and not yet its socket. Connecting is all there is to ask;
    // it answers by hanging up.
    do {
        socket.connectToServer(m_socket);
        if (socket.waitForConnected(static_cast<int>(deadline.remainingTime())))
            return socket.state() == QLocalSocket::UnconnectedState ||
                   socket.waitForDisconnected(static_cast<int>(deadline.remainingTime()));
        QThread::msleep(static_cast<unsigned long>(RetryInterval.count()));
    } while (!deadline.hasExpired());
    return false;
}

} // namespace tarvelo::app
