#pragma once

#include "audio/engine/Ffmpeg.h"
#include "audio/engine/MovieOutline.h"

#include <QByteArray>

#include <atomic>
#include <cstdint>

namespace tarvelo::engine {

// The sound track of a file that lies in memory, packet by packet. Takes any bytes: those of a
// stranger, of a file that was cut off, or of none at all. Opens no other file, whatever the bytes
// refer to. For one thread at a time, but for cancel().
class SoundFileInput final
{
public:
    // What decoders may be used for it.
    static constexpr const char *Codecs =
        "aac,alac,mp3float,flac,vorbis,opus,pcm_u8,pcm_s8,pcm_s16le,pcm_s16be,pcm_s24le,pcm_s24be,"
        "pcm_s32le,pcm_s32be,pcm_f32le,pcm_f32be,pcm_f64le,pcm_f64be,pcm_alaw,pcm_mulaw";

    // Null when the bytes are no file with sound. They are shared, not copied.
    static std::unique_ptr<SoundFileInput> open(const QByteArray &bytes);
    SoundFileInput(const SoundFileInput &) = delete;
    SoundFileInput &operator=(const SoundFileInput &) = delete;
    ~SoundFileInput();

    const AVStream &track() const { return *m_demuxer->streams[m_track]; }
    // The time stamp, in the track's time base, at which playing begins.
    std::int64_t origin() const;
    // Seconds of sound, also of a file that is cut off. Reads the file, without decoding, when
    // it does not say.
    double seconds();

    // The next packet of the track; false when there is none.
    bool read(AVPacket &packet);
    // To the last packet that begins at or before the time stamp.
    bool seek(std::int64_t timestamp);
    // For any thread: from now on there is nothing more to read.
    void cancel() { m_isCancelled = true; }

private:
    SoundFileInput(const QByteArray &bytes, const MovieOutline &outline);
    bool openDemuxer();
    bool openBytes();
    bool chooseTrack();
    std::int64_t endByReading();
    std::int64_t endByReadingFrom(std::int64_t timestamp);
    std::int64_t lastSeconds() const;
    std::int64_t endByHeader() const;

    static int readBytes(void *self, std::uint8_t *bytes, int count);
    static std::int64_t seekBytes(void *self, std::int64_t offset, int whence);

    const QByteArray m_bytes;
    const std::int64_t m_size; // of what is shown to the demuxer
    const bool m_holdsFragments;
    std::int64_t m_position = 0;
    std::atomic<bool> m_isCancelled = false;
    AVIOContext *m_io = nullptr;
    AVFormatContext *m_demuxer = nullptr;
    int m_track = -1;
};

} // namespace tarvelo::engine
