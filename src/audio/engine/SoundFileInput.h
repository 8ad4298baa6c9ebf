#pragma once

#include "audio/engine/ByteSource.h"
#include "audio/engine/Ffmpeg.h"

#include <atomic>
#include <cstdint>
#include <memory>

namespace tarvelo::engine {

struct MovieOutline;

// The sound track of a file, packet by packet. Takes any bytes: those of a
// stranger, of a file that was cut off, or of none at all. Opens no other file, whatever the bytes
// refer to. For one thread at a time, but for cancel().
class SoundFileInput final
{
public:
    // What decoders may be used for it.
    static constexpr const char *Codecs =
        "aac,alac,mp3float,flac,vorbis,opus,pcm_u8,pcm_s8,pcm_s16le,pcm_s16be,pcm_s24le,pcm_s24be,"
        "pcm_s32le,pcm_s32be,pcm_f32le,pcm_f32be,pcm_f64le,pcm_f64be,pcm_alaw,pcm_mulaw";

    // A take of this program's, read from beginning to end, says all about its sound at its
    // beginning. A stranger's file, or one in which a place is looked for, is searched for it, with
    // its decoder.
    enum class Kind { Strange, Take };

    // Null when the bytes are no file with sound. They are shared, not copied.
    static std::unique_ptr<SoundFileInput> open(const QByteArray &bytes);
    static std::unique_ptr<SoundFileInput> open(std::shared_ptr<ByteSource> bytes, Kind kind);
    SoundFileInput(const SoundFileInput &) = delete;
    SoundFileInput &operator=(const SoundFileInput &) = delete;
    ~SoundFileInput();

    const AVStream &track() const { return *m_demuxer->streams[m_track]; }
    // As far as the index knows.
    std::int64_t packetsIndexed() const;
    // What was read is not all that there was.
    bool hasFailed() const { return m_bytes->hasFailed() || m_lackedMemory; }
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
    SoundFileInput(std::shared_ptr<ByteSource> bytes, const MovieOutline &outline, Kind kind);
    bool openDemuxer();
    bool openBytes();
    bool chooseTrack();
    std::int64_t endByReading();
    std::int64_t endByReadingFrom(std::int64_t timestamp);
    std::int64_t lastSeconds() const;
    std::int64_t endByHeader() const;

    static int readBytes(void *self, std::uint8_t *bytes, int count);
    static std::int64_t seekBytes(void *self, std::int64_t offset, int whence);

    const std::shared_ptr<ByteSource> m_bytes;
    const Kind m_kind;
    const std::int64_t m_size; // of what is shown to the demuxer
    const bool m_holdsFragments;
    std::int64_t m_position = 0;
    bool m_lackedMemory = false;
    std::atomic<bool> m_isCancelled = false;
    AVIOContext *m_io = nullptr;
    AVFormatContext *m_demuxer = nullptr;
    int m_track = -1;
};

} // namespace tarvelo::engine
