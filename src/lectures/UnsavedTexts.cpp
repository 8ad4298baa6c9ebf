#include "lectures/UnsavedTexts.h"

#include "store/GoneLectures.h"
#include "store/LectureDatabase.h"
#include "store/LectureInfoItem.h"
#include "store/Sqlite.h"
#include "store/StoredRows.h"

#include <algorithm>

namespace tarvelo::lectures {

UnsavedTexts::UnsavedTexts(store::LectureDatabase &database, platform::Clock &clock)
    : m_database(database)
    , m_saveAll(clock, [this] { saveAll(); })
{
}

UnsavedTexts::~UnsavedTexts()
{
    saveAll();
}

bool UnsavedTexts::areOf(const Texts &texts, const store::LectureInfoItem &lecture)
{
    return texts.id == lecture.getRecordUniqueID() && texts.copyPath == lecture.copyPath() &&
           texts.audioPath == lecture.getLectureAudioPath();
}

void UnsavedTexts::keep(const store::LectureInfoItem &lecture, const QString &subject,
                        const QString &notes)
{
    const auto known = std::find_if(m_texts.begin(), m_texts.end(),
                                    [&](const Texts &texts) { return areOf(texts, lecture); });
    if (known == m_texts.end()) {
        m_texts.append({lecture.getRecordUniqueID(),
                        lecture.copyPath(),
                        lecture.getLectureAudioPath(),
                        {lecture.strNotes()},
                        subject,
                        notes});
    } else {
        // A write that failed may have left them there, since only its last step did.
        known->storedNotes.append(known->notes);
        known->subject = subject;
        known->notes = notes;
    }
    if (m_saveAll.pendingCount() == 0)
        m_saveAll.schedule(RetryInterval);
}

void UnsavedTexts::forget(const store::LectureInfoItem &lecture)
{
    m_texts.removeIf([&](const Texts &texts) { return areOf(texts, lecture); });
}

void UnsavedTexts::lecturesHaveGone(const store::GoneLectures &gone)
{
    for (Texts &texts : m_texts)
        if (texts.copyPath.isEmpty() && gone.has(texts.id))
            texts.copyPath = gone.copyPath;
}

void UnsavedTexts::lecturesCameBack(const store::LecturesBack &back)
{
    for (Texts &texts : m_texts) {
        if (texts.copyPath.isEmpty())
            continue;
        if (const auto id = m_database.idNow(back, texts.copyPath, texts.id, texts.audioPath)) {
            texts.id = *id;
            texts.copyPath.clear();
        }
    }
}

void UnsavedTexts::putInto(store::LectureInfoItem &lecture) const
{
    for (const Texts &texts : m_texts) {
        if (!areOf(texts, lecture))
            continue;
        lecture.setSubject(texts.subject);
        lecture.setNotes(texts.notes);
    }
}

// The database is opened first, since that tells what has gone.
void UnsavedTexts::saveAll()
{
    if (m_texts.isEmpty())
        return;
    store::Sqlite *const database = m_database.openToWrite();
    m_texts.removeIf([&](const Texts &texts) { return save(texts, database); });
    if (!m_texts.isEmpty())
        m_saveAll.schedule(RetryInterval);
}

// One with a recording may come back; without one nothing would tell it from the next with its ID.
bool UnsavedTexts::save(const Texts &texts, store::Sqlite *database) const
{
    if (!texts.copyPath.isEmpty())
        return m_database.changeGone(texts.copyPath, texts.id, texts.subject, texts.notes);
    return database &&
           store::changeTexts(*database, texts.id, texts.audioPath,
                              QStringList(texts.storedNotes) << texts.notes, texts.subject,
                              texts.notes) &&
           (database->changes() > 0 || texts.audioPath.isEmpty());
}

} // namespace tarvelo::lectures
