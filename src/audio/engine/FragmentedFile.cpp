#include "audio/engine/FragmentedFile.h"

#include <algorithm>
#include <limits>
#include <utility>
#include <vector>

namespace tarvelo::engine {

namespace {

// What a disk needs beyond the bytes of the file, and the end of the sound, which is not cut yet.
constexpr std::int64_t Slack = std::int64_t{64} << 10;
// What is taken from the reserve at a time: six seconds of sound.
constexpr std::int64_t Step = std::int64_t{64} << 10;
constexpr auto MostWaiting = static_cast<std::int64_t>(FragmentedFile::MostBytesWaiting);
// A step more than may wait, so that all that may has room.
constexpr std::int64_t MostTaken = MostWaiting + Step;

} // namespace

std::unique_ptr<FragmentedFile> FragmentedFile::create(std::unique_ptr<OutputFile> file,
                                                       const AVCodecContext &encoder)
{
    auto maker = FragmentMaker::create(encoder);
    if (!maker)
        return nullptr;
    std::unique_ptr<FragmentedFile> take(new FragmentedFile(std::move(file)));
    take->m_rate = encoder.sample_rate;
    take->m_maker = std::move(maker);
    return take;
}

FragmentedFile::FragmentedFile(std::unique_ptr<OutputFile> file)
    : m_file(std::move(file))
    , m_reserve(m_file->path())
{
}

double FragmentedFile::seconds(const TakeExtent &extent) const
{
    return static_cast<double>(extent.samples) / m_rate;
}

double FragmentedFile::secondsSafe() const
{
    constexpr double Everything = std::numeric_limits<double>::infinity();
    if (!m_diskFails)
        return Everything;
    // What is wrong with the disk otherwise is not mended by room.
    std::int64_t room = m_file->isOutOfRoom() ? roomLeft() + m_reserveUnused : 0;
    TakeExtent safe = m_inFile;
    for (const Fragment &fragment : m_waiting) {
        room -= static_cast<std::int64_t>(fragment.bytes.size());
        if (room < 0)
            return seconds(safe);
        safe = fragment.upToIt;
    }
    return isFull() ? seconds(m_added) : Everything;
}

bool FragmentedFile::isFull() const
{
    const std::int64_t taken = m_file->isOutOfRoom() ? m_reserveTaken - m_reserveUnused : 0;
    return static_cast<std::int64_t>(m_bytesWaiting + m_maker->bytesKept()) >= MostWaiting - taken;
}

void FragmentedFile::add(const AVPacket &packet)
{
    m_maker->add(packet);
    m_added = {m_added.packets + 1, packet.pts + packet.duration};
    if (isFragmentDue())
        retry();
}

bool FragmentedFile::isFragmentDue() const
{
    return static_cast<double>(m_added.samples - m_cut.samples) / m_rate >= FragmentSeconds;
}

bool FragmentedFile::cut()
{
    auto fragment = m_maker->make();
    if (!fragment)
        return false;
    m_cut = m_added;
    m_bytesWaiting += fragment->size();
    m_waiting.push_back({std::move(*fragment), m_cut});
    return true;
}

void FragmentedFile::retry()
{
    if (isFragmentDue())
        cut();
    putWaiting();
    syncNowAndThen();
}

// One after the other: of a disk that has not room for all, each that fits is safe.
void FragmentedFile::putWaiting()
{
    for (m_diskFails = false; !m_waiting.empty(); m_waiting.pop_front()) {
        Fragment &next = m_waiting.front();
        next.offset = m_file->size();
        m_diskFails = !append(next.bytes);
        if (m_diskFails)
            return;
        m_bytesWaiting -= next.bytes.size();
        m_bytesUnsynced += next.bytes.size();
        m_inFile = next.upToIt;
        m_unsynced.push_back(std::move(next));
        // A disk may take very long.
        while (m_bytesUnsynced > MostBytesWaiting)
            forgetOldestUnsynced();
    }
}

// Of the reserve, what the sound may have still: the rest is for the end, and for the lecture's
// row.
std::int64_t FragmentedFile::roomLeft() const
{
    return std::max<std::int64_t>(0,
                                  std::min(MostTaken - m_reserveTaken, m_reserve.bytes() - Slack));
}

bool FragmentedFile::append(const FragmentMaker::Bytes &bytes)
{
    const auto size = static_cast<std::int64_t>(bytes.size());
    const bool isIn =
        m_file->append(bytes) || (m_file->isOutOfRoom() && makeRoom(size) && m_file->append(bytes));
    if (isIn)
        m_reserveUnused = std::max<std::int64_t>(0, m_reserveUnused - size);
    return isIn;
}

// Not again before what was taken last is used: somebody who fills the disk may have been faster,
// and is not fed with the rest.
bool FragmentedFile::makeRoom(std::int64_t bytes)
{
    const std::int64_t step = std::min(std::max(Step, bytes), roomLeft());
    if (m_reserveUnused >= bytes || m_reserveUnused + step < bytes || !m_reserve.giveBack(step))
        return false;
    m_reserveTaken += step;
    m_reserveUnused += step;
    return true;
}

void FragmentedFile::syncNowAndThen()
{
    const auto now = std::chrono::steady_clock::now();
    if (const auto isOnDisk = m_sync.outcome()) {
        m_lastSyncTook = now - m_lastSyncBegan;
        syncEnded(*isOnDisk);
    }
    const bool hasNothing = m_unsynced.empty() && !m_diskFails;
    if (hasNothing || m_sync.isUnderWay() || now - m_lastSyncBegan < SyncInterval - m_lastSyncTook)
        return;
    m_lastSyncBegan = now;
    if (m_diskFails)
        putWaiting();
    // The next time that the disk is full is not to find less.
    if (!m_diskFails && m_reserveTaken > 0 && m_reserve.holdAgain())
        m_reserveTaken = m_reserveUnused = 0;
    if (m_unsynced.empty() || !writeLostAgain())
        return;
    m_fragmentsSyncing = m_unsynced.size();
    m_sync.begin();
}

void FragmentedFile::sync()
{
    if (const auto isOnDisk = m_sync.wait())
        syncEnded(*isOnDisk);
    m_fragmentsSyncing = m_unsynced.size();
    syncEnded(writeLostAgain() && m_file->sync());
}

// A disk tells only once that it lost something, and takes it for written afterwards: all that it
// may be is written again, and nothing counts as synced before that.
void FragmentedFile::syncEnded(bool isOnDisk)
{
    while (isOnDisk && m_fragmentsSyncing > 0)
        forgetOldestUnsynced();
    m_fragmentsSyncing = 0;
    m_mayBeLost = !isOnDisk;
    writeLostAgain();
}

// False as long as the disk does not take it.
bool FragmentedFile::writeLostAgain()
{
    m_mayBeLost = m_mayBeLost && !std::ranges::all_of(m_unsynced, [this](const Fragment &fragment) {
                      return m_file->writeAt(fragment.offset, fragment.bytes);
                  });
    return !m_mayBeLost;
}

void FragmentedFile::forgetOldestUnsynced()
{
    m_bytesUnsynced -= m_unsynced.front().bytes.size();
    m_unsynced.pop_front();
    m_fragmentsSyncing -= m_fragmentsSyncing > 0 ? 1 : 0;
}

bool FragmentedFile::finish()
{
    m_reserve.giveBack();
    const bool isCut = cut() || cut();
    // The second time also because what was given back is free on some disks only when they have
    // written that down.
    for (int time = 0; time < 2 && (time == 0 || m_diskFails || !isSynced()); ++time) {
        putWaiting();
        sync();
    }
    return isCut && m_inFile.packets == m_added.packets;
}

} // namespace tarvelo::engine
