#pragma once

#include "audio/engine/SoundAtRate.h"
#include "audio/engine/SoundSupply.h"

#include <condition_variable>
#include <deque>
#include <mutex>
#include <optional>
#include <thread>

namespace tarvelo::engine {

// Keeps a few seconds of sound ready ahead of what is heard, decoded and stretched in a thread of
// its own. Knows which second of the sound every frame comes from, over all changes of rate. For
// any thread.
class SoundAhead final : public SoundSupply
{
public:
    static constexpr int SecondsAhead = 3;
    // Of what has been taken, so much may be wanted again.
    static constexpr int SecondsBehind = 3;

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
    std::int64_t takeStepBack() override;
    std::size_t take(std::span<float> interleaved) override;
    bool isAtEnd() const override;
    double secondsAt(double frame) const override;
    void restartAt(double frame) override;

private:
    // From the frame on the sound comes from the second, at the rate.
    struct Stretch
    {
        std::int64_t frame = 0;
        double seconds = 0;
        double rate = 1;
        bool isJump = false;
    };
    struct Order
    {
        bool isRestart = false;
        std::optional<double> seconds;
        double rate = 1;
    };
    using Lock = std::unique_lock<std::mutex>;

    void work();
    void workOnce(Lock &lock);
    void restart(Lock &lock);
    void splice(Lock &lock);
    void replaceFrom(const Stretch &stretch, std::span<float> samples);
    void produce(Lock &lock);
    void append(std::span<const float> samples);
    void fadeIn(std::int64_t at, std::span<float> samples) const;
    void cutAt(std::int64_t frame);
    void tellTaker(Lock &lock);
    std::size_t offsetOf(std::int64_t frame) const;
    Stretch stretchFrom(std::int64_t frame, const Order &order) const;
    double soundAt(double frame) const;
    bool hasRoom() const;
    std::int64_t end() const;
    std::int64_t framesIn(double seconds) const;
    std::unique_ptr<SoundAtRate> soundFrom(const Stretch &stretch);
    std::size_t channels() const { return static_cast<std::size_t>(m_format.channels); }

    std::unique_ptr<DecodedSource> m_source; // the thread's
    std::unique_ptr<SoundAtRate> m_sound;    // the thread's
    std::vector<float> m_block;              // the thread's
    const PcmFormat m_format;
    const double m_seconds;
    SoundTaker *m_taker = nullptr;

    mutable std::mutex m_mutex;
    std::condition_variable m_wake;
    std::optional<Order> m_order;
    std::deque<float> m_kept;    // what was taken last, and what is ready
    std::int64_t m_keptFrom = 0; // its first frame
    std::int64_t m_taken = 0;    // the first frame of what is ready
    std::int64_t m_stepBack = 0;
    std::vector<Stretch> m_stretches{Stretch()};
    bool m_isComplete = false; // nothing comes behind what is ready
    bool m_isShort = false;    // somebody got too little
    bool m_isLeaving = false;
    std::thread m_thread;
};

} // namespace tarvelo::engine
