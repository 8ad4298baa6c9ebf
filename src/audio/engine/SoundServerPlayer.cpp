#include "audio/engine/SoundServerPlayer.h"

#include "audio/engine/DecodedSource.h"
#include "audio/engine/PulseOutput.h"

#include <QCoreApplication>
#include <QMetaObject>

#include <algorithm>
#include <cmath>
#include <utility>

namespace tarvelo::engine {

std::unique_ptr<SoundServerPlayer> SoundServerPlayer::create(const QByteArray &bytes)
{
    auto source = DecodedSource::open(bytes);
    return source ? std::make_unique<SoundServerPlayer>(std::move(source)) : nullptr;
}

SoundServerPlayer::SoundServerPlayer(std::unique_ptr<DecodedSource> source)
    : m_self(std::make_shared<SoundServerPlayer *>(this))
    , m_ahead(std::make_unique<SoundAhead>(std::move(source)))
{
    const auto tellOfEnd = [weak = std::weak_ptr(m_self)] {
        if (!QCoreApplication::instance())
            return;
        const auto end = [weak] {
            if (const auto self = weak.lock())
                (*self)->ended();
        };
        QMetaObject::invokeMethod(QCoreApplication::instance(), end, Qt::QueuedConnection);
    };
    m_output = std::make_unique<PulseOutput>(tellOfEnd);
    m_ahead->setTaker(m_output.get());
}

SoundServerPlayer::~SoundServerPlayer()
{
    m_output->stop();
}

double SoundServerPlayer::soundRate() const
{
    return std::clamp(static_cast<double>(m_rate), SlowestRate, FastestRate);
}

bool SoundServerPlayer::prepareToPlay()
{
    if (!m_output->prepare())
        return false;
    if (m_sound == Sound::None && m_ahead->start(m_lastTime, soundRate()))
        m_sound = Sound::Ready;
    return m_sound != Sound::None;
}

bool SoundServerPlayer::play()
{
    if (m_isPlaying) {
        m_output->resume();
        return true;
    }
    if (currentTime() >= duration())
        setCurrentTime(0);
    if (!prepareToPlay())
        return false;
    if (m_sound == Sound::Streaming)
        m_output->resume();
    else
        m_output->start(*m_ahead);
    m_sound = Sound::Streaming;
    m_isPlaying = true;
    return true;
}

void SoundServerPlayer::pause()
{
    if (!m_isPlaying)
        return;
    m_output->pause();
    m_isPlaying = false;
}

void SoundServerPlayer::stop()
{
    pause();
    forgetSound();
}

double SoundServerPlayer::currentTime() const
{
    return m_sound == Sound::Streaming ? m_output->seconds() : m_lastTime;
}

void SoundServerPlayer::setCurrentTime(double seconds)
{
    const double wanted = std::isfinite(seconds) ? std::clamp(seconds, 0.0, duration()) : 0.0;
    if (m_isPlaying) {
        m_ahead->jump(wanted);
        return;
    }
    forgetSound();
    m_lastTime = wanted;
}

void SoundServerPlayer::setRate(float rate)
{
    if (!std::isfinite(rate) || rate <= 0 || rate == m_rate)
        return;
    m_rate = rate;
    if (m_isPlaying)
        m_ahead->changeRate(soundRate());
    else
        forgetSound();
}

void SoundServerPlayer::forgetSound()
{
    m_lastTime = currentTime();
    m_output->stop();
    m_sound = Sound::None;
}

// The news was on its way while the user may have gone elsewhere.
void SoundServerPlayer::ended()
{
    if (!m_isPlaying || !m_output->isFinished())
        return;
    m_isPlaying = false;
    forgetSound();
    m_lastTime = 0;
    if (m_delegate)
        m_delegate->audioPlayerDidFinishPlayingSuccessfully(this, true);
}

} // namespace tarvelo::engine
