#pragma once

#include "audio/RecordingSearch.h"

#include <QList>
#include <QObject>
#include <QStringList>
#include <QVariantList>

#include <functional>
#include <memory>
#include <optional>

namespace tarvelo::platform {
class Dates;
}
namespace tarvelo::store {
class LectureDatabase;
}

namespace tarvelo::audio {

// The files of sound in the audio folder that no lecture has, and the way to lectures for them.
// None is ever moved, changed or removed. Main thread only.
class UnlistedRecordings final : public QObject
{
    Q_OBJECT

public:
    struct Sources
    {
        std::function<QString()> audioFolder; // with a slash at its end
        // The paths of those that this process has promised to lectures whose rows are still to be
        // stored, written down or not.
        std::function<QStringList()> promised;
    };

    // All of it outlives this object.
    UnlistedRecordings(store::LectureDatabase &database, const platform::Dates &dates,
                       Sources sources);
    ~UnlistedRecordings() override;

    // Of the last search that ended.
    int count() const { return static_cast<int>(m_found.size()); }
    bool isSearching() const { return m_search != nullptr; }

    // Looks afresh, and nothing is found until then.
    void search();
    // Makes a lecture for each, all of them or none, and gives how many: with what a copy of the
    // database knows of the recording, else without a subject. Null when that failed. What has a
    // lecture by now gets no other.
    std::optional<int> bringBack();

Q_SIGNALS:
    void searched();

private:
    QStringList unlisted() const;
    std::optional<QStringList> listed(const QStringList &names) const;
    std::optional<QStringList> promised() const;
    QVariantList rowFor(const FoundRecording &recording) const;

    store::LectureDatabase &m_database;
    const platform::Dates &m_dates;
    Sources m_sources;
    QList<FoundRecording> m_found;
    std::unique_ptr<RecordingSearch> m_search;
};

} // namespace tarvelo::audio
