#pragma once

#include <QByteArray>
#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QList>
#include <QStringList>
#include <QVariantMap>

namespace tarvelo::tests {

// A service of the desktop on a session bus, on a connection of its own, which writes down what
// reached it. It is there as long as the object lives.
class StandInService : public QObject, protected QDBusContext
{
    Q_OBJECT

public:
    enum class Manner { Answers, Refuses, KeepsSilent };

    StandInService(const QString &busAddress, const QString &name, const QString &path,
                   Manner manner);
    ~StandInService() override;

    bool isThere() const { return m_isThere; }

protected:
    // Whether an answer is to be given; otherwise it has been refused, or the asker is kept
    // waiting.
    bool answer();
    QDBusConnection bus() const { return QDBusConnection(m_connectionName); }

private:
    QString m_connectionName;
    QString m_name;
    Manner m_manner;
    bool m_isThere = false;
};

// The desktop's portal, as far as mails go.
class StandInPortal final : public StandInService
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Email")

public:
    struct Mail
    {
        QString parentWindow;
        QVariantMap options; // without the files
        QStringList paths;   // where the descriptors lead to
        QList<QByteArray> contents;
    };

    explicit StandInPortal(const QString &busAddress, Manner manner = Manner::Answers);

    QList<Mail> mails;

public Q_SLOTS:
    QDBusObjectPath ComposeEmail(const QString &parentWindow, const QVariantMap &options);
};

class StandInFileManager final : public StandInService
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.FileManager1")

public:
    struct Showing
    {
        QStringList addresses;
        QString startupId;
    };

    explicit StandInFileManager(const QString &busAddress, Manner manner = Manner::Answers);

    QList<Showing> showings;

public Q_SLOTS:
    void ShowItems(const QStringList &addresses, const QString &startupId);
};

} // namespace tarvelo::tests
