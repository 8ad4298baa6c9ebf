#include "audio/engine/FragmentedFile.h"

#include <limits>
#include <utility>

namespace tarvelo::engine {

namespace {

// What a disk needs beyond the bytes of the file, and the end of the sound, which is not cut yet.
constexpr std::int64_t Slack = std::int64_t{64} << 10;

} // namespace

std::unique_ptr<FragmentedFile> FragmentedFile::create(std::unique_ptr<OutputFile> file,
                                                       const AVCodecContext &encoder)
{
    const std::unique_ptr<AVCodecParameters, void (*)(AVCodecParameters *)> track(
        avcodec_parameters_alloc(), [](AVCodecParameters *it) { avcodec_parameters_free(&it); });
    if (!track || avcodec_parameters_from_context(track.get(), &encoder) < 0)
        return nullptr;
    std::unique_ptr<FragmentedFile> take(new FragmentedFile(std::move(file)));
    take->m_rate = encoder.sample_rate;
    take->m_movie =
        MovieOutput::create(MovieOutput::Form::Fragmented, *track, encoder.time_base,
                            [written = &take->m_written](std::int64_t, auto bytes) {
                                written->insert(written->end(), bytes.begin(), bytes.end());
                                return true;
                            });
    return take->m_movie ? std::move(take) : nullptr;
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
    std::int64_t room = m_file->isOutOfRoom() ? m_reserve.bytes() - Slack : 0;
    TakeExtent safe = m_inFile;
    for (const Fragment &fragment : m_waiting) {
        room -= static_cast<std::int64_t>(fragment.bytes.size());
        if (room < 0)
            return seconds(safe);
        safe = fragment.upToIt;
    }
    return isFull() ? seconds(m_added) : Everything;
}

bool FragmentedFile::add(const AVPacket &packet)
{
    if (!m_movie->add(packet))
        return false;
    m_added = {m_added.packets + 1, packet.pts + packet.duration};
    const double seconds = static_cast<double>(m_added.samples - m_cut.samples) / m_rate;
    return seconds < FragmentSeconds || cut();
}

bool FragmentedFile::cut()
{
    if (!m_movie->cutFragment())
        return false;
    m_cut = m_added;
    putWaiting();
    retry();
    return true;
}

void FragmentedFile::putWaiting()
{
    m_bytesWaiting += m_written.size();
    m_waiting.push_back({std::exchange(m_written, {}), m_cut});
}

// One after the other: of a disk that has not room for all, each that fits is safe.
void FragmentedFile::retry()
{
    for (; !m_waiting.empty(); m_waiting.pop_front()) {
        const Fragment &next = m_waiting.front();
        m_diskFails = !m_file->append(next.bytes);
        if (m_diskFails)
            return;
        m_bytesWaiting -= next.bytes.size();
        m_inFile = next.upToIt;
    }
    syncNowAndThen();
}

void FragmentedFile::syncNowAndThen()
{
    const auto now = std::chrono::steady_clock::now();
    if (now - m_synced < SyncInterval)
        return;
    m_file->sync();
    m_synced = now;
}

bool FragmentedFile::finish()
{
    m_reserve.giveBack();
    const bool written = cut() && m_movie->finish();
    putWaiting();
    retry();
    // What was given back is free on some disks only when they have written that down.
    if (m_diskFails && m_file->sync())
        retry();
    m_file->sync();
    // Players do without the list of the fragments, which is what comes last.
    return written && m_inFile.packets == m_added.packets;
}

} // namespace tarvelo::engine
