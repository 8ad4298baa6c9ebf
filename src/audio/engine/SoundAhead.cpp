#include "audio/engine/SoundAhead.h"

#include "audio/engine/SignalMask.h"

#include <algorithm>
#include <cmath>
#include <system_error>
#include <utility>

namespace tarvelo::engine {

namespace {

constexpr std::size_t BlockFrames = 4096;
// What replaces other sound lasts until more has been made, also on a machine with much to do.
constexpr std::size_t SpliceFrames = 5 * BlockFrames;

// A change happens this far behind what can no longer be changed, since that moves on meanwhile;
// and further when that proves too near.
constexpr double SpliceAhead = 0.05;
// Two sounds that do not fit are laid over each other for so long.
constexpr double FadeSeconds = 0.01;

} // namespace

SoundAhead::SoundAhead(std::unique_ptr<DecodedSource> source)
    : m_source(std::move(source))
    , m_format(m_source->format())
    , m_seconds(m_source->seconds())
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
        m_order = Order{true, seconds, rate};
        m_kept.clear();
        m_keptFrom = 0;
        m_taken = 0;
        m_stepBack = 0;
        m_stretches.assign(1, Stretch{0, seconds, rate, false});
        m_isComplete = false;
        m_isShort = false;
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

void SoundAhead::changeRate(double rate)
{
    {
        const std::lock_guard lock(m_mutex);
        if (!m_order)
            m_order = Order();
        m_order->rate = rate;
        if (m_order->isRestart)
            m_stretches.assign(1, Stretch{0, *m_order->seconds, rate, false});
    }
    m_wake.notify_one();
}

void SoundAhead::jump(double seconds)
{
    {
        const std::lock_guard lock(m_mutex);
        if (!m_order)
            m_order = Order{false, std::nullopt, m_stretches.back().rate};
        m_order->seconds = seconds;
        if (m_order->isRestart)
            m_stretches.assign(1, Stretch{0, seconds, m_order->rate, false});
    }
    m_wake.notify_one();
}

std::int64_t SoundAhead::takeStepBack()
{
    const std::lock_guard lock(m_mutex);
    return std::exchange(m_stepBack, 0);
}

std::size_t SoundAhead::take(std::span<float> interleaved)
{
    std::size_t given = 0;
    {
        const std::lock_guard lock(m_mutex);
        const auto ready = m_kept.begin() + static_cast<std::ptrdiff_t>(offsetOf(m_taken));
        given = std::min(interleaved.size(), m_kept.size() - offsetOf(m_taken));
        std::copy_n(ready, given, interleaved.begin());
        m_taken += static_cast<std::int64_t>(given / channels());
        m_isShort = given < interleaved.size();
        const auto oldest = std::max(m_keptFrom, m_taken - framesIn(SecondsBehind));
        m_kept.erase(m_kept.begin(),
                     m_kept.begin() + static_cast<std::ptrdiff_t>(offsetOf(oldest)));
        m_keptFrom = oldest;
    }
    m_wake.notify_one();
    return given / channels();
}

std::size_t SoundAhead::offsetOf(std::int64_t frame) const
{
    return static_cast<std::size_t>(std::max<std::int64_t>(frame - m_keptFrom, 0)) * channels();
}

bool SoundAhead::isAtEnd() const
{
    const std::lock_guard lock(m_mutex);
    return m_isComplete && m_taken == end() && !m_order;
}

double SoundAhead::secondsAt(double frame) const
{
    const std::lock_guard lock(m_mutex);
    if (m_order && m_order->seconds)
        return *m_order->seconds;
    // Who has jumped is there, though the sound takes a moment to follow.
    const Stretch &last = m_stretches.back();
    if (last.isJump && frame < static_cast<double>(last.frame))
        return last.seconds;
    return soundAt(frame);
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
    const double seconds = secondsAt(frame);
    double rate = 1;
    {
        const std::lock_guard lock(m_mutex);
        rate = m_order ? m_order->rate : m_stretches.back().rate;
    }
    start(seconds, rate);
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
    else if (m_order)
        splice(lock);
    else if (hasRoom())
        produce(lock);
    else
        m_wake.wait(lock);
}

void SoundAhead::restart(Lock &lock)
{
    m_order.reset();
    const Stretch first = m_stretches.front();
    lock.unlock();
    m_sound = soundFrom(first);
    lock.lock();
}

void SoundAhead::splice(Lock &lock)
{
    for (double ahead = SpliceAhead;; ahead *= 2) {
        const Order order = *m_order;
        lock.unlock();
        const std::int64_t first = m_taker->firstReplaceableFrame();
        lock.lock();
        const std::int64_t place = std::clamp(first + framesIn(ahead), m_keptFrom, end());
        const Stretch stretch = stretchFrom(place, order);
        lock.unlock();
        auto sound = soundFrom(stretch);
        m_block.resize(SpliceFrames * channels());
        const std::size_t count = sound->read(m_block);
        const bool isTooLate = m_taker->firstReplaceableFrame() > place;
        lock.lock();
        if (m_isLeaving || m_order->isRestart)
            return;
        const bool isOldNews = m_order->rate != order.rate || m_order->seconds != order.seconds;
        if (isOldNews || (isTooLate && place < end()))
            continue;
        m_sound = std::move(sound);
        replaceFrom(stretch, std::span(m_block).first(count * channels()));
        break;
    }
    tellTaker(lock);
}

void SoundAhead::replaceFrom(const Stretch &stretch, std::span<float> samples)
{
    m_order.reset();
    fadeIn(stretch.frame, samples);
    cutAt(stretch.frame);
    m_stretches.push_back(stretch);
    append(samples);
    m_isComplete = false;
    m_stepBack += std::max<std::int64_t>(m_taken - stretch.frame, 0);
    m_taken = std::min(m_taken, stretch.frame);
    m_isShort = true;
}

void SoundAhead::tellTaker(Lock &lock)
{
    if (!std::exchange(m_isShort, false))
        return;
    lock.unlock();
    m_taker->moreIsThere();
    lock.lock();
}

SoundAhead::Stretch SoundAhead::stretchFrom(std::int64_t frame, const Order &order) const
{
    if (order.seconds)
        return {frame, *order.seconds, order.rate, true};
    const Stretch &last = m_stretches.back();
    if (last.isJump && frame < last.frame)
        return {frame, last.seconds, order.rate, true};
    return {frame, soundAt(static_cast<double>(frame)), order.rate, false};
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
    m_kept.insert(m_kept.end(), samples.begin(), samples.end());
}

// The sound that is ready goes while the new one comes.
void SoundAhead::fadeIn(std::int64_t at, std::span<float> samples) const
{
    const std::size_t offset = offsetOf(at) / channels();
    const std::size_t fade =
        std::min(static_cast<std::size_t>(framesIn(FadeSeconds)), samples.size() / channels());
    for (std::size_t frame = 0; frame < fade; ++frame) {
        const float share = static_cast<float>(frame + 1) / static_cast<float>(fade + 1);
        for (std::size_t channel = 0; channel < channels(); ++channel) {
            const std::size_t old = (offset + frame) * channels() + channel;
            float &sample = samples[frame * channels() + channel];
            sample *= share;
            if (old < m_kept.size())
                sample += m_kept[old] * (1 - share);
        }
    }
}

void SoundAhead::cutAt(std::int64_t frame)
{
    m_kept.resize(std::min(m_kept.size(), offsetOf(frame)));
    std::erase_if(m_stretches, [frame](const Stretch &it) { return it.frame >= frame; });
}

bool SoundAhead::hasRoom() const
{
    return m_sound && !m_isComplete && end() - m_taken < framesIn(SecondsAhead);
}

std::int64_t SoundAhead::end() const
{
    return m_keptFrom + static_cast<std::int64_t>(m_kept.size() / channels());
}

std::int64_t SoundAhead::framesIn(double seconds) const
{
    return std::llround(seconds * m_format.rate);
}

std::unique_ptr<SoundAtRate> SoundAhead::soundFrom(const Stretch &stretch)
{
    return std::make_unique<SoundAtRate>(*m_source, framesIn(stretch.seconds), stretch.rate);
}

} // namespace tarvelo::engine
