#pragma once

#include "platform/SteadyFile.h"

#include <QString>

#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <optional>
#include <thread>

namespace tarvelo::store {

// Keeps the journal of the open lecture on the disk. A thread of its own does it, one thing after
// the other, so that a slow disk keeps nobody waiting but who asks to; until it has, the content
// stands beside it (latestOf()). Everything here is for the main thread alone.
class JournalWriter final
{
public:
    explicit JournalWriter(const QString &path);
    JournalWriter(const JournalWriter &) = delete;
    JournalWriter &operator=(const JournalWriter &) = delete;
    // Does first what was asked.
    ~JournalWriter();

    // What waits to be written is forgotten: only the last content counts.
    void write(const QByteArray &content);
    void remove();
    // The journal, or an empty file when there is none, gets another name of its folder.
    void renameTo(const QString &path);
    void removeOther(const QString &path);

    // Waits until all of that is done. False when the last content is not on the disk.
    bool flush();
    // Whether the last content is on the disk; null as long as there is something to do.
    std::optional<bool> isWritten();

private:
    struct Task
    {
        bool writes;
        std::function<void()> run;
    };

    void removeLatestOfThis();
    void ask(Task task);
    void work();

    const QString m_path;
    platform::SteadyFile m_file; // the thread's
    bool m_isLatestOurs = false; // what stands beside the journal
    bool m_isWritten = false;    // the thread's until it has nothing to do
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::deque<Task> m_tasks;
    bool m_isBusy = false;
    bool m_isAtEnd = false;
    std::thread m_thread; // begins with the first task
};

} // namespace tarvelo::store
