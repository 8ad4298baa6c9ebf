#pragma once

#include "audio/engine/Ffmpeg.h"
#include "audio/engine/RecorderSettings.h"

#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <vector>

namespace tarvelo::engine {

// FFmpeg's own AAC encoder. Frames go in with the length it asks for, only the last may be shorter;
// packets come out when it has them. An encoder that was refused memory has lost its place: another
// one takes over, which is given the last frames again, so that none of the sound is missing.
class AacEncoder final
{
public:
    using PacketOutput = std::function<void(const AVPacket &)>;

    // Null when the encoder is missing or refuses the settings.
    static std::unique_ptr<AacEncoder> create(const RecorderSettings &settings);

    int frameLength() const { return m_codec->frame_size; }
    const AVCodecContext &codec() const { return *m_codec; }

    // Gives a writable frame for the next encode().
    AVFrame *frame();
    // Encodes the first `samples` samples of frame() and hands on what is ready. False when memory
    // was refused: the frame is as it was then, to be tried again.
    bool encode(int samples, const PacketOutput &output);
    // No more will come: hands on the rest. False when some is left, for want of memory.
    bool finish(const PacketOutput &output);

private:
    AacEncoder(const RecorderSettings &settings, CodecPointer codec);
    static CodecPointer open(const RecorderSettings &settings);
    bool prepare(AVFrame &frame) const;
    bool send(AVFrame *frame, const PacketOutput &output);
    void handOn(const PacketOutput &output);
    bool replace(const PacketOutput &output);
    bool beginAnew(const PacketOutput &output);
    void remember(const AVFrame &frame);

    const RecorderSettings m_settings;
    CodecPointer m_codec;
    FramePointer m_frame{av_frame_alloc()};
    PacketPointer m_packet{av_packet_alloc()};
    std::deque<std::vector<float>> m_lastFrames; // one channel after the other
    std::int64_t m_framesTaken = 0;
    std::int64_t m_nextPacket = 0; // of the encoder, counted from the beginning of the take
    std::int64_t m_packetsHandedOn = 0;
    bool m_isBroken = false;
};

} // namespace tarvelo::engine
