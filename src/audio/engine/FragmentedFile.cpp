#include "audio/engine/FragmentedFile.h"

namespace tarvelo::engine {

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
                            [waiting = &take->m_waiting](std::int64_t, auto bytes) {
                                waiting->insert(waiting->end(), bytes.begin(), bytes.end());
                                return true;
                            });
    return take->m_movie ? std::move(take) : nullptr;
}

FragmentedFile::FragmentedFile(std::unique_ptr<OutputFile> file)
    : m_file(std::move(file))
{
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
    retry();
    return true;
}

void FragmentedFile::retry()
{
    m_diskFails = !m_file->append(m_waiting);
    if (m_diskFails)
        return;
    m_waiting.clear();
    m_inFile = m_cut;
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
    const bool written = cut() && m_movie->finish();
    retry();
    m_file->sync();
    return written && !m_diskFails;
}

} // namespace tarvelo::engine
