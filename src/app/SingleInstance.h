#pragma once

#include "app/Request.h"

#include <QLocalServer>
#include <QLockFile>
#include <QObject>

#include <chrono>

class QLocalSocket;

namespace tarvelo::app {

// Sees to it that a user has the program running once: the first start holds a lock, and a later
// one tells it over a local socket what was asked of that start. Both lie in the session's runtime
// folder, so that no session bus is needed. When the folder cannot be written, every start is the
// first.
class SingleInstance final : public QObject
{
    Q_OBJECT

public:
    explicit SingleInstance(const QString &folder, QObject *parent = nullptr);

    // $XDG_RUNTIME_DIR, or what stands in for it.
    static QString standardFolder();

    bool isFirst() const { return m_isFirst; }

    // Asks the first one. Gives up after `patience`, when it does not answer.
    bool askFirst(Request request,
                  std::chrono::milliseconds patience = std::chrono::seconds(2)) const;

Q_SIGNALS:
    void requested(tarvelo::app::Request request);

private:
    void listen();
    void hear(QLocalSocket &asking);

    QString m_socket;
    QLockFile m_lock;
    QLocalServer m_server;
    bool m_isFirst = false;
};

} // namespace tarvelo::app
