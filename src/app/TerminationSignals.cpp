#include "app/TerminationSignals.h"

#include <QSocketNotifier>
#include <QtAlgorithms>

#include <atomic>
#include <cerrno>
#include <csignal>

#include <fcntl.h>
#include <unistd.h>

namespace tarvelo::app {

namespace {

constexpr std::array Signals{SIGTERM, SIGINT, SIGHUP};

std::atomic<int> s_writeEnd{-1};

// Next to nothing may be called in a signal handler; write() may.
void handleSignal(int)
{
    const int before = errno;
    const char byte = 0;
    if (::write(s_writeEnd, &byte, 1) < 0) {
        // A full pipe has a request in it already.
    }
    errno = before;
}

void installHandler(void (*handler)(int))
{
    struct sigaction action = {};
    action.sa_handler = handler;
    sigemptyset(&action.sa_mask);
    action.sa_flags = SA_RESTART;
    for (const int signal : Signals)
        ::sigaction(signal, &action, nullptr);
}

} // namespace

TerminationSignals::TerminationSignals(QObject *parent)
    : QObject(parent)
{
    if (::pipe2(m_pipe.data(), O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    s_writeEnd = m_pipe[1];
    auto *notifier = new QSocketNotifier(m_pipe[0], QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, &TerminationSignals::drain);
    installHandler(handleSignal);
}

TerminationSignals::~TerminationSignals()
{
    installHandler(SIG_DFL);
    s_writeEnd = -1;
    qDeleteAll(children());
    for (const int end : m_pipe) {
        if (end >= 0)
            ::close(end);
    }
}

void TerminationSignals::drain()
{
    std::array<char, 16> bytes{};
    while (::read(m_pipe[0], bytes.data(), bytes.size()) > 0) {
    }
    Q_EMIT terminationRequested();
}

} // namespace tarvelo::app
