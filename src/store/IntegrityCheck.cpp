#include "store/IntegrityCheck.h"

#include "platform/SignalMask.h"

#include <QUrl>

#include <sqlite3.h>

#include <chrono>
#include <cstring>
#include <memory>
#include <system_error>
#include <utility>

namespace tarvelo::store {

namespace {

struct Closer
{
    void operator()(sqlite3 *database) const { sqlite3_close(database); }
};
struct Finaliser
{
    void operator()(sqlite3_stmt *statement) const { sqlite3_finalize(statement); }
};

// A file that is said not to change is read without locks, and without following its journal.
std::unique_ptr<sqlite3, Closer> openUnlocked(const QString &file)
{
    const QByteArray name = "file:" + QUrl::toPercentEncoding(file, "/") + "?immutable=1";
    sqlite3 *database = nullptr;
    const int result = sqlite3_open_v2(name.constData(), &database,
                                       SQLITE_OPEN_READONLY | SQLITE_OPEN_URI, nullptr);
    std::unique_ptr<sqlite3, Closer> opened(database);
    return result == SQLITE_OK ? std::move(opened) : nullptr;
}

Integrity byResult(int result)
{
    return result == SQLITE_CORRUPT || result == SQLITE_NOTADB ? Integrity::Damaged
                                                               : Integrity::Unknown;
}

} // namespace

IntegrityCheck::IntegrityCheck(const QString &file)
try {
    connect(
        this, &IntegrityCheck::threadEnded, this,
        [this] {
            std::unique_lock lock(m_mutex);
            const Integrity integrity = m_integrity;
            lock.unlock();
            Q_EMIT finished(integrity);
        },
        Qt::QueuedConnection);
    const platform::AllSignalsBlocked blocked;
    m_thread = std::thread([this, file] { run(file); });
} catch (const std::system_error &) {
    end(Integrity::Unknown);
}

// Interrupting what has not begun yet does nothing, so it is done until the thread is at its end.
IntegrityCheck::~IntegrityCheck()
{
    std::unique_lock lock(m_mutex);
    m_isWanted = false;
    while (m_isRunning) {
        if (m_database)
            sqlite3_interrupt(m_database);
        m_hasEnded.wait_for(lock, std::chrono::milliseconds(5));
    }
    lock.unlock();
    if (m_thread.joinable())
        m_thread.join();
}

void IntegrityCheck::run(const QString &file)
{
    const auto database = openUnlocked(file);
    end(database ? look(database.get()) : Integrity::Unknown);
}

void IntegrityCheck::end(Integrity integrity)
{
    const std::lock_guard lock(m_mutex);
    m_isRunning = false;
    m_hasEnded.notify_all();
    m_integrity = integrity;
    if (m_isWanted)
        Q_EMIT threadEnded();
}

Integrity IntegrityCheck::look(sqlite3 *database)
{
    {
        const std::lock_guard lock(m_mutex);
        if (!m_isWanted)
            return Integrity::Unknown;
        m_database = database;
    }
    sqlite3_stmt *handle = nullptr;
    int result = sqlite3_prepare_v2(database, "PRAGMA quick_check(1)", -1, &handle, nullptr);
    const std::unique_ptr<sqlite3_stmt, Finaliser> statement(handle);
    if (result == SQLITE_OK)
        result = sqlite3_step(statement.get());
    Integrity integrity = byResult(result);
    if (result == SQLITE_ROW) {
        const auto *text = reinterpret_cast<const char *>(sqlite3_column_text(statement.get(), 0));
        integrity = text && std::strcmp(text, "ok") == 0 ? Integrity::Intact : Integrity::Damaged;
    }
    const std::lock_guard lock(m_mutex);
    m_database = nullptr;
    return integrity;
}

} // namespace tarvelo::store
