#include "audio/RecordingSearch.h"

#include "audio/engine/SoundLength.h"
#include "platform/SignalMask.h"

#include <QFileInfo>

#include <system_error>

namespace tarvelo::audio {

RecordingSearch::RecordingSearch(const QStringList &paths)
try {
    connect(
        this, &RecordingSearch::threadEnded, this,
        [this] {
            m_thread.join();
            Q_EMIT finished(m_found);
        },
        Qt::QueuedConnection);
    const platform::AllSignalsBlocked blocked;
    m_thread = std::thread([this, paths] { run(paths); });
} catch (const std::system_error &) {
    m_isWanted = false;
}

RecordingSearch::~RecordingSearch()
{
    m_isWanted = false;
    if (m_thread.joinable())
        m_thread.join();
}

void RecordingSearch::run(const QStringList &paths)
{
    for (const QString &path : paths) {
        if (!m_isWanted)
            return;
        const double seconds = engine::secondsOfSound(path);
        if (seconds > 0)
            m_found.append({path, QFileInfo(path).lastModified(), seconds});
    }
    Q_EMIT threadEnded();
}

} // namespace tarvelo::audio
