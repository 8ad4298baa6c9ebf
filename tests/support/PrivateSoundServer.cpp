#include "support/PrivateSoundServer.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QRegularExpression>

#include <csignal>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

namespace tarvelo::tests {

namespace {

constexpr char CookieVariable[] = "PULSE_COOKIE";
constexpr qsizetype CookieSize = 256;
constexpr int LongEnough = 20000;       // milliseconds, for a machine that has other things to do
constexpr int TimedOut = 128 + SIGKILL; // what the command of that name ends with

// One that nobody listens at, as of now; 0 when there is none.
int freePort()
{
    const int probe = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_in place{};
    place.sin_family = AF_INET;
    place.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof place;
    auto *const address = reinterpret_cast<sockaddr *>(&place);
    const bool isFound =
        ::bind(probe, address, size) == 0 && ::getsockname(probe, address, &size) == 0;
    ::close(probe);
    return isFound ? ntohs(place.sin_port) : 0;
}

bool writeCookie(const QString &path, char content)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) &&
           file.write(QByteArray(CookieSize, content)) == CookieSize;
}

QByteArray answerOf(const QStringList &question)
{
    QProcess pactl;
    pactl.start(QStringLiteral("pactl"), question);
    pactl.waitForFinished(LongEnough);
    return pactl.exitCode() == 0 ? pactl.readAllStandardOutput() : QByteArray();
}

void load(const QStringList &module)
{
    answerOf(QStringList(QStringLiteral("load-module")) + module);
}

// What microphone and speaker are made of. Both play what they have taken: when one takes some back
// for who comes in later, what listens to it hears that moment twice or not at all.
QStringList soundModules(const PrivateSoundServer::Options &options)
{
    return {QStringLiteral("module-null-sink sink_name=speaker norewinds=1"),
            QStringLiteral("module-null-sink sink_name=mic norewinds=1 rate=%1 channels=%2")
                .arg(options.rate)
                .arg(options.channels),
            QStringLiteral("module-remap-source source_name=microphone master=mic.monitor")};
}

QStringList sinkInputs()
{
    return {QStringLiteral("list"), QStringLiteral("short"), QStringLiteral("sink-inputs")};
}

void end(QProcess &process)
{
    if (process.state() == QProcess::NotRunning)
        return;
    process.kill();
    process.waitForFinished(LongEnough);
}

} // namespace

PrivateSoundServer::PrivateSoundServer()
    : m_serverBefore(qgetenv("PULSE_SERVER"))
    , m_cookieBefore(qgetenv(CookieVariable))
{
    announce();
}

void PrivateSoundServer::announce() const
{
    qputenv("PULSE_SERVER", "unix:" + QFile::encodeName(socketPath()));
}

PrivateSoundServer::~PrivateSoundServer()
{
    kill();
    if (m_serverBefore.isEmpty())
        qunsetenv("PULSE_SERVER");
    else
        qputenv("PULSE_SERVER", m_serverBefore);
    if (m_cookieBefore.isEmpty())
        qunsetenv(CookieVariable);
    else
        qputenv(CookieVariable, m_cookieBefore);
}

bool PrivateSoundServer::writeScript(const Options &options) const
{
    QString script;
    if (options.hasMicrophone) {
        for (const QString &module : soundModules(options))
            script += QStringLiteral("load-module %1\n").arg(module);
        script += QStringLiteral("set-default-source microphone\nset-default-sink speaker\n");
    }
    // Last, so that who can connect finds everything.
    script += QStringLiteral("load-module module-native-protocol-unix auth-anonymous=1 "
                             "socket=%1\n")
                  .arg(socketPath());
    QFile file(m_folder.filePath(QStringLiteral("server.pa")));
    return file.open(QIODevice::WriteOnly) && file.write(script.toUtf8()) > 0;
}

bool PrivateSoundServer::start(const Options &options)
{
    if (!m_folder.isValid() || !writeScript(options))
        return false;
    // Whoever a test pretends to be may talk to it.
    QFile::setPermissions(m_folder.path(), QFile::Permissions(0x7755));
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char *name : {"XDG_RUNTIME_DIR", "PULSE_RUNTIME_PATH", "PULSE_STATE_PATH"})
        environment.insert(QString::fromLatin1(name), m_folder.path());
    // Where it may, it goes before others, as a session's own server does.
    m_server.setProcessEnvironment(environment);
    m_server.setStandardErrorFile(QProcess::nullDevice());
    m_server.setStandardOutputFile(QProcess::nullDevice());
    m_server.start(QStringLiteral("pulseaudio"),
                   {QStringLiteral("-n"), QStringLiteral("--daemonize=no"),
                    QStringLiteral("--system=no"), QStringLiteral("--use-pid-file=no"),
                    QStringLiteral("--exit-idle-time=-1"), QStringLiteral("--disable-shm=yes"),
                    QStringLiteral("--realtime=no"), QStringLiteral("--high-priority=yes"),
                    QStringLiteral("-F"), m_folder.filePath(QStringLiteral("server.pa"))});
    m_options = options;
    m_isIntact = m_server.waitForStarted(LongEnough) &&
                 waitUntil({QStringLiteral("info")}, "Server") &&
                 (!options.hasMicrophone || keepAwake());
    return m_isIntact;
}

// A sink that nobody plays into works in blocks of two seconds, and would swallow the first two of
// every test: silence with a short latency, and a listener, keep it going.
bool PrivateSoundServer::keepAwake()
{
    const QList<QStringList> keepers{
        {QStringLiteral("--playback"), QStringLiteral("-d"), QStringLiteral("mic"),
         QStringLiteral("--latency-msec=20"), QStringLiteral("--raw"), QStringLiteral("/dev/zero")},
        {QStringLiteral("--record"), QStringLiteral("-d"), QStringLiteral("microphone"),
         QStringLiteral("--latency-msec=20"), QStringLiteral("--raw"),
         QStringLiteral("/dev/null")}};
    for (const QStringList &arguments : keepers) {
        auto &keeper = m_helpers.emplace_back(std::make_unique<QProcess>());
        keeper->setStandardErrorFile(QProcess::nullDevice());
        keeper->start(QStringLiteral("pacat"), arguments);
    }
    const QString list = QStringLiteral("list");
    const QString brief = QStringLiteral("short");
    return waitUntil(sinkInputs(), "s16le") &&
           waitUntil({list, brief, QStringLiteral("source-outputs")}, "s16le") &&
           waitUntil({list, brief, QStringLiteral("sources")}, "microphone[^\n]*RUNNING");
}

// Asks again and again until the answer matches; each asking waits for a process, so that the loop
// is not a busy one.
bool PrivateSoundServer::waitUntil(const QStringList &question, const QByteArray &answer)
{
    const QRegularExpression wanted(QString::fromLatin1(answer));
    const QDeadlineTimer deadline(LongEnough);
    while (m_server.state() == QProcess::Running && !deadline.hasExpired()) {
        if (wanted.match(QString::fromUtf8(answerOf(question))).hasMatch())
            return true;
        m_server.waitForFinished(20);
    }
    return false;
}

void PrivateSoundServer::kill()
{
    m_isIntact = false;
    end(m_server);
    endHelpers();
    QFile::remove(socketPath());
}

void PrivateSoundServer::endHelpers()
{
    if (m_speaker)
        end(*m_speaker);
    m_speaker.reset();
    for (const auto &keeper : m_helpers)
        end(*keeper);
    m_helpers.clear();
}

bool PrivateSoundServer::pullOutMicrophone()
{
    m_isIntact = false;
    answerOf({QStringLiteral("unload-module"), QStringLiteral("module-remap-source")});
    return waitUntil({QStringLiteral("list"), QStringLiteral("short"), QStringLiteral("sources")},
                     "^(?!.*microphone)");
}

// Over a socket of the file system whoever starts a server is let in; over a network a cookie
// counts.
bool PrivateSoundServer::lockUsOut()
{
    const int port = freePort();
    const QString theirs = m_folder.filePath(QStringLiteral("server.cookie"));
    const QString ours = m_folder.filePath(QStringLiteral("our.cookie"));
    if (!writeCookie(theirs, 's') || !writeCookie(ours, 'o') ||
        answerOf({QStringLiteral("load-module"), QStringLiteral("module-native-protocol-tcp"),
                  QStringLiteral("listen=127.0.0.1"), QStringLiteral("port=%1").arg(port),
                  QStringLiteral("auth-cookie=") + theirs})
            .isEmpty())
        return false;
    const QStringList question{QStringLiteral("info")};
    qputenv("PULSE_SERVER", "tcp:127.0.0.1:" + QByteArray::number(port));
    qputenv(CookieVariable, QFile::encodeName(theirs));
    const bool letsOthersIn = !answerOf(question).isEmpty();
    qputenv(CookieVariable, QFile::encodeName(ours));
    return letsOthersIn && answerOf(question).isEmpty();
}

bool PrivateSoundServer::plugInMicrophone()
{
    load({QStringLiteral("module-remap-source"), QStringLiteral("source_name=microphone"),
          QStringLiteral("master=mic.monitor")});
    return chooseMicrophone(QStringLiteral("microphone"));
}

bool PrivateSoundServer::plugInAnotherMicrophone()
{
    m_isIntact = false;
    load({QStringLiteral("module-remap-source"), QStringLiteral("source_name=other"),
          QStringLiteral("master=mic.monitor")});
    return waitUntil({QStringLiteral("list"), QStringLiteral("short"), QStringLiteral("sources")},
                     "other");
}

bool PrivateSoundServer::chooseMicrophone(const QString &name)
{
    answerOf({QStringLiteral("set-default-source"), name});
    return waitUntil({QStringLiteral("info")}, "Default Source: " + name.toLatin1());
}

bool PrivateSoundServer::pullOutEverything()
{
    m_isIntact = false;
    endHelpers();
    for (const QString &kind :
         {QStringLiteral("module-remap-source"), QStringLiteral("module-null-sink")})
        answerOf({QStringLiteral("unload-module"), kind});
    return waitUntil({QStringLiteral("info")}, "Default Source: \\(null\\)");
}

bool PrivateSoundServer::plugInEverything()
{
    for (const QString &module : soundModules(m_options))
        load(module.split(QLatin1Char(' ')));
    answerOf({QStringLiteral("set-default-sink"), QStringLiteral("speaker")});
    return chooseMicrophone(QStringLiteral("microphone")) && keepAwake();
}

bool PrivateSoundServer::hang()
{
    m_isIntact = false;
    ::kill(static_cast<pid_t>(m_server.processId()), SIGSTOP);
    QProcess asking;
    asking.start(QStringLiteral("timeout"), {QStringLiteral("--signal=KILL"), QStringLiteral("1"),
                                             QStringLiteral("pactl"), QStringLiteral("info")});
    asking.waitForFinished(LongEnough);
    return asking.exitStatus() == QProcess::CrashExit || asking.exitCode() == TimedOut;
}

void PrivateSoundServer::goOn()
{
    ::kill(static_cast<pid_t>(m_server.processId()), SIGCONT);
}

bool PrivateSoundServer::speak(const QString &wavPath)
{
    if (!silence())
        return false;
    m_speaker = std::make_unique<QProcess>();
    m_speaker->setStandardErrorFile(QProcess::nullDevice());
    m_speaker->start(QStringLiteral("paplay"),
                     {QStringLiteral("-d"), QStringLiteral("mic"), wavPath});
    // Two streams go into the microphone then: the silence and this one.
    return waitUntil(sinkInputs(), "\\n.*\\n");
}

bool PrivateSoundServer::silence()
{
    announce();
    if (!m_speaker)
        return true;
    end(*m_speaker);
    m_speaker.reset();
    return waitUntil(sinkInputs(), "^[^\\n]*\\n$");
}

bool PrivateSoundServer::speakBlocking(const QString &wavPath)
{
    return QProcess::execute(QStringLiteral("paplay"),
                             {QStringLiteral("-d"), QStringLiteral("mic"), wavPath}) == 0;
}

} // namespace tarvelo::tests
