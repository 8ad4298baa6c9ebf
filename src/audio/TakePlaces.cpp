#include "audio/TakePlaces.h"

#include "audio/AudioFileLocations.h"
#include "audio/LeftFiles.h"

#include <QString>

#include <algorithm>
#include <utility>

namespace tarvelo::audio {

TakePlaces::TakePlaces(AudioFileLocations &locations, LeftLectures &left)
    : m_locations(locations)
    , m_left(left)
{
}

void TakePlaces::open()
{
    if (!m_places.empty())
        return;
    m_usual = m_locations.temporaryFolder();
    find();
}

void TakePlaces::makeWay()
{
    if (m_places.empty())
        return;
    Place &place = m_places.back();
    if (!place.writer || (place.isOccupied && !vacate(place)))
        find();
}

void TakePlaces::find()
{
    if (auto usual = m_ownsUsual ? nullptr : TakeFolder::own(m_usual)) {
        m_ownsUsual = true;
        use(std::move(usual));
        adoptLeft();
        if (!m_places.back().isOccupied)
            return;
    }
    if (!m_places.empty() && !m_places.back().folder && !m_places.back().unwritten)
        m_places.pop_back();
    use(TakeFolder::makeBelow(m_usual));
}

void TakePlaces::use(std::unique_ptr<TakeFolder> folder)
{
    // One that is missing: rather nothing is recorded than over what stands elsewhere.
    Place place{.path = folder ? folder->path() : m_usual + QStringLiteral("/take")};
    if (folder)
        place.writer =
            std::make_unique<store::JournalWriter>(place.path + u'/' + LeftFiles::journalName());
    const bool isClear = !folder || m_left.setAside(place.path);
    place.isOccupied = place.path == m_usual && !isClear;
    place.folder = std::move(folder);
    if (m_locations.temporaryFolder() != place.path)
        m_locations.takesLieIn(place.path);
    m_places.push_back(std::move(place));
}

// Whatever cannot be moved stays for the next start.
void TakePlaces::adoptLeft()
{
    for (const QString &path : TakeFolder::below(m_usual))
        if (const auto folder = TakeFolder::own(path)) {
            m_left.setAside(path);
            m_left.adoptClosed(path);
        }
}

void TakePlaces::addUnwritten(const store::LectureJournal &journal)
{
    if (m_places.empty())
        return;
    Place &place = m_places.back();
    place.unwritten = journal;
    // Nothing was recorded where no folder could be made.
    if (!place.folder)
        place.unwritten->take.clear();
    place.isOccupied = true;
}

TakePlaces::Place *TakePlaces::placeOfUnwritten(const QString &id)
{
    const auto found = std::ranges::find_if(m_places, [&id](const Place &place) {
        return place.unwritten && place.unwritten->id == id;
    });
    return found == m_places.end() ? nullptr : &*found;
}

bool TakePlaces::changeUnwritten(const QString &id, const QString &subject, const QString &notes)
{
    Place *const place = placeOfUnwritten(id);
    if (!place)
        return false;
    place->unwritten->subject = subject;
    place->unwritten->notes = notes;
    ++place->unwritten->version;
    if (place->writer)
        place->writer->write(store::toBytes(*place->unwritten));
    return true;
}

void TakePlaces::discardUnwritten(const QString &id)
{
    Place *const place = placeOfUnwritten(id);
    if (!place)
        return;
    removeJournal(*place);
    m_left.discardUnwritten(place->path, *place->unwritten);
    place->unwritten.reset();
    place->isOccupied = place->folder != nullptr;
}

void TakePlaces::removeJournal(const Place &place)
{
    if (!place.writer)
        return;
    place.writer->remove();
    place.writer->flush();
}

void TakePlaces::setOccupied()
{
    if (!m_places.empty())
        m_places.back().isOccupied = true;
}

bool TakePlaces::hasOccupied() const
{
    return std::ranges::any_of(m_places, [](const Place &place) { return place.isOccupied; });
}

void TakePlaces::vacateOccupied()
{
    for (Place &place : m_places)
        if (place.isOccupied)
            vacate(place);
}

bool TakePlaces::vacate(Place &place)
{
    // What the writer still does is nobody else's.
    if (place.writer)
        place.writer->flush();
    if (place.unwritten && place.writer && !place.writer->flush())
        place.writer->write(store::toBytes(*place.unwritten));
    if (place.unwritten && (!place.writer || !place.writer->flush()))
        return false;
    place.unwritten.reset();
    place.isOccupied = !m_left.setAside(place.path);
    return !place.isOccupied;
}

void TakePlaces::storeUnwritten(const std::function<void(const LeftLectures::Stored &)> &stored)
{
    for (Place &place : m_places) {
        if (!place.unwritten)
            continue;
        if (place.writer)
            place.writer->flush();
        const auto lecture = m_left.storeUnwritten(place.path, *place.unwritten);
        if (!lecture)
            continue;
        place.unwritten.reset();
        removeJournal(place);
        place.isOccupied = place.folder && !m_left.setAside(place.path);
        stored(*lecture);
    }
}

} // namespace tarvelo::audio
