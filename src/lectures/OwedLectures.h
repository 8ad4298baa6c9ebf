#pragma once

#include "audio/LeftLectures.h"
#include "lectures/LectureList.h"
#include "platform/DelayedCall.h"
#include "store/LectureInfoItem.h"

#include <QHash>
#include <QStringList>

#include <chrono>
#include <functional>
#include <memory>

namespace tarvelo::audio {
class TakePlaces;
}
namespace tarvelo::platform {
class Clock;
}
namespace tarvelo::store {
struct LectureJournal;
}

namespace tarvelo::lectures {

class DayList;

// The lectures that are done and whose row or recording could not be stored yet, in this process or
// in one that died. They are tried again until they are stored; what is changed in them meanwhile
// is stored with them, and one that is deleted is not stored any more.
class OwedLectures final
{
public:
    // Between two tries to store what the disk had no room for.
    static constexpr std::chrono::seconds RetryInterval{10};

    // All of them outlive this object.
    struct Collaborators
    {
        platform::Clock &clock;
        const DayList &dayList;
        audio::LeftLectures &left;
        audio::TakePlaces &places;
        // Some are stored by now; whether the list lacks one of them.
        std::function<void(bool doesListLackOne)> someAreStored;
    };

    explicit OwedLectures(const Collaborators &collaborators);
    OwedLectures(const OwedLectures &) = delete;
    OwedLectures &operator=(const OwedLectures &) = delete;

    // To be called once the places of takes are open: what a process that died left is stored soon.
    void start();
    // What the journal says is to be stored as that lecture, also when it cannot be written.
    void add(const store::LectureJournal &journal, const Lecture &lecture);
    bool has(const store::LectureInfoItem &lecture) const;
    // Where the recordings of all of them are to lie.
    QStringList recordings() const;
    // The row of one of them is to have these texts.
    void change(const store::LectureInfoItem &lecture, const QString &subject,
                const QString &notes);
    // Nothing of it is to be stored any more.
    void remove(const store::LectureInfoItem &lecture);

    // Something may be to be stored; the next try comes soon.
    void storeSoon();
    // One last try, of which nobody hears.
    void storeAtTheEnd() { storeWhatCanBe(); }

private:
    struct Owed
    {
        std::weak_ptr<store::LectureInfoItem> lecture;
        qint64 row = store::LectureInfoItem::NoRow;
        QString path = {};
    };
    struct StoredNow
    {
        bool isAny = false;
        bool doesListLackOne = false;
    };

    // Empty when nothing of it is owed.
    QString journalIdOf(const store::LectureInfoItem &lecture) const;
    void writeChanges();
    void discardDeleted();
    StoredNow storeWhatCanBe();
    void store();

    Collaborators m_with;
    QHash<QString, Owed> m_owed; // by the journal's ID
    // Those that the journal does not have yet.
    QHash<QString, audio::LeftLectures::Texts> m_changed;
    QStringList m_deleted; // whose journal goes as soon as it can
    platform::DelayedCall m_store;
};

} // namespace tarvelo::lectures
