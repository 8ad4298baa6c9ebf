#include "audio/engine/BackgroundSync.h"

#include "audio/engine/OutputFile.h"

#include <chrono>
#include <system_error>

namespace tarvelo::engine {

BackgroundSync::BackgroundSync(OutputFile &file)
    : m_file(file)
{
}

void BackgroundSync::begin()
{
    const auto sync = [this] { return m_file.sync(); };
    try {
        m_outcome = std::async(std::launch::async, sync);
    } catch (const std::system_error &) {
        m_outcome = std::async(std::launch::deferred, sync);
        m_outcome.wait();
    }
}

std::optional<bool> BackgroundSync::outcome()
{
    const bool hasEnded = isUnderWay() && m_outcome.wait_for(std::chrono::seconds::zero()) ==
                                              std::future_status::ready;
    return hasEnded ? std::optional(m_outcome.get()) : std::nullopt;
}

std::optional<bool> BackgroundSync::wait()
{
    return isUnderWay() ? std::optional(m_outcome.get()) : std::nullopt;
}

} // namespace tarvelo::engine
