#pragma once

#include <QProcess>
#include <QTemporaryDir>

#include <memory>
#include <vector>

namespace tarvelo::tests {

// A sound server of the test's own, with a microphone that hears what is played into it and a
// speaker that can be listened to. While it lives, this process and its children take it for the
// session's sound server. Needs no system service and runs as any user.
class PrivateSoundServer final
{
public:
    struct Options
    {
        int rate = 44100;
        int channels = 2;
        bool hasMicrophone = true;

        bool operator==(const Options &) const = default;
    };

    PrivateSoundServer();
    ~PrivateSoundServer();
    PrivateSoundServer(const PrivateSoundServer &) = delete;
    PrivateSoundServer &operator=(const PrivateSoundServer &) = delete;

    // It runs, and nobody killed it or pulled anything out since it was made.
    bool isIntact() const { return m_isIntact; }
    QString socketPath() const { return m_folder.filePath(QStringLiteral("native")); }
    // The name of the source that hears what the program plays.
    static QString speakerMonitor() { return QStringLiteral("speaker.monitor"); }

    // Returns when sound flows through the microphone.
    bool start() { return start(Options()); }
    bool start(const Options &options);
    // Once it runs: from now on this process and its children find it at a door that lets nobody in
    // without the server's own cookie, and have another.
    bool lockUsOut();
    // Ends the server at once, as a crash would.
    void kill();
    bool pullOutMicrophone();
    bool plugInMicrophone();
    // A second one, which hears the same.
    bool plugInAnotherMicrophone();
    // The default one from now on: "microphone" or "other".
    bool chooseMicrophone(const QString &name);
    // Microphone and speaker, so that not even a monitor is left to listen to.
    bool pullOutEverything();
    bool plugInEverything();
    // Stands still with all that is connected to it, until it goes on. True when it answers nobody.
    bool hang();
    void goOn();
    // Plays the sound file into the microphone, and nothing else any more; returns when the player
    // has its place there.
    bool speak(const QString &wavPath);
    // Ends what speak() began.
    bool silence();
    // The same, but returns when it has been played; the event loop stands still until then.
    bool speakBlocking(const QString &wavPath);

private:
    void announce() const;
    bool writeScript(const Options &options) const;
    bool waitUntil(const QStringList &question, const QByteArray &answer);
    bool keepAwake();
    void endHelpers();

    QTemporaryDir m_folder;
    QByteArray m_serverBefore;
    QByteArray m_cookieBefore;
    Options m_options;
    QProcess m_server;
    std::vector<std::unique_ptr<QProcess>> m_helpers;
    std::unique_ptr<QProcess> m_speaker;
    bool m_isIntact = false;
};

} // namespace tarvelo::tests
