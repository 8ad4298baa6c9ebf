#include "store/JournalWriter.h"

#include "platform/DurableFiles.h"
#include "platform/PrivateFiles.h"
#include "platform/SignalMask.h"
#include "store/LectureJournal.h"

#include <QByteArray>

#include <system_error>
#include <utility>

namespace tarvelo::store {

JournalWriter::JournalWriter(const QString &path)
    : m_path(path)
    , m_file(path)
{
}

JournalWriter::~JournalWriter()
{
    {
        const std::lock_guard lock(m_mutex);
        m_isAtEnd = true;
    }
    m_changed.notify_all();
    if (m_thread.joinable())
        m_thread.join();
}

void JournalWriter::write(const QByteArray &content)
{
    // What stood there before is of this lecture, or of none that counts.
    m_isLatestOurs = writeLatest(m_path, content) || m_isLatestOurs;
    if (!m_isLatestOurs)
        removeLatest(m_path);
    ask({true, [this, content] { m_isWritten = m_file.replace(content); }});
}

void JournalWriter::remove()
{
    removeLatestOfThis();
    ask({false, [this] {
             platform::syncFolderOf(m_path);
             m_file.remove();
         }});
}

void JournalWriter::renameTo(const QString &path)
{
    removeLatestOfThis();
    ask({false, [this, path] {
             platform::syncFolderOf(m_path);
             platform::createFileIfMissing(m_path);
             m_file.renameTo(path);
         }});
}

void JournalWriter::removeLatestOfThis()
{
    m_isLatestOurs = false;
    removeLatest(m_path);
}

void JournalWriter::removeOther(const QString &path)
{
    ask({false, [path] { platform::removeDurably(path); }});
}

bool JournalWriter::flush()
{
    std::unique_lock lock(m_mutex);
    m_changed.wait(lock, [this] { return m_tasks.empty() && !m_isBusy; });
    return m_isWritten;
}

std::optional<bool> JournalWriter::isWritten()
{
    const std::lock_guard lock(m_mutex);
    return m_tasks.empty() && !m_isBusy ? std::optional(m_isWritten) : std::nullopt;
}

void JournalWriter::ask(Task task)
{
    {
        const std::lock_guard lock(m_mutex);
        if (task.writes && !m_tasks.empty() && m_tasks.back().writes)
            m_tasks.pop_back();
        m_tasks.push_back(std::move(task));
    }
    m_changed.notify_all();
    if (m_thread.joinable())
        return;
    try {
        const platform::AllSignalsBlocked blocked;
        m_thread = std::thread([this] { work(); });
    } catch (const std::system_error &) {
        // Slower, and as safe: done here.
        m_tasks.front().run();
        m_tasks.clear();
    }
}

void JournalWriter::work()
{
    std::unique_lock lock(m_mutex);
    for (;;) {
        m_changed.wait(lock, [this] { return !m_tasks.empty() || m_isAtEnd; });
        if (m_tasks.empty())
            return;
        const Task task = std::move(m_tasks.front());
        m_tasks.pop_front();
        m_isBusy = true;
        lock.unlock();
        task.run();
        lock.lock();
        m_isBusy = false;
        m_changed.notify_all();
    }
}

} // namespace tarvelo::store
