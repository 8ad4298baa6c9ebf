#pragma once

#include "audio/engine/MovieOutput.h"
#include "audio/engine/OutputFile.h"

#include <chrono>
#include <vector>

namespace tarvelo::engine {

// A take on the disk while it grows: only whole fragments of half a second stand in the file, so
// that it plays whatever happens to the program, the machine or the disk. A fragment for which
// there is no room waits in memory and is tried again with the next one.
class FragmentedFile final
{
public:
    static constexpr double FragmentSeconds = 0.5;
    static constexpr std::chrono::seconds SyncInterval{2};
    // About 100 seconds of sound.
    static constexpr std::size_t MostBytesWaiting = std::size_t{1} << 20;

    // Takes the track as the encoder has it. Null when it cannot be written.
    static std::unique_ptr<FragmentedFile> create(std::unique_ptr<OutputFile> file,
                                                  const AVCodecContext &encoder);

    // Seconds and packets of sound that stand in the file.
    double secondsInFile() const { return m_inFile.seconds; }
    std::int64_t packetsInFile() const { return m_inFile.packets; }
    // The disk did not take the last fragment.
    bool isDiskFailing() const { return m_diskFails; }
    // More sound would only be lost: call retry() until there is room again.
    bool isFull() const { return m_waiting.size() >= MostBytesWaiting; }

    // False only when the sound itself cannot be written, never for a failing disk.
    bool add(const AVPacket &packet);
    void retry();
    // Writes what is left and closes the file; false when not all of the sound got there.
    bool finish();

private:
    struct Extent
    {
        double seconds = 0;
        std::int64_t packets = 0;
    };

    explicit FragmentedFile(std::unique_ptr<OutputFile> file);
    bool cut();
    void syncNowAndThen();

    std::unique_ptr<OutputFile> m_file;
    std::unique_ptr<MovieOutput> m_movie;
    double m_secondsPerTick = 0;
    Extent m_added;
    Extent m_cut;
    Extent m_inFile;
    std::vector<std::uint8_t> m_waiting;
    bool m_diskFails = false;
    std::chrono::steady_clock::time_point m_synced = std::chrono::steady_clock::now();
};

} // namespace tarvelo::engine
