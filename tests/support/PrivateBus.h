#pragma once

#include <QByteArray>
#include <QProcess>
#include <QString>
#include <QTemporaryDir>

namespace tarvelo::tests {

// A session bus of the test's own, on which nobody is until the test puts someone there. While it
// lives, this process and its children take it for the session's; Qt asks for the session's bus
// once in a process, so that a test class has one for all its tests, made before anything is
// called.
class PrivateBus final
{
public:
    PrivateBus();
    PrivateBus(const PrivateBus &) = delete;
    PrivateBus &operator=(const PrivateBus &) = delete;
    ~PrivateBus();

    QString address() const { return QString::fromUtf8(m_address); }
    bool isRunning() const { return m_daemon.state() == QProcess::Running; }
    // From now on the bus starts `command` for whoever calls `service`; an empty one takes it back.
    bool setActivatable(const QString &service, const QString &command) const;

private:
    bool writeConfiguration() const;

    QTemporaryDir m_folder;
    QByteArray m_addressBefore;
    QByteArray m_address;
    QProcess m_daemon;
};

} // namespace tarvelo::tests
