#include "lectures/OwedLectures.h"

#include "audio/TakePlaces.h"
#include "lectures/DayList.h"
#include "store/LectureJournal.h"

#include <optional>
#include <ranges>
#include <utility>

using namespace std::chrono_literals;

namespace tarvelo::lectures {

namespace {
// The list of the day shows by then.
constexpr auto AfterStart = 900ms;
} // namespace

OwedLectures::OwedLectures(const Collaborators &collaborators)
    : m_with(collaborators)
    , m_store(collaborators.clock, [this] { store(); })
{
}

void OwedLectures::start()
{
    if (m_with.left.owed() > 0 || m_with.places.hasOccupied())
        m_store.schedule(AfterStart);
}

void OwedLectures::add(const store::LectureJournal &journal, const Lecture &lecture)
{
    m_owed.insert(journal.id, {lecture, lecture->getRecordUniqueID(), journal.target});
    m_with.places.addUnwritten(journal);
    storeSoon();
}

// The list may have another object for a lecture that has a row.
QString OwedLectures::journalIdOf(const store::LectureInfoItem &lecture) const
{
    for (auto owed = m_owed.begin(); owed != m_owed.end(); ++owed)
        if (owed->lecture.lock().get() == &lecture ||
            (lecture.hasRow() && owed->row == lecture.getRecordUniqueID() &&
             owed->path == lecture.getLectureAudioPath()))
            return owed.key();
    return {};
}

bool OwedLectures::has(const store::LectureInfoItem &lecture) const
{
    return !journalIdOf(lecture).isEmpty();
}

QStringList OwedLectures::recordings() const
{
    QStringList paths;
    for (const Owed &owed : m_owed)
        paths.append(owed.path);
    return paths;
}

void OwedLectures::change(const store::LectureInfoItem &lecture, const QString &subject,
                          const QString &notes)
{
    const QString id = journalIdOf(lecture);
    if (id.isEmpty())
        return;
    m_changed.insert(id, {subject, notes});
    writeChanges();
}

void OwedLectures::writeChanges()
{
    if (m_changed.isEmpty())
        return;
    m_with.places.vacateOccupied();
    using Changed = std::pair<const QString &, audio::LeftLectures::Texts &>;
    m_changed.removeIf([this](const Changed &changed) {
        const auto &[subject, notes] = changed.second;
        const auto isWritten = m_with.places.changeUnwritten(changed.first, subject, notes)
                                   ? std::optional(true)
                                   : m_with.left.change(changed.first, subject, notes);
        // Where none is found it may still stand in a place from where it could not be moved.
        return isWritten.value_or(!m_with.places.hasOccupied());
    });
}

void OwedLectures::remove(const store::LectureInfoItem &lecture)
{
    // Also of one that is stored, whose journal could not be removed then.
    const QString owed = journalIdOf(lecture);
    const QString id = owed.isEmpty() ? m_with.left.journalIdOf(lecture) : owed;
    if (id.isEmpty())
        return;
    m_owed.remove(id);
    m_changed.remove(id);
    m_with.places.discardUnwritten(id);
    m_with.places.vacateOccupied();
    m_deleted.append(id);
    discardDeleted();
}

void OwedLectures::discardDeleted()
{
    for (const QString &id : std::as_const(m_deleted))
        m_with.left.discard(id);
}

void OwedLectures::storeSoon()
{
    if (m_store.pendingCount() == 0)
        m_store.schedule(RetryInterval);
}

OwedLectures::StoredNow OwedLectures::storeWhatCanBe()
{
    m_with.places.vacateOccupied();
    discardDeleted();
    writeChanges();
    StoredNow now;
    const auto stored = [this, &now](const audio::LeftLectures::Stored &owed) {
        m_changed.remove(owed.id);
        const Lecture lecture = m_owed.take(owed.id).lecture.lock();
        if (lecture) {
            lecture->setRow(owed.row);
            lecture->setLectureAudioPath(owed.recording);
        }
        const LectureList &shown = m_with.dayList.arrangedObjects();
        now.isAny = true;
        now.doesListLackOne =
            now.doesListLackOne || std::ranges::find(shown, lecture) == shown.end();
    };
    m_with.left.storeOwed(stored, m_changed);
    m_with.places.storeUnwritten(stored);
    return now;
}

void OwedLectures::store()
{
    if (const StoredNow now = storeWhatCanBe(); now.isAny)
        m_with.someAreStored(now.doesListLackOne);
    if (m_with.left.owed() > 0 || m_with.places.hasOccupied())
        m_store.schedule(RetryInterval);
}

} // namespace tarvelo::lectures
