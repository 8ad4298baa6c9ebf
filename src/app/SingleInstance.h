#pragma once

#include <QLocalServer>
#include <QLockFile>
#include <QObject>

#include <chrono>

namespace tarvelo::app {

// Sees to it that a user has the program running once: the first start holds a lock, and a later
// one asks it over a local socket to come forward. Both lie in the session's runtime folder, so
// that no session bus is needed. When the folder cannot be written, every start is the first.
class SingleInstance final : public QObject
{
    Q_OBJECT

public:
    explicit SingleInstance(const QString &folder, QObject *parent = nullptr);

    // $XDG_RUNTIME_DIR, or what stands in for it.
    static QString standardFolder();

    bool isFirst() const { return m_isFirst; }

    // Asks the first one to reopen. Gives up after `patience`, when it does not answer.
    bool askFirstToReopen(std::chrono::milliseconds patience = std::chrono::seconds(2)) const;

Q_SIGNALS:
    void reopenRequested();

private:
    void listen();

    QString m_socket;
    QLockFile m_lock;
    QLocalServer m_server;
    bool m_isFirst = false;
};

} // namespace tarvelo::app
