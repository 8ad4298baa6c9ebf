#pragma once

#include "audio/engine/Ffmpeg.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <span>

namespace tarvelo::engine {

// An MPEG-4 file with one sound track in the making. Where its bytes go is up to its owner, so that
// a failing disk is seen by who can do something about it.
class MovieOutput final
{
public:
    // The offset counts from the beginning of the file; false tells the muxer to give up.
    using ByteOutput = std::function<bool(std::int64_t offset, std::span<const std::uint8_t>)>;

    // Further fragments belong behind those of another movie: they come without a header, and
    // their times count from the first sample of all.
    enum class Form { Fragmented, FurtherFragments, Indexed };

    // Null when the track cannot be written. Fragments are numbered from 1.
    static std::unique_ptr<MovieOutput> create(Form form, const AVCodecParameters &track,
                                               AVRational timeBase, ByteOutput output,
                                               int firstFragment = 1);
    MovieOutput(const MovieOutput &) = delete;
    MovieOutput &operator=(const MovieOutput &) = delete;
    ~MovieOutput();

    // Times are in the time base of create(). The packet is left as it was.
    bool add(const AVPacket &packet);
    // Not in the indexed form: puts out what was added since the last cut as one fragment, before
    // the first one the header.
    bool cutFragment();
    bool finish();

private:
    MovieOutput(Form form, ByteOutput output);
    bool openBytes();
    bool open(const AVCodecParameters &track, AVRational timeBase, int firstFragment);
    bool putOut();
    bool flush();
    static int writeBytes(void *self, std::uint8_t *bytes, int count);
    static std::int64_t seek(void *self, std::int64_t offset, int whence);

    const Form m_form;
    ByteOutput m_output;
    std::int64_t m_position = 0;
    AVRational m_timeBase{0, 1};
    bool m_hasHeader = false;
    AVIOContext *m_io = nullptr;
    AVFormatContext *m_muxer = nullptr;
    PacketPointer m_packet{av_packet_alloc()};
};

} // namespace tarvelo::engine
