#pragma once

#include "audio/engine/Ffmpeg.h"
#include "audio/engine/PcmFormat.h"
#include "audio/engine/SoundFileInput.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <vector>

namespace tarvelo::engine {

// The sound of a file in memory, decoded as it is asked for. For one thread at a time, but for
// cancel().
class DecodedSource final
{
public:
    // Null when nothing of the bytes can be heard.
    static std::unique_ptr<DecodedSource> open(const QByteArray &bytes);

    // As the file has it, of at most two channels.
    const PcmFormat &format() const { return m_format; }
    double seconds() const { return m_seconds; }
    // The frame that is read next, counted from the beginning of the sound.
    std::int64_t position() const { return m_position; }

    // Interleaved; how many frames there were. Fewer than asked for only at the end.
    std::size_t read(std::span<float> samples);
    // Goes on at the frame, exactly.
    void seek(std::int64_t frame);
    // For any thread: reading comes to an end.
    void cancel() { m_input->cancel(); }

private:
    explicit DecodedSource(std::unique_ptr<SoundFileInput> input);
    bool openDecoder();
    bool decodeFirst();
    bool decodeMore();
    bool receive();
    bool convert(const AVFrame &frame);
    void dropUntilWanted(const AVFrame &frame);
    std::size_t pendingFrames() const;
    std::size_t channels() const { return static_cast<std::size_t>(m_format.channels); }

    std::unique_ptr<SoundFileInput> m_input;
    CodecPointer m_codec;
    ResamplerPointer m_converter;
    FramePointer m_frame{av_frame_alloc()};
    PacketPointer m_packet{av_packet_alloc()};
    PcmFormat m_format;
    double m_seconds = 0;
    std::int64_t m_end = 0;
    std::int64_t m_position = 0;
    bool m_isPlaced = false; // it is known where in the sound the decoder is
    bool m_isFlushed = false;
    std::vector<float> m_pending;
    std::size_t m_pendingStart = 0; // in samples
    // What the converter was made for.
    int m_sampleFormat = -1;
    int m_sampleRate = 0;
    int m_sampleChannels = 0;
};

} // namespace tarvelo::engine
