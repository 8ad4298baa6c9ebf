#pragma once

#include "audio/engine/Hearing.h"
#include "audio/engine/PcmFormat.h"
#include "audio/engine/SampleRing.h"
#include "audio/engine/SoundSink.h"
#include "audio/engine/SpliceFader.h"

#include <atomic>
#include <condition_variable>
#include <cstddef>
#include <limits>
#include <memory>
#include <mutex>
#include <span>
#include <string>
#include <thread>
#include <vector>

namespace tarvelo::engine {

struct RecorderSettings;
class TakeWriter;

// One take from captured samples to a complete file. Sound comes in on one thread and waits in a
// ring until the take's own thread has encoded and written it, so that neither a slow disk nor a
// busy program loses any.
class Take final : public SoundSink
{
public:
    // How long the disk may stand still.
    static constexpr int SecondsInRing = 16;

    // Null when the file cannot be written or the settings cannot be met.
    static std::unique_ptr<Take> start(const std::string &path, const PcmFormat &input,
                                       const RecorderSettings &settings);
    ~Take() override;

    // For any thread. Seconds of sound taken; while the disk takes none, those that are
    // safe from that.
    double seconds() const;
    // For any thread. What is behind it waits in memory.
    double secondsInFile() const { return m_secondsInFile; }

    // For any thread.
    SoundHeard soundHeard() const { return m_hearing.soFar(); }

    void put(std::span<const float> interleaved) override;
    void breakOff() override;

    // Waits until all that was put is in the file and the file is complete. Nothing must be put any
    // more. False when sound is missing from the file.
    bool finish();

private:
    Take(const PcmFormat &input, std::unique_ptr<TakeWriter> writer);
    void intoRing(std::span<const float> samples);
    void writeUntilEnd();
    void writeWhatIsThere();
    void noteWhatIsSafe();

    PcmFormat m_input;
    SampleRing m_ring;
    SpliceFader m_fader;
    Hearing m_hearing;
    std::unique_ptr<TakeWriter> m_writer; // the take's own thread's, until that has ended
    std::vector<float> m_block;
    std::size_t m_samplesTaken = 0;
    bool m_isFinished = false;
    bool m_isComplete = false;

    std::atomic<double> m_secondsTaken = 0;
    std::atomic<double> m_secondsRefused = 0;
    std::atomic<double> m_secondsInFile = 0;
    std::atomic<double> m_secondsSafe = std::numeric_limits<double>::infinity();

    std::mutex m_mutex;
    std::condition_variable m_endComes;
    bool m_isAtEnd = false;
    std::thread m_thread;
};

} // namespace tarvelo::engine
