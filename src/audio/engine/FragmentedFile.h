#pragma once

#include "audio/engine/BackgroundSync.h"
#include "audio/engine/Ffmpeg.h"
#include "audio/engine/FragmentMaker.h"
#include "audio/engine/OutputFile.h"
#include "audio/engine/Reserve.h"
#include "audio/engine/TakeExtent.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <memory>

namespace tarvelo::engine {

// A take on the disk while it grows: whole fragments of a quarter of a second stand in the file,
// and at most the last is torn, so that it plays whatever happens to the program, the machine or
// the disk. On a full disk it goes into the room that was held for it. What the disk does not take
// waits in memory and is tried again with the next fragment, and at the end. Nobody waits for the
// disk to have it for certain but the end.
class FragmentedFile final
{
public:
    static constexpr double FragmentSeconds = 0.25;
    // Between the beginnings of two; sooner as a disk takes longer, so that what is not certain yet
    // is never older than this or than twice what a sync takes.
    static constexpr std::chrono::milliseconds SyncInterval{2000};
    // 93 seconds of sound. As much is written at most into the room that was held.
    static constexpr std::size_t MostBytesWaiting = std::size_t{1} << 20;

    // Takes the track as the encoder has it, one tick a sample. Null when it cannot be written.
    static std::unique_ptr<FragmentedFile> create(std::unique_ptr<OutputFile> file,
                                                  const AVCodecContext &encoder);

    // What stands in the file by now.
    const TakeExtent &extentInFile() const { return m_inFile; }
    double secondsInFile() const { return seconds(m_inFile); }
    // What of it a full disk takes from nobody any more: what stands in the file, and what waits
    // and has a share of the reserve for itself. Infinity while that is everything.
    double secondsSafe() const;
    // The disk did not take the last fragment.
    bool isDiskFailing() const { return m_diskFails; }
    // More sound would only be lost: call retry() until there is room again.
    bool isFull() const;
    // All that stands in the file was forced to the disk.
    bool isSynced() const { return m_unsynced.empty(); }

    void add(const AVPacket &packet);
    void retry();
    // When it is time for that: tries once more what waits for room, also in a pause, and has what
    // was written by now forced to the disk, by another thread.
    void syncNowAndThen();
    // Writes what is left and forces it to the disk; false when not all of the sound got into the
    // file.
    bool finish();

private:
    // Whole, and with the header before the first.
    struct Fragment
    {
        FragmentMaker::Bytes bytes;
        TakeExtent upToIt;
        std::int64_t offset = 0; // in the file, once it is there
    };

    explicit FragmentedFile(std::unique_ptr<OutputFile> file);
    double seconds(const TakeExtent &extent) const;
    bool isFragmentDue() const;
    bool cut();
    void putWaiting();
    bool append(const FragmentMaker::Bytes &bytes);
    bool makeRoom(std::int64_t bytes);
    std::int64_t roomLeft() const;
    void sync();
    void syncEnded(bool isOnDisk);
    bool writeLostAgain();
    void forgetOldestUnsynced();

    std::unique_ptr<OutputFile> m_file;
    BackgroundSync m_sync{*m_file};
    Reserve m_reserve;
    std::unique_ptr<FragmentMaker> m_maker;
    int m_rate = 0;
    TakeExtent m_added;
    TakeExtent m_cut;
    TakeExtent m_inFile;
    std::deque<Fragment> m_waiting;
    std::size_t m_bytesWaiting = 0;
    std::int64_t m_reserveTaken = 0;  // bytes of the reserve that the sound got
    std::int64_t m_reserveUnused = 0; // of those, what no sound went into yet
    std::deque<Fragment> m_unsynced;
    std::size_t m_bytesUnsynced = 0;
    std::size_t m_fragmentsSyncing =
        0;                    // of the unsynced, those that the sync which is under way is for
    bool m_mayBeLost = false; // all that is unsynced
    bool m_diskFails = false;
    std::chrono::steady_clock::time_point m_lastSyncBegan = std::chrono::steady_clock::now();
    std::chrono::steady_clock::duration m_lastSyncTook{}; // how long it took
};

} // namespace tarvelo::engine
