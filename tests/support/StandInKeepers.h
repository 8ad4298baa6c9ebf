#pragma once

#include "support/StandInServices.h"

#include <QDBusUnixFileDescriptor>

#include <memory>
#include <vector>

namespace tarvelo::tests {

// The login service of a system, as far as sleep goes: who asks gets the end of a pipe, and holds
// sleep off until that end is closed wherever it is.
class StandInLogin final : public StandInService
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.login1.Manager")

public:
    explicit StandInLogin(const QString &busAddress, Manner manner = Manner::Answers);
    ~StandInLogin() override;

    // Each as kinds, who, why, manner.
    QList<QStringList> asked;
    // What a user may not hold off, as in the rights that a system gives.
    QString refused;

    // How many hold sleep off now.
    int holders() const;
    // Gives the last one who was kept waiting what was asked for, or not.
    void answerAfterAll();
    void refuseAfterAll();

public Q_SLOTS:
    QDBusUnixFileDescriptor Inhibit(const QString &kinds, const QString &who, const QString &why,
                                    const QString &manner);

private:
    QDBusUnixFileDescriptor newLock();

    std::vector<int> m_readingEnds;
    QDBusMessage m_waiting;
};

// What a portal hands out, to be closed.
class StandInRequest final : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Request")

public:
    bool isClosed = false;

public Q_SLOTS:
    void Close() { isClosed = true; }
};

// The desktop's portal, as far as sleep goes.
class StandInSleepPortal final : public StandInService
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Inhibit")

public:
    struct Asked
    {
        QString parentWindow;
        uint kinds;
        QVariantMap options;
    };

    explicit StandInSleepPortal(const QString &busAddress, Manner manner = Manner::Answers);

    QList<Asked> asked;

    int holders() const;
    void answerAfterAll();

public Q_SLOTS:
    QDBusObjectPath Inhibit(const QString &parentWindow, uint kinds, const QVariantMap &options);

private:
    QDBusObjectPath newRequest();

    std::vector<std::unique_ptr<StandInRequest>> m_requests;
    QDBusMessage m_waiting;
};

} // namespace tarvelo::tests
