#include "support/PrivateBus.h"

#include <QDir>
#include <QFile>

namespace tarvelo::tests {

namespace {

constexpr int LongEnough = 20000; // milliseconds, for a machine that has other things to do

bool write(const QString &path, const QString &text)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(text.toUtf8()) > 0;
}

} // namespace

PrivateBus::PrivateBus(Kind kind)
    : m_variable(kind == Kind::Session ? "DBUS_SESSION_BUS_ADDRESS" : "DBUS_SYSTEM_BUS_ADDRESS")
    , m_addressBefore(qgetenv(m_variable))
{
    if (!writeConfiguration())
        return;
    m_daemon.setStandardErrorFile(QProcess::nullDevice());
    m_daemon.start(QStringLiteral("dbus-daemon"),
                   {QStringLiteral("--config-file=") + m_folder.filePath(QStringLiteral("bus")),
                    QStringLiteral("--nofork"), QStringLiteral("--nopidfile"),
                    QStringLiteral("--print-address")});
    if (m_daemon.waitForStarted(LongEnough) && m_daemon.waitForReadyRead(LongEnough))
        m_address = m_daemon.readLine().trimmed();
    qputenv(m_variable, m_address);
}

PrivateBus::~PrivateBus()
{
    m_daemon.kill();
    m_daemon.waitForFinished(LongEnough);
    if (m_addressBefore.isEmpty())
        qunsetenv(m_variable);
    else
        qputenv(m_variable, m_addressBefore);
}

bool PrivateBus::writeConfiguration() const
{
    return write(m_folder.filePath(QStringLiteral("bus")),
                 QStringLiteral("<busconfig><type>session</type>"
                                "<listen>unix:path=%1/socket</listen>"
                                "<auth>EXTERNAL</auth>"
                                "<servicedir>%1/services</servicedir>"
                                "<policy context=\"default\">"
                                "<allow send_destination=\"*\" eavesdrop=\"true\"/>"
                                "<allow eavesdrop=\"true\"/><allow own=\"*\"/>"
                                "</policy></busconfig>\n")
                     .arg(m_folder.path())) &&
           QDir(m_folder.path()).mkdir(QStringLiteral("services"));
}

// The daemon reads its folder again when it is told to.
bool PrivateBus::setActivatable(const QString &service, const QString &command) const
{
    const QString path = m_folder.filePath(QStringLiteral("services/%1.service").arg(service));
    const QString text = QStringLiteral("[D-BUS Service]\nName=%1\nExec=%2\n");
    const bool done =
        command.isEmpty() ? QFile::remove(path) : write(path, text.arg(service, command));
    QProcess reload;
    reload.start(QStringLiteral("dbus-send"),
                 {QStringLiteral("--session"), QStringLiteral("--print-reply"),
                  QStringLiteral("--dest=org.freedesktop.DBus"), QStringLiteral("/"),
                  QStringLiteral("org.freedesktop.DBus.ReloadConfig")});
    return done && reload.waitForFinished(LongEnough) && reload.exitCode() == 0;
}

} // namespace tarvelo::tests
