#pragma once

#include <QObject>
#include <QString>

#include <chrono>
#include <memory>

class QDBusConnection;
class QThread;

namespace tarvelo::platform {

// Keeps the computer awake while something runs that must not be cut off. Nothing is awaited and no
// failure is told.
class SleepInhibitor
{
public:
    SleepInhibitor() = default;
    SleepInhibitor(const SleepInhibitor &) = delete;
    SleepInhibitor &operator=(const SleepInhibitor &) = delete;
    virtual ~SleepInhibitor() = default;

    // However often it is asked, one release() lets go.
    virtual void hold() = 0;
    virtual void release() = 0;
};

// Asks the login service of the system to stay awake with the lid closed, or at least with it open;
// without it, or when it refuses both, the desktop's portal. Going lets go, and so does the end of
// the process, however it comes. One in a process; main thread only.
class DesktopSleepInhibitor final : public SleepInhibitor
{
public:
    // `reason` is what the desktop tells a user who wants the computer to sleep. A login service
    // that keeps silent for longer than `patience` is given up.
    explicit DesktopSleepInhibitor(const QString &reason,
                                   std::chrono::milliseconds patience = std::chrono::seconds(10));
    ~DesktopSleepInhibitor() override;

    void hold() override;
    void release() override;

private:
    class Hold;

    void connectToSystem();

    QString m_reason;
    std::chrono::milliseconds m_patience;
    // Whoever answers late finds it gone.
    std::shared_ptr<Hold> m_hold;
    // To the system's bus; whoever makes the connection owns it too until then.
    std::shared_ptr<QDBusConnection> m_system;
    std::unique_ptr<QThread> m_connecting;
    QObject m_here;
};

} // namespace tarvelo::platform
