#pragma once

#include "audio/engine/AacEncoder.h"
#include "audio/engine/FragmentedFile.h"

#include <memory>
#include <span>
#include <string>

namespace tarvelo::engine {

struct PcmFormat;
struct RecorderSettings;
class Resampler;

// Samples in, an MPEG-4 file out: resamples, encodes and writes, all in the thread that calls. Its
// memory does not grow with the take. A disk that takes no more is no failure while recording, nor
// is a machine without memory: what stands in the file stays, and sound is taken again as soon as
// there is room.
class TakeWriter final
{
public:
    // Null when the file cannot be written or the settings cannot be met; no new file then.
    static std::unique_ptr<TakeWriter> create(const std::string &path, const PcmFormat &input,
                                              const RecorderSettings &settings);
    TakeWriter(const TakeWriter &) = delete;
    TakeWriter &operator=(const TakeWriter &) = delete;
    ~TakeWriter();

    double secondsInFile() const { return m_file->secondsInFile(); }
    // Infinity while a full disk takes nothing.
    double secondsSafe() const { return m_file->secondsSafe(); }
    bool isDiskFailing() const { return m_file->isDiskFailing(); }

    // False when the samples were not taken.
    bool write(std::span<const float> interleaved);
    // Also while there is no sound, what is in the file comes to the disk, and what waits for room
    // gets into the file; to be called now and then.
    void keepSynced() { m_file->syncNowAndThen(); }
    // Completes the file and turns it into a plain indexed one. False when sound is missing from
    // it; what is there plays all the same. A second call does nothing.
    bool finish();

private:
    TakeWriter(std::string path, std::unique_ptr<Resampler> resampler,
               std::unique_ptr<AacEncoder> encoder, std::unique_ptr<FragmentedFile> file);
    bool isFull() const;
    bool encodeFrames();
    bool encodeRest();
    bool encode(int samples);

    std::string m_path;
    std::unique_ptr<Resampler> m_resampler;
    std::unique_ptr<AacEncoder> m_encoder;
    std::unique_ptr<FragmentedFile> m_file;
    AacEncoder::PacketOutput m_packetOutput;
    int m_samplesInFrame = 0; // of the encoder, which it has not taken yet
    bool m_isFinished = false;
    bool m_isComplete = false;
    bool m_isEmpty = true;
};

} // namespace tarvelo::engine
