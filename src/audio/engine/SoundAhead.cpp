#include "audio/engine/SoundAhead.h"

#include "audio/engine/DecodedSource.h"
#include "audio/engine/SoundAtRate.h"
#include "platform/SignalMask.h"

#include <algorithm>
#include <cmath>
#include <system_error>
#include <utility>

namespace tarvelo::engine {

namespace {

constexpr std::size_t BlockFrames = 2048;

// So much of another sound is made before it takes the place of the old one, since it may be made
// slowly at first.
constexpr std::size_t ChangeFrames = 8 * BlockFrames;
// A change happens so far ahead of what has been taken: to make that takes 30 ms or so. When it
// proves too near, since the machine has other things to do, it is tried further ahead, as is the
// next one.
constexpr double ShortestMargin = 0.1;
constexpr double LongestMargin = 1.6;
// Before a change, so much of the old sound is made, unless somebody waits for more: it is what is
// heard while that is tried.
constexpr double ReadyForChange = 1;
// Two sounds that do not fit are laid over each other for so long.
constexpr double FadeSeconds = 0.01;
// What an output has taken is heard sooner than this.
constexpr double LongestDelay = 10;

} // namespace

SoundAhead::SoundAhead(std::unique_ptr<DecodedSource> source)
    : m_source(std::move(source))
    , m_format(m_source->format())
    , m_seconds(m_source->seconds())
    , m_margin(ShortestMargin)
    , m_ready(m_format.channels, framesIn(FadeSeconds))
    , m_rates(m_format.rate, m_seconds)
{
}

SoundAhead::~SoundAhead()
{
    {
        const std::lock_guard lock(m_mutex);
        m_isLeaving = true;
    }
    m_source->cancel();
    m_wake.notify_one();
    if (m_thread.joinable())
        m_thread.join();
}

bool SoundAhead::start(double seconds, double rate)
{
    {
        const std::lock_guard lock(m_mutex);
        beginAt(seconds, rate);
    }
    m_wake.notify_one();
    try {
        const platform::AllSignalsBlocked blocked;
        if (!m_thread.joinable())
            m_thread = std::thread([this] { work(); });
        return true;
    } catch (const std::system_error &) {
        return false;
    }
}

void SoundAhead::beginAt(double seconds, double rate)
{
    m_order = Order{true, seconds, rate};
    m_ready.clear();
    m_rates.beginAt(seconds, rate);
    m_isComplete = false;
    m_isShort = false;
}

void SoundAhead::changeRate(double rate)
{
    {
        const std::lock_guard lock(m_mutex);
        if (m_order && m_order->isRestart)
            beginAt(*m_order->seconds, rate);
        else
            m_order = Order{false, m_order ? m_order->seconds : std::nullopt, rate};
    }
    m_wake.notify_one();
}

void SoundAhead::jump(double seconds)
{
    {
        const std::lock_guard lock(m_mutex);
        const double rate = m_order ? m_order->rate : m_rates.lastRate();
        if (m_order && m_order->isRestart)
            beginAt(seconds, rate);
        else
            m_order = Order{false, seconds, rate};
    }
    m_wake.notify_one();
}

std::size_t SoundAhead::take(std::span<float> interleaved)
{
    std::size_t given = 0;
    {
        const std::lock_guard lock(m_mutex);
        // The last moment stays until more is there, so that there is something to fade from.
        given = m_ready.take(interleaved, m_isComplete ? 0 : framesIn(FadeSeconds));
        m_isShort = given < interleaved.size() / channels();
    }
    m_wake.notify_one();
    return given;
}

bool SoundAhead::isAtEnd() const
{
    const std::lock_guard lock(m_mutex);
    return m_isComplete && m_ready.isEmpty() && !m_order;
}

double SoundAhead::secondsAt(double frame) const
{
    const std::lock_guard lock(m_mutex);
    return heardAt(frame);
}

double SoundAhead::heardAt(double frame) const
{
    if (m_order && m_order->seconds)
        return *m_order->seconds;
    return m_rates.secondsAt(frame);
}

void SoundAhead::restartAt(double frame)
{
    {
        const std::lock_guard lock(m_mutex);
        beginAt(heardAt(frame), m_order ? m_order->rate : m_rates.lastRate());
    }
    m_wake.notify_one();
}

void SoundAhead::work()
{
    Lock lock(m_mutex);
    while (!m_isLeaving)
        workOnce(lock);
}

void SoundAhead::workOnce(Lock &lock)
{
    if (m_order && m_order->isRestart)
        restart(lock);
    else if (m_order && !m_order->seconds && m_order->rate == m_rates.lastRate())
        takeBack(lock);
    else if (m_order && canChange())
        change(lock);
    else if (hasRoom())
        produce(lock);
    else
        m_wake.wait(lock);
}

// Who took the last frame while the order stood does not know yet that it was the last one.
void SoundAhead::takeBack(Lock &lock)
{
    m_order.reset();
    if (m_isComplete)
        tellTaker(lock);
}

void SoundAhead::restart(Lock &lock)
{
    m_order.reset();
    const RateMap::Segment first = m_rates.first();
    lock.unlock();
    m_sound = soundFrom(first);
    lock.lock();
}

bool SoundAhead::canChange() const
{
    return m_sound && (m_isComplete || m_isShort || m_ready.frames() >= framesIn(ReadyForChange));
}

// The old sound cannot go on once the source has been moved for the new one: when the new one is
// too late again and again, it begins where the old one ends.
void SoundAhead::change(Lock &lock)
{
    while (!m_isLeaving && !m_order->isRestart) {
        const Order order = *m_order;
        const RateMap::Segment next = segmentFrom(placeForChange(), order);
        lock.unlock();
        auto sound = soundFrom(next);
        m_block.resize(ChangeFrames * channels());
        const std::size_t count = sound->read(m_block);
        lock.lock();
        const bool isTooLate = m_ready.begin() > next.frame;
        m_margin = std::clamp(m_margin * (isTooLate ? 2 : 0.7), ShortestMargin, LongestMargin);
        if (isTooLate || *m_order != order)
            continue;
        m_sound = std::move(sound);
        m_order.reset();
        m_ready.replaceFrom(next.frame, std::span(m_block).first(count * channels()));
        m_rates.replaceFrom(next);
        m_rates.forgetBefore(m_ready.begin() - framesIn(LongestDelay));
        m_isComplete = count < ChangeFrames;
        tellTaker(lock);
        return;
    }
}

std::int64_t SoundAhead::placeForChange() const
{
    const std::int64_t place =
        std::min(m_ready.begin() + framesIn(m_margin), m_ready.end() - framesIn(FadeSeconds));
    return std::max(place, m_ready.begin());
}

RateMap::Segment SoundAhead::segmentFrom(std::int64_t frame, const Order &order) const
{
    if (order.seconds)
        return {frame, *order.seconds, order.rate, true};
    return m_rates.goingOnFrom(frame, order.rate);
}

void SoundAhead::produce(Lock &lock)
{
    lock.unlock();
    m_block.resize(BlockFrames * channels());
    const std::size_t count = m_sound->read(m_block);
    lock.lock();
    if (m_order && m_order->isRestart)
        return;
    m_ready.append(std::span(m_block).first(count * channels()));
    m_isComplete = count < BlockFrames;
    tellTaker(lock);
}

void SoundAhead::tellTaker(Lock &lock)
{
    if (!std::exchange(m_isShort, false))
        return;
    lock.unlock();
    m_taker->moreIsThere();
    lock.lock();
}

bool SoundAhead::hasRoom() const
{
    return m_sound && !m_isComplete && m_ready.frames() < framesIn(SecondsAhead);
}

std::int64_t SoundAhead::framesIn(double seconds) const
{
    return std::llround(seconds * m_format.rate);
}

std::unique_ptr<SoundAtRate> SoundAhead::soundFrom(const RateMap::Segment &stretch)
{
    return std::make_unique<SoundAtRate>(*m_source, framesIn(stretch.seconds), stretch.rate);
}

} // namespace tarvelo::engine
