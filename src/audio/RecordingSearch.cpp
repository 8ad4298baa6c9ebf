#include "audio/RecordingSearch.h"

#include "audio/engine/SoundLength.h"
#include "platform/SignalMask.h"

#include <QFileInfo>

#include <system_error>

namespace tarvelo::audio {

RecordingSearch::RecordingSearch(const QStringList &paths)
try {
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
    QList<FoundRecording> found;
    for (const QString &path : paths) {
        if (!m_isWanted)
            return;
        const double seconds = engine::secondsOfSound(path);
        if (seconds > 0)
            found.append({path, QFileInfo(path).lastModified(), seconds});
    }
    // This object waits for the thread before it goes, and takes what is queued for it along.
    QMetaObject::invokeMethod(
        this, [this, found] { Q_EMIT finished(found); }, Qt::QueuedConnection);
}

} // namespace tarvelo::audio
