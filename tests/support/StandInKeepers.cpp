#include "support/StandInKeepers.h"

#include <algorithm>
#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

namespace tarvelo::tests {

namespace {
const QString NoRight = QStringLiteral("no right to that");
}

StandInLogin::StandInLogin(const QString &busAddress, Manner manner)
    : StandInService(busAddress, QStringLiteral("org.freedesktop.login1"),
                     QStringLiteral("/org/freedesktop/login1"), manner)
{
}

StandInLogin::~StandInLogin()
{
    std::for_each(m_readingEnds.begin(), m_readingEnds.end(), ::close);
}

QDBusUnixFileDescriptor StandInLogin::newLock()
{
    int ends[2] = {-1, -1};
    QDBusUnixFileDescriptor lock;
    if (::pipe2(ends, O_CLOEXEC) != 0)
        return lock;
    m_readingEnds.push_back(ends[0]);
    lock.giveFileDescriptor(ends[1]);
    return lock;
}

int StandInLogin::holders() const
{
    return static_cast<int>(std::count_if(m_readingEnds.begin(), m_readingEnds.end(), [](int end) {
        pollfd state{end, POLLIN, 0};
        return ::poll(&state, 1, 0) == 0 || (state.revents & POLLHUP) == 0;
    }));
}

void StandInLogin::answerAfterAll()
{
    bus().send(m_waiting.createReply(QVariant::fromValue(newLock())));
}

void StandInLogin::refuseAfterAll()
{
    bus().send(m_waiting.createErrorReply(QDBusError::AccessDenied, NoRight));
}

QDBusUnixFileDescriptor StandInLogin::Inhibit(const QString &kinds, const QString &who,
                                              const QString &why, const QString &manner)
{
    asked.append({kinds, who, why, manner});
    m_waiting = message();
    if (!answer())
        return {};
    if (refused.isEmpty() || !kinds.contains(refused))
        return newLock();
    sendErrorReply(QDBusError::AccessDenied, NoRight);
    return {};
}

StandInSleepPortal::StandInSleepPortal(const QString &busAddress, Manner manner)
    : StandInService(busAddress, QStringLiteral("org.freedesktop.portal.Desktop"),
                     QStringLiteral("/org/freedesktop/portal/desktop"), manner)
{
}

QDBusObjectPath StandInSleepPortal::newRequest()
{
    const QString path =
        QStringLiteral("/org/freedesktop/portal/desktop/request/1_1/t%1").arg(m_requests.size());
    m_requests.push_back(std::make_unique<StandInRequest>());
    bus().registerObject(path, m_requests.back().get(), QDBusConnection::ExportAllSlots);
    return QDBusObjectPath(path);
}

int StandInSleepPortal::holders() const
{
    return static_cast<int>(std::count_if(m_requests.begin(), m_requests.end(),
                                          [](const auto &request) { return !request->isClosed; }));
}

void StandInSleepPortal::answerAfterAll()
{
    bus().send(m_waiting.createReply(QVariant::fromValue(newRequest())));
}

QDBusObjectPath StandInSleepPortal::Inhibit(const QString &parentWindow, uint kinds,
                                            const QVariantMap &options)
{
    asked.append({parentWindow, kinds, options});
    m_waiting = message();
    return answer() ? newRequest() : QDBusObjectPath();
}

} // namespace tarvelo::tests
