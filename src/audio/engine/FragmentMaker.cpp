#include "audio/engine/FragmentMaker.h"

#include <QByteArrayView>
#include <QtEndian>

#include <algorithm>
#include <array>
#include <utility>

namespace tarvelo::engine {

namespace {

constexpr qsizetype HeaderSize = 8;

// How many a fragment describes; 0 when it does not say.
std::size_t packetsIn(QByteArrayView description)
{
    const qsizetype at = description.indexOf("trun");
    return at < 0 || description.size() < at + 12
               ? 0
               : qFromBigEndian<quint32>(description.data() + at + 8);
}

bool describesSound(QByteArrayView header)
{
    constexpr std::array<const char *, 6> Needed{"mvhd", "tkhd", "mdhd", "stsd", "esds", "trex"};
    return std::ranges::all_of(Needed, [&](const char *type) { return header.contains(type); });
}

} // namespace

std::unique_ptr<FragmentMaker> FragmentMaker::create(const AVCodecContext &encoder)
{
    Track track(avcodec_parameters_alloc(),
                [](AVCodecParameters *it) { avcodec_parameters_free(&it); });
    if (!track || avcodec_parameters_from_context(track.get(), &encoder) < 0)
        return nullptr;
    std::unique_ptr<FragmentMaker> maker(new FragmentMaker(std::move(track), encoder.time_base));
    return maker->begin() ? std::move(maker) : nullptr;
}

FragmentMaker::FragmentMaker(Track track, AVRational timeBase)
    : m_track(std::move(track))
    , m_timeBase(timeBase)
{
}

bool FragmentMaker::begin()
{
    using Form = MovieOutput::Form;
    m_written.clear();
    // A muxer that goes on with a file counts its time from the first sample of that.
    m_origin = m_fragments == 0 ? 0 : m_firstTime;
    m_movie = MovieOutput::create(
        m_fragments == 0 ? Form::Fragmented : Form::FurtherFragments, *m_track, m_timeBase,
        [this](std::int64_t, auto bytes) {
            m_written.insert(m_written.end(), bytes.begin(), bytes.end());
            return true;
        },
        m_fragments + 1);
    return m_movie != nullptr;
}

void FragmentMaker::add(const AVPacket &packet)
{
    if (m_fragments == 0 && m_packets.empty())
        m_firstTime = packet.pts;
    m_packets.push_back(
        {{packet.data, packet.data + packet.size}, packet.pts, packet.duration, packet.flags});
    m_bytesKept += m_packets.back().bytes.size();
}

std::optional<FragmentMaker::Bytes> FragmentMaker::make()
{
    if (m_packets.empty())
        return Bytes();
    // Nobody knows what of a fragment is in a muxer that was refused memory.
    if ((!m_movie && !begin()) || !addAll() || !m_movie->cutFragment() || !isWhole()) {
        m_movie.reset();
        return std::nullopt;
    }
    m_packets.clear();
    m_bytesKept = 0;
    ++m_fragments;
    return std::exchange(m_written, {});
}

bool FragmentMaker::addAll()
{
    const PacketPointer packet(av_packet_alloc());
    if (!packet)
        return false;
    for (Packet &kept : m_packets) {
        packet->data = kept.bytes.data();
        packet->size = static_cast<int>(kept.bytes.size());
        packet->pts = packet->dts = kept.time - m_origin;
        packet->duration = kept.duration;
        packet->flags = kept.flags;
        if (!m_movie->add(*packet))
            return false;
    }
    return true;
}

// A muxer that was refused memory does not always say so: it leaves out what it had none for.
bool FragmentMaker::isWhole() const
{
    const QByteArrayView written(m_written.data(), static_cast<qsizetype>(m_written.size()));
    QByteArrayView header;
    QByteArrayView description;
    for (qsizetype at = 0; written.size() - at >= HeaderSize;) {
        const auto size = static_cast<qsizetype>(qFromBigEndian<quint32>(written.data() + at));
        if (size < HeaderSize || size > written.size() - at)
            return false;
        const QByteArrayView box = written.sliced(at, size);
        const QByteArrayView type = box.sliced(4, 4);
        if (type == "moov")
            header = box;
        else if (type == "moof")
            description = box;
        else if (type == "mdat")
            return (m_fragments > 0 || describesSound(header)) &&
                   packetsIn(description) == m_packets.size() &&
                   static_cast<std::size_t>(size - HeaderSize) == m_bytesKept &&
                   size == written.size() - at;
        at += size;
    }
    return false;
}

} // namespace tarvelo::engine
