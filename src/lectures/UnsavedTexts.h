#pragma once

#include "platform/DelayedCall.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <chrono>

namespace tarvelo::platform {
class Clock;
}
namespace tarvelo::store {
struct GoneLectures;
class LectureDatabase;
class LectureInfoItem;
struct LecturesBack;
class Sqlite;
} // namespace tarvelo::store

namespace tarvelo::lectures {

// What was written into stored lectures while the database could not take it, since the disk was
// full or another program held the file. It is tried again every RetryInterval, and once more at
// the end, by an update that resets nothing.
class UnsavedTexts final
{
public:
    static constexpr std::chrono::seconds RetryInterval{10};

    // Both outlive this object.
    UnsavedTexts(store::LectureDatabase &database, platform::Clock &clock);
    UnsavedTexts(const UnsavedTexts &) = delete;
    UnsavedTexts &operator=(const UnsavedTexts &) = delete;
    ~UnsavedTexts();

    // `lecture` as it is stored. Only the last texts of a lecture count.
    void keep(const store::LectureInfoItem &lecture, const QString &subject, const QString &notes);
    // They were saved after all, or replaced.
    void forget(const store::LectureInfoItem &lecture);
    // What waits for them is to be saved in the copy in which they are.
    void lecturesHaveGone(const store::GoneLectures &gone);
    // And in their rows again.
    void lecturesCameBack(const store::LecturesBack &back);
    // A lecture that was read from the store gets those that wait for it.
    void putInto(store::LectureInfoItem &lecture) const;

private:
    struct Texts
    {
        qint64 id;
        QString copyPath; // of one that has gone
        QString audioPath;
        QStringList storedNotes; // those that may be stored by now
        QString subject;
        QString notes;
    };

    static bool areOf(const Texts &texts, const store::LectureInfoItem &lecture);
    void saveAll();
    bool save(const Texts &texts, store::Sqlite *database) const;

    store::LectureDatabase &m_database;
    QList<Texts> m_texts;
    platform::DelayedCall m_saveAll;
};

} // namespace tarvelo::lectures
