#pragma once

#include "audio/engine/AudioEngine.h"
#include "audio/engine/AudioPlayer.h"
#include "audio/engine/SoundBytes.h"
#include "audio/engine/SpeakerRecording.h"
#include "support/PrivateSoundServer.h"

#include <QCoreApplication>
#include <QProcess>
#include <QTemporaryDir>

#include <chrono>
#include <cstdio>
#include <ctime>

namespace tarvelo::bench {

// Seconds of a clock that all processes share.
inline double now()
{
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch())
        .count();
}

// In a process of its own: plays the file at the rate until it is killed. Says when the click was:
// what follows is what the program does then.
inline int play(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments(); // --play FILE RATE
    const auto engine = engine::makeSoundServerEngine();
    std::printf("%.6f\n", now());
    std::fflush(stdout);
    const auto player = engine->makePlayer(engine::soundBytesOf(arguments.at(2)));
    if (!player || !player->prepareToPlay() || !player->play())
        return 1;
    if (const float rate = arguments.at(3).toFloat(); rate != 1.0F)
        player->setRate(rate);
    return QCoreApplication::exec();
}

// The commands that play the file: this program, and what is laid beside it.
inline QStringList ourPlayer(const QString &file, double rate = 1)
{
    return {QCoreApplication::applicationFilePath(), QStringLiteral("--play"), file,
            QString::number(rate)};
}
inline QStringList ffplay(const QString &file, const QStringList &options = {})
{
    return QStringList{QStringLiteral("ffplay"), QStringLiteral("-nodisp"), QStringLiteral("-v"),
                       QStringLiteral("quiet")} +
           options + QStringList{file};
}

// The whole of a program that compares players. `compare` has a sound server, and a folder for
// lectures; it says whether the result is as wanted.
inline int comparePlayers(int argc, char **argv, bool (*compare)(const QString &folder))
{
    if (argc == 4) // --play FILE RATE
        return play(argc, argv);
    const QCoreApplication application(argc, argv);
    const QTemporaryDir folder;
    tests::PrivateSoundServer server;
    if (!server.start())
        return 2;
    qputenv("SDL_AUDIODRIVER", "pulseaudio");
    return compare(folder.path()) ? 0 : 1;
}

// A player as a process of its own, from its start to the end of this object.
class Playing final
{
public:
    explicit Playing(const QStringList &command)
        : m_isHeard(m_speaker.start())
    {
        m_process.setStandardErrorFile(QProcess::nullDevice());
        m_started = now();
        m_process.start(command.first(), command.mid(1));
        while (m_isHeard && !m_speaker.hearsSound())
            m_isHeard = m_speaker.waitForMore() && now() - m_started < 30;
        m_heard = now();
    }
    Playing(const Playing &) = delete;
    Playing &operator=(const Playing &) = delete;
    ~Playing()
    {
        m_process.kill();
        m_process.waitForFinished();
    }

    bool isHeard() const { return m_isHeard; }
    double secondsFromStart() const { return m_heard - m_started; }
    // From what our own player calls the click.
    double secondsFromClick()
    {
        m_process.waitForReadyRead();
        return m_heard - m_process.readLine().trimmed().toDouble();
    }

    double processorSeconds() const
    {
        clockid_t clock{};
        timespec time{};
        if (clock_getcpuclockid(static_cast<pid_t>(m_process.processId()), &clock) != 0 ||
            clock_gettime(clock, &time) != 0)
            return -1;
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) / 1e9;
    }

    // "VmRSS" is what it holds now, "VmHWM" the most that it ever held.
    double mebibytes(const char *which) const
    {
        QFile file(QStringLiteral("/proc/%1/status").arg(m_process.processId()));
        if (!file.open(QIODevice::ReadOnly))
            return -1;
        for (const QByteArray &line : file.readAll().split('\n'))
            if (line.startsWith(which))
                return line.mid(line.indexOf(':') + 1).simplified().split(' ').first().toDouble() /
                       1024;
        return -1;
    }

private:
    tests::SpeakerRecording m_speaker;
    QProcess m_process;
    bool m_isHeard;
    double m_started = 0;
    double m_heard = 0;
};

} // namespace tarvelo::bench
