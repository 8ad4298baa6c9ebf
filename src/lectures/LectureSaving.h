#pragma once

#include "lectures/UnsavedTexts.h"

#include <QString>

#include <functional>

namespace tarvelo::platform {
class Clock;
}
namespace tarvelo::store {
struct GoneLectures;
class LectureDatabase;
class LectureInfoItem;
struct LecturesBack;
} // namespace tarvelo::store

namespace tarvelo::lectures {

// Saves the texts of a lecture that was changed, wherever it is stored by then: in its row, in the
// copy to which it has gone, or in the journal of one whose row waits. What nothing can take now is
// kept and tried again.
class LectureSaving final
{
public:
    // Both objects outlive this one.
    struct Collaborators
    {
        platform::Clock &clock;
        store::LectureDatabase &database;
        // Of a lecture whose row waits to be stored: what it is to have, and whether it waits.
        std::function<void(const store::LectureInfoItem &, const QString &, const QString &)>
            changeWaiting;
        std::function<bool(const store::LectureInfoItem &)> isWaiting;
    };

    explicit LectureSaving(Collaborators collaborators);
    LectureSaving(const LectureSaving &) = delete;
    LectureSaving &operator=(const LectureSaving &) = delete;

    // True also when that cannot be asked.
    bool isStored(const store::LectureInfoItem &lecture) const;

    // The lecture itself has the texts afterwards, whether or not they could be saved yet.
    void save(store::LectureInfoItem &lecture, const QString &subject, const QString &notes);
    // A lecture that was read from the store gets the texts of it that could not be saved yet.
    void putUnsavedInto(store::LectureInfoItem &lecture) const;
    // It was deleted, and what was to be saved of it goes along.
    void forget(const store::LectureInfoItem &lecture);
    // What waits for them goes to the copy in which they are.
    void lecturesHaveGone(const store::GoneLectures &gone);
    // And to their rows again.
    void lecturesCameBack(const store::LecturesBack &back);
    // A lecture that had gone has its row again, if it is among those.
    void giveRowBack(store::LectureInfoItem &lecture, const store::LecturesBack &back) const;

private:
    bool trySave(const store::LectureInfoItem &lecture, const QString &subject,
                 const QString &notes);

    Collaborators m_with;
    UnsavedTexts m_unsavedTexts;
};

} // namespace tarvelo::lectures
