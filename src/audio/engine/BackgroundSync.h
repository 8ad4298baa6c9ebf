#pragma once

#include <future>
#include <optional>

namespace tarvelo::engine {

class OutputFile;

// Forces a file to the disk on a thread of its own, so that nobody who writes has to wait for a
// disk that takes its time: what waits in memory meanwhile is lost when the program is killed. One
// at a time.
class BackgroundSync final
{
public:
    // `file` outlives this object, whose end waits for a sync that is under way.
    explicit BackgroundSync(OutputFile &file);

    // Of all that was written until now; not while one is under way. On the calling thread where
    // the system has no other.
    void begin();
    bool isUnderWay() const { return m_outcome.valid(); }
    // Of the one that was begun, once, when it has ended: whether it succeeded.
    std::optional<bool> outcome();
    // The same, and waits for it; null when none was begun.
    std::optional<bool> wait();

private:
    OutputFile &m_file;
    std::future<bool> m_outcome;
};

} // namespace tarvelo::engine
