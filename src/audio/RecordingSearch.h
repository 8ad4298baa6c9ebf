#pragma once

#include <QDateTime>
#include <QObject>
#include <QStringList>

#include <atomic>
#include <thread>

namespace tarvelo::audio {

struct FoundRecording
{
    QString path;
    QDateTime modified;
    double seconds = 0;
};

// Finds out which of the files hold sound, and how much, on a thread of its own: with hundreds of
// them it takes a while. The signal comes on the main thread, once. The thread ends with this
// object, after the file that it is at.
class RecordingSearch final : public QObject
{
    Q_OBJECT

public:
    explicit RecordingSearch(const QStringList &paths);
    ~RecordingSearch() override;

Q_SIGNALS:
    void finished(const QList<tarvelo::audio::FoundRecording> &recordings);
    // From the thread.
    void threadEnded();

private:
    void run(const QStringList &paths);

    std::atomic<bool> m_isWanted = true;
    QList<FoundRecording> m_found; // the thread's, until it has ended
    std::thread m_thread;
};

} // namespace tarvelo::audio
