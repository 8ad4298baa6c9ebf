#pragma once

#include "audio/engine/Ffmpeg.h"
#include "audio/engine/MovieOutput.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

namespace tarvelo::engine {

// Turns the packets of a take into its fragments. The packets are kept until their fragment is
// whole: when memory was refused on the way it is made again from them.
class FragmentMaker final
{
public:
    using Bytes = std::vector<std::uint8_t>;

    // Takes the track as the encoder has it, one tick a sample. Null when it cannot be written.
    static std::unique_ptr<FragmentMaker> create(const AVCodecContext &encoder);

    void add(const AVPacket &packet);
    // Of packets that are in no fragment yet.
    std::size_t bytesKept() const { return m_bytesKept; }
    // All that was added since the last one, and the header before the first. Nothing when memory
    // was refused; the next one has it all then.
    std::optional<Bytes> make();

private:
    struct Packet
    {
        Bytes bytes;
        std::int64_t time;
        std::int64_t duration;
        int flags;
    };
    using Track = std::unique_ptr<AVCodecParameters, void (*)(AVCodecParameters *)>;

    FragmentMaker(Track track, AVRational timeBase);
    bool begin();
    bool addAll();
    bool isWhole() const;

    const Track m_track;
    const AVRational m_timeBase;
    Bytes m_written; // by the movie
    std::unique_ptr<MovieOutput> m_movie;
    std::vector<Packet> m_packets;
    std::size_t m_bytesKept = 0;
    std::int64_t m_firstTime = 0;
    std::int64_t m_origin = 0; // of the movie's times
    int m_fragments = 0;
};

} // namespace tarvelo::engine
