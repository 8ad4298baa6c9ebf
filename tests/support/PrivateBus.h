#pragma once

#include <QByteArray>
#include <QProcess>
#include <QString>
#include <QTemporaryDir>

namespace tarvelo::tests {

// A bus of the test's own, on which nobody is until the test puts someone there. While it lives,
// this process and its children take it for the session's or the system's; where both are is asked
// for once in a process, so that a test class has one for all its tests, made before anything is
// called.
class PrivateBus final
{
public:
    enum class Kind { Session, System };

    explicit PrivateBus(Kind kind = Kind::Session);
    PrivateBus(const PrivateBus &) = delete;
    PrivateBus &operator=(const PrivateBus &) = delete;
    ~PrivateBus();

    QString address() const { return QString::fromUtf8(m_address); }
    bool isRunning() const { return m_daemon.state() == QProcess::Running; }
    // From now on a session bus starts `command` for whoever calls `service`; an empty one takes it
    // back.
    bool setActivatable(const QString &service, const QString &command) const;

private:
    bool writeConfiguration() const;

    QTemporaryDir m_folder;
    const char *m_variable;
    QByteArray m_addressBefore;
    QByteArray m_address;
    QProcess m_daemon;
};

} // namespace tarvelo::tests
