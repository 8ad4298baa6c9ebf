#pragma once

#include "store/Integrity.h"

#include <QObject>
#include <QString>

#include <condition_variable>
#include <mutex>
#include <thread>

struct sqlite3;

namespace tarvelo::store {

// Looks at every page of a database file on a thread of its own, which ends with this object at
// once. It takes no lock, so that no write fails because of it; a write that falls into it can make
// an intact file look damaged. The signal comes on the main thread, which all else is for too.
class IntegrityCheck final : public QObject
{
    Q_OBJECT

public:
    explicit IntegrityCheck(const QString &file);
    ~IntegrityCheck() override;

Q_SIGNALS:
    void finished(tarvelo::store::Integrity integrity);
    // From the thread.
    void threadEnded();

private:
    void run(const QString &file);
    void end(Integrity integrity);
    Integrity look(sqlite3 *database);

    std::mutex m_mutex;
    std::condition_variable m_hasEnded;
    bool m_isWanted = true;
    bool m_isRunning = true;
    Integrity m_integrity = Integrity::Unknown;
    sqlite3 *m_database = nullptr; // while it is asked
    std::thread m_thread;
};

} // namespace tarvelo::store
