#pragma once

#include "audio/engine/KeptSound.h"
#include "audio/engine/PcmFormat.h"
#include "audio/engine/RateMap.h"
#include "audio/engine/SoundSupply.h"

#include <condition_variable>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <mutex>
#include <optional>
#include <span>
#include <thread>
#include <vector>

namespace tarvelo::engine {

class DecodedSource;
class SoundAtRate;

// Keeps a few seconds of sound ready ahead of what is taken, decoded and stretched in a thread of
// its own. Knows which second of the sound every frame comes from, over all changes of rate.
//
// A change touches only what nobody has taken yet: the new sound is made ready for a place a little
// ahead, and the old one goes on to be taken until it is there. So a slow machine makes a change
// late, and never makes a gap. For any thread.
class SoundAhead final : public SoundSupply
{
public:
    static constexpr double SecondsAhead = 3;

    explicit SoundAhead(std::unique_ptr<DecodedSource> source);
    ~SoundAhead() override;

    double seconds() const { return m_seconds; }

    // What is ready is thrown away; frames are counted from 0 again. Nobody must be taking any.
    // False when there can be no thread.
    bool start(double seconds, double rate);
    // While it is heard: goes on at the same place at the rate, or at another place, soon and
    // without a gap.
    void changeRate(double rate);
    void jump(double seconds);
    // Who takes the sound, and outlives this object. To be set before it starts.
    void setTaker(SoundTaker *taker) { m_taker = taker; }

    PcmFormat format() const override { return m_format; }
    std::size_t take(std::span<float> interleaved) override;
    bool isAtEnd() const override;
    double secondsAt(double frame) const override;
    void restartAt(double frame) override;

private:
    struct Order
    {
        bool isRestart = false;
        std::optional<double> seconds;
        double rate = 1;

        bool operator==(const Order &) const = default;
    };
    using Lock = std::unique_lock<std::mutex>;

    // All below run with the lock held; those that take it let go of it for a while.
    void work();
    void workOnce(Lock &lock);
    void takeBack(Lock &lock);
    void restart(Lock &lock);
    void change(Lock &lock);
    void produce(Lock &lock);
    void tellTaker(Lock &lock);
    std::int64_t placeForChange() const;
    void beginAt(double seconds, double rate);
    RateMap::Segment segmentFrom(std::int64_t frame, const Order &order) const;
    double heardAt(double frame) const;
    bool canChange() const;
    bool hasRoom() const;
    std::int64_t framesIn(double seconds) const;
    std::unique_ptr<SoundAtRate> soundFrom(const RateMap::Segment &stretch);
    std::size_t channels() const { return static_cast<std::size_t>(m_format.channels); }

    std::unique_ptr<DecodedSource> m_source; // the thread's
    std::unique_ptr<SoundAtRate> m_sound;    // the thread's
    std::vector<float> m_block;              // the thread's
    const PcmFormat m_format;
    const double m_seconds;
    double m_margin; // the thread's: seconds by which the next change is tried ahead
    SoundTaker *m_taker = nullptr;

    mutable std::mutex m_mutex;
    std::condition_variable m_wake;
    std::optional<Order> m_order;
    KeptSound m_ready;
    RateMap m_rates;
    bool m_isComplete = false; // nothing comes behind what is ready
    bool m_isShort = false;    // somebody got too little
    bool m_isLeaving = false;
    std::thread m_thread;
};

} // namespace tarvelo::engine
