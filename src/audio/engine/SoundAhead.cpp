#include "audio/engine/SoundAhead.h"

#include "audio/engine/SignalMask.h"

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
        const AllSignalsBlocked blocked;
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
    m_taken = 0;
    m_stretches.assign(1, Stretch{0, seconds, rate, false});
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
        const double rate = m_order ? m_order->rate : m_stretches.back().rate;
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
        const std::size_t kept = m_isComplete ? 0 : fadeSamples();
        given = std::min(interleaved.size(), m_ready.size() - std::min(kept, m_ready.size()));
        const auto end = m_ready.begin() + static_cast<std::ptrdiff_t>(given);
        std::copy(m_ready.begin(), end, interleaved.begin());
        m_ready.erase(m_ready.begin(), end);
        m_taken += static_cast<std::int64_t>(given / channels());
        m_isShort = given < interleaved.size();
    }
    m_wake.notify_one();
    return given / channels();
}

bool SoundAhead::isAtEnd() const
{
    const std::lock_guard lock(m_mutex);
    return m_isComplete && m_ready.empty() && !m_order;
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
    // Who has jumped is there, though the sound takes a moment to follow.
    const auto isAhead = [frame](const Stretch &it) {
        return it.isJump && static_cast<double>(it.frame) > frame;
    };
    const auto found = std::find_if(m_stretches.rbegin(), m_stretches.rend(), isAhead);
    return found == m_stretches.rend() ? soundAt(frame) : found->seconds;
}

double SoundAhead::soundAt(double frame) const
{
    const auto isBefore = [frame](const Stretch &it) {
        return static_cast<double>(it.frame) <= frame;
    };
    auto found = std::find_if(m_stretches.rbegin(), m_stretches.rend(), isBefore);
    if (found == m_stretches.rend())
        --found;
    const double passed = (frame - static_cast<double>(found->frame)) / m_format.rate;
    return std::clamp(found->seconds + passed * found->rate, 0.0, m_seconds);
}

void SoundAhead::restartAt(double frame)
{
    {
        const std::lock_guard lock(m_mutex);
        beginAt(heardAt(frame), m_order ? m_order->rate : m_stretches.back().rate);
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
    else if (m_order && !m_order->seconds && m_order->rate == m_stretches.back().rate)
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
    const Stretch first = m_stretches.front();
    lock.unlock();
    m_sound = soundFrom(first);
    lock.lock();
}

bool SoundAhead::canChange() const
{
    return m_sound && (m_isComplete || m_isShort || end() - m_taken >= framesIn(ReadyForChange));
}

// The old sound cannot go on once the source has been moved for the new one: when the new one is
// too late again and again, it begins where the old one ends.
void SoundAhead::change(Lock &lock)
{
    while (!m_isLeaving && !m_order->isRestart) {
        const Order order = *m_order;
        const Stretch next = stretchFrom(placeForChange(), order);
        lock.unlock();
        auto sound = soundFrom(next);
        m_block.resize(ChangeFrames * channels());
        const std::size_t count = sound->read(m_block);
        lock.lock();
        const bool isTooLate = m_taken > next.frame;
        m_margin = std::clamp(m_margin * (isTooLate ? 2 : 0.7), ShortestMargin, LongestMargin);
        if (isTooLate || *m_order != order)
            continue;
        m_sound = std::move(sound);
        m_order.reset();
        replaceFrom(next, std::span(m_block).first(count * channels()));
        m_isComplete = count < ChangeFrames;
        tellTaker(lock);
        return;
    }
}

std::int64_t SoundAhead::placeForChange() const
{
    const std::int64_t place =
        std::min(m_taken + framesIn(m_margin), end() - framesIn(FadeSeconds));
    return std::max(place, m_taken);
}

SoundAhead::Stretch SoundAhead::stretchFrom(std::int64_t frame, const Order &order) const
{
    if (order.seconds)
        return {frame, *order.seconds, order.rate, true};
    // It takes the place of a jump that nobody has heard yet.
    const Stretch &last = m_stretches.back();
    if (last.isJump && frame <= last.frame)
        return {frame, last.seconds, order.rate, true};
    // From a whole frame on, as the source can be moved to no other place.
    const double seconds = soundAt(static_cast<double>(frame));
    return {frame, static_cast<double>(framesIn(seconds)) / m_format.rate, order.rate, false};
}

void SoundAhead::replaceFrom(const Stretch &stretch, std::span<float> samples)
{
    const std::size_t kept = static_cast<std::size_t>(stretch.frame - m_taken) * channels();
    fadeIn(samples, kept);
    m_ready.resize(std::min(m_ready.size(), kept));
    std::erase_if(m_stretches, [&](const Stretch &it) { return it.frame >= stretch.frame; });
    forgetOldStretches();
    m_stretches.push_back(stretch);
    append(samples);
}

void SoundAhead::produce(Lock &lock)
{
    lock.unlock();
    m_block.resize(BlockFrames * channels());
    const std::size_t count = m_sound->read(m_block);
    lock.lock();
    if (m_order && m_order->isRestart)
        return;
    append(std::span(m_block).first(count * channels()));
    m_isComplete = count < BlockFrames;
    tellTaker(lock);
}

void SoundAhead::append(std::span<const float> samples)
{
    m_ready.insert(m_ready.end(), samples.begin(), samples.end());
}

void SoundAhead::tellTaker(Lock &lock)
{
    if (!std::exchange(m_isShort, false))
        return;
    lock.unlock();
    m_taker->moreIsThere();
    lock.lock();
}

// The sound that is ready from the sample on goes while the new one comes.
void SoundAhead::fadeIn(std::span<float> samples, std::size_t from) const
{
    const std::size_t fade = fadeSamples();
    const std::size_t steps = fade / channels() + 1;
    for (std::size_t at = 0; at < std::min(fade, samples.size()); ++at) {
        const std::size_t step = at / channels() + 1;
        const float share = static_cast<float>(step) / static_cast<float>(steps);
        const float old = from + at < m_ready.size() ? m_ready[from + at] : 0;
        samples[at] = share * samples[at] + (1 - share) * old;
    }
}

void SoundAhead::forgetOldStretches()
{
    const std::int64_t heard = m_taken - framesIn(LongestDelay);
    while (m_stretches.size() > 1 && m_stretches[1].frame < heard)
        m_stretches.erase(m_stretches.begin());
}

bool SoundAhead::hasRoom() const
{
    return m_sound && !m_isComplete && end() - m_taken < framesIn(SecondsAhead);
}

std::int64_t SoundAhead::end() const
{
    return m_taken + static_cast<std::int64_t>(m_ready.size() / channels());
}

std::int64_t SoundAhead::framesIn(double seconds) const
{
    return std::llround(seconds * m_format.rate);
}

std::size_t SoundAhead::fadeSamples() const
{
    return static_cast<std::size_t>(framesIn(FadeSeconds)) * channels();
}

std::unique_ptr<SoundAtRate> SoundAhead::soundFrom(const Stretch &stretch)
{
    return std::make_unique<SoundAtRate>(*m_source, framesIn(stretch.seconds), stretch.rate);
}

} // namespace tarvelo::engine
