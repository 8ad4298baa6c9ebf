#pragma once

#include "audio/engine/MovieOutput.h"
#include "audio/engine/OutputFile.h"
#include "audio/engine/TakeExtent.h"

#include <chrono>
#include <vector>

namespace tarvelo::engine {

// A take on the disk while it grows: only whole fragments of a quarter of a second stand in the
// file, so that it plays whatever happens to the program, the machine or the disk. A fragment for
// which there is no room waits in memory and is tried again with the next one.
class FragmentedFile final
{
public:
    static constexpr double FragmentSeconds = 0.25;
    static constexpr std::chrono::seconds SyncInterval{2};
    // About 100 seconds of sound.
    static constexpr std::size_t MostBytesWaiting = std::size_t{1} << 20;

    // Takes the track as the encoder has it, one tick a sample. Null when it cannot be written.
    static std::unique_ptr<FragmentedFile> create(std::unique_ptr<OutputFile> file,
                                                  const AVCodecContext &encoder);

    // What stands in the file by now.
    const TakeExtent &extentInFile() const { return m_inFile; }
    double secondsInFile() const { return static_cast<double>(m_inFile.samples) / m_rate; }
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
    explicit FragmentedFile(std::unique_ptr<OutputFile> file);
    bool cut();
    void syncNowAndThen();

    std::unique_ptr<OutputFile> m_file;
    std::unique_ptr<MovieOutput> m_movie;
    int m_rate = 0;
    TakeExtent m_added;
    TakeExtent m_cut;
    TakeExtent m_inFile;
    std::vector<std::uint8_t> m_waiting;
    bool m_diskFails = false;
    std::chrono::steady_clock::time_point m_synced = std::chrono::steady_clock::now();
};

} // namespace tarvelo::engine
