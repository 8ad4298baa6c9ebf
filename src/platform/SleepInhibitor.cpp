#include "platform/SleepInhibitor.h"

#include "platform/SessionService.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusUnixFileDescriptor>
#include <QStringList>
#include <QThread>
#include <QVariantMap>

#include <limits>
#include <utility>

namespace tarvelo::platform {

namespace {

const QString SystemBus = QStringLiteral("tarvelo-sleep");
constexpr std::chrono::milliseconds EndOfConnecting{1000};

// A user's rights may leave out the lid.
const QStringList KindsOfSleep{QStringLiteral("sleep:idle:handle-lid-switch"),
                               QStringLiteral("sleep:idle")};

QDBusMessage loginCall(const QString &kinds, const QString &reason)
{
    QDBusMessage call = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.login1"), QStringLiteral("/org/freedesktop/login1"),
        QStringLiteral("org.freedesktop.login1.Manager"), QStringLiteral("Inhibit"));
    call.setArguments({kinds, QStringLiteral("Tarvelo"), reason, QStringLiteral("block")});
    return call;
}

QDBusMessage inhibitCall(const QString &reason)
{
    constexpr uint SuspendAndIdle = 4 | 8;
    return portalCall(QStringLiteral("Inhibit"), QStringLiteral("Inhibit"),
                      {SuspendAndIdle, QVariantMap{{QStringLiteral("reason"), reason}}});
}

// Sent and forgotten. A portal that has gone has let go, and need not be started for this.
void closeRequest(const QString &path)
{
    QDBusMessage call = QDBusMessage::createMethodCall(
        portalService(), path, QStringLiteral("org.freedesktop.portal.Request"),
        QStringLiteral("Close"));
    call.setAutoStartService(false);
    QDBusConnection::sessionBus().send(call);
}

template <typename Then>
void whenAnswered(const QDBusPendingCall &call, Then then)
{
    auto *watcher = new QDBusPendingCallWatcher(call);
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, watcher, [watcher, then] {
        watcher->deleteLater();
        then(*watcher);
    });
}

} // namespace

// What one hold() asks for and gets. It lets go by going; an answer that comes afterwards is let go
// at once.
class DesktopSleepInhibitor::Hold final : public std::enable_shared_from_this<Hold>
{
public:
    Hold(QString reason, std::chrono::milliseconds patience)
        : m_reason(std::move(reason))
        , m_patience(static_cast<int>(patience.count()))
    {
    }
    Hold(const Hold &) = delete;
    Hold &operator=(const Hold &) = delete;
    ~Hold()
    {
        if (!m_request.isEmpty())
            closeRequest(m_request);
    }

    void ask(const QDBusConnection &system) { askLoginService(system, KindsOfSleep); }

private:
    void askLoginService(const QDBusConnection &system, const QStringList &kinds);
    void askPortal();

    QString m_reason;
    int m_patience; // milliseconds
    QDBusUnixFileDescriptor m_lock;
    QString m_request;
};

void DesktopSleepInhibitor::Hold::askLoginService(const QDBusConnection &system,
                                                  const QStringList &kinds)
{
    if (kinds.isEmpty() || !system.isConnected()) {
        askPortal();
        return;
    }
    whenAnswered(
        system.asyncCall(loginCall(kinds.first(), m_reason), m_patience),
        [weak = weak_from_this(), system, others = kinds.mid(1)](const QDBusPendingCall &call) {
            const QDBusPendingReply<QDBusUnixFileDescriptor> answer = call;
            const auto hold = weak.lock();
            if (hold && answer.isError())
                hold->askLoginService(system, others);
            else if (hold)
                hold->m_lock = answer.value();
        });
}

// Waited for without end: an answer that nobody heard would keep the computer awake until we end.
void DesktopSleepInhibitor::Hold::askPortal()
{
    const QDBusConnection session = QDBusConnection::sessionBus();
    if (!session.isConnected())
        return;
    constexpr int WithoutEnd = std::numeric_limits<int>::max();
    whenAnswered(session.asyncCall(inhibitCall(m_reason), WithoutEnd),
                 [weak = weak_from_this()](const QDBusPendingCall &call) {
                     const QDBusPendingReply<QDBusObjectPath> answer = call;
                     if (answer.isError())
                         return;
                     if (const auto hold = weak.lock())
                         hold->m_request = answer.value().path();
                     else
                         closeRequest(answer.value().path());
                 });
}

DesktopSleepInhibitor::DesktopSleepInhibitor(const QString &reason,
                                             std::chrono::milliseconds patience)
    : m_reason(reason)
    , m_patience(patience)
{
}

// A thread that still waits for a bus that hangs is left behind, as it would keep us from ending.
DesktopSleepInhibitor::~DesktopSleepInhibitor()
{
    if (m_connecting && !m_connecting->wait(EndOfConnecting))
        static_cast<void>(m_connecting.release());
}

void DesktopSleepInhibitor::hold()
{
    if (m_hold)
        return;
    m_hold = std::make_shared<Hold>(m_reason, m_patience);
    if (!m_connecting && m_system && m_system->isConnected())
        m_hold->ask(*m_system);
    else
        connectToSystem();
}

void DesktopSleepInhibitor::release()
{
    m_hold.reset();
}

// Connecting waits for the bus to answer, so that it is not done here; nor is the connection asked
// for by its name, which would wait as well. It is made again when there was no bus, or it has
// gone.
void DesktopSleepInhibitor::connectToSystem()
{
    if (m_connecting)
        return;
    m_system = std::make_shared<QDBusConnection>(QString());
    m_connecting.reset(QThread::create([system = m_system] {
        QDBusConnection::disconnectFromBus(SystemBus);
        *system = QDBusConnection::connectToBus(QDBusConnection::SystemBus, SystemBus);
    }));
    QObject::connect(m_connecting.get(), &QThread::finished, &m_here, [this] {
        m_connecting->wait();
        m_connecting.reset();
        if (m_hold)
            m_hold->ask(*m_system);
    });
    m_connecting->start();
}

} // namespace tarvelo::platform
