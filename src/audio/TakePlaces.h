#pragma once

#include "audio/LeftLectures.h"
#include "audio/TakeFolder.h"
#include "store/JournalWriter.h"
#include "store/LectureJournal.h"

#include <QString>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace tarvelo::audio {

class AudioFileLocations;

// Where the take of the next lecture lies with its journal: in the usual folder, unless another
// process has that, or something stands there that cannot be moved out of the way just now. Then it
// is a folder of its own, so that nothing is ever written over. It also holds, in memory, the
// journals that could not be written. Main thread only.
class TakePlaces final
{
public:
    // Both outlive this object.
    TakePlaces(AudioFileLocations &locations, LeftLectures &left);
    TakePlaces(const TakePlaces &) = delete;
    TakePlaces &operator=(const TakePlaces &) = delete;

    // To be called once the folders are there. What processes that died left is out of the way
    // then.
    void open();
    // For the next lecture, where one that could not be stored stands, or what could not be moved.
    void makeWay();
    bool ownsUsual() const { return m_ownsUsual; }
    const QString &path() const { return m_places.back().path; }
    // Null before open(), and where nothing can be written.
    store::JournalWriter *writer() const
    {
        return m_places.empty() ? nullptr : m_places.back().writer.get();
    }

    // The lecture of the present place is done and could not be stored. Until it is, what is known
    // of it is not forgotten, whether or not it can be written down.
    void addUnwritten(const store::LectureJournal &journal);
    // As long as it is not forgotten, its row is to have these texts; false once it is.
    bool changeUnwritten(const QString &id, const QString &subject, const QString &notes);
    // Nothing of it is to be stored any more, nor kept.
    void discardUnwritten(const QString &id);
    // A take stands in the present place that is of no lecture any more.
    void setOccupied();
    // Whether something waits for another try of the two below.
    bool hasOccupied() const;
    // Moves out of the way what stands in places that are not used now, and can be moved by now.
    void vacateOccupied();
    // Stores the lectures that could not even be written down; `stored` hears of each.
    void storeUnwritten(const std::function<void(const LeftLectures::Stored &)> &stored);

private:
    struct Place
    {
        QString path;
        std::unique_ptr<TakeFolder> folder = {};           // null when it is not ours
        std::unique_ptr<store::JournalWriter> writer = {}; // goes before the folder
        bool isOccupied = false;
        std::optional<store::LectureJournal> unwritten =
            {}; // as long as it is not known to be written
    };

    Place *placeOfUnwritten(const QString &id);
    static void removeJournal(const Place &place);
    void find();
    void use(std::unique_ptr<TakeFolder> folder);
    bool vacate(Place &place);
    void adoptLeft();

    AudioFileLocations &m_locations;
    LeftLectures &m_left;
    QString m_usual;
    bool m_ownsUsual = false;
    std::vector<Place> m_places; // the last one is used now
};

} // namespace tarvelo::audio
