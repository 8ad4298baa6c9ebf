#pragma once

#include "audio/engine/Ffmpeg.h"
#include "audio/engine/RecorderSettings.h"

#include <cstdint>
#include <functional>

namespace tarvelo::engine {

// FFmpeg's own AAC encoder. Frames go in with the length it asks for, only the last may be shorter;
// packets come out when it has them.
class AacEncoder final
{
public:
    using PacketOutput = std::function<bool(AVPacket &)>;

    // Null when the encoder is missing or refuses the settings.
    static std::unique_ptr<AacEncoder> create(const RecorderSettings &settings);

    int frameLength() const { return m_codec->frame_size; }
    const AVCodecContext &codec() const { return *m_codec; }

    // Gives a writable frame for the next encode().
    AVFrame *frame();
    // Encodes the first `samples` samples of frame() and hands on what is ready.
    bool encode(int samples, const PacketOutput &output);
    // No more will come: hands on the rest.
    bool finish(const PacketOutput &output);

private:
    explicit AacEncoder(CodecPointer codec);
    bool send(AVFrame *frame, const PacketOutput &output);

    CodecPointer m_codec;
    FramePointer m_frame{av_frame_alloc()};
    PacketPointer m_packet{av_packet_alloc()};
    std::int64_t m_samples = 0;
};

} // namespace tarvelo::engine
