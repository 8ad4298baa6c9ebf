#include "audio/engine/SoundServerRecorder.h"

#include "audio/engine/PulseCapture.h"
#include "audio/engine/Take.h"

#include <QCoreApplication>
#include <QObject>

#include <chrono>
#include <utility>

namespace tarvelo::engine {

namespace {

// A server that is there answers within a few milliseconds; this is how long the main thread waits
// for one that hangs.
constexpr std::chrono::milliseconds Patience{1000};

} // namespace

SoundServerRecorder::SoundServerRecorder(std::string path, const RecorderSettings &settings)
    : m_path(std::move(path))
    , m_settings(settings)
{
    m_tellDelegate.setSingleShot(true);
    QObject::connect(&m_tellDelegate, &QTimer::timeout, &m_tellDelegate, [this] {
        if (m_delegate)
            m_delegate->audioRecorderDidFinishRecordingSuccessfully(this, m_isComplete);
    });
}

SoundServerRecorder::~SoundServerRecorder()
{
    m_delegate = nullptr;
    stop();
}

void SoundServerRecorder::setDelegate(AudioRecorderDelegate *delegate)
{
    m_delegate = delegate;
}

bool SoundServerRecorder::prepareToRecord()
{
    if (m_take)
        return true;
    m_lastTime = 0;
    auto capture = PulseCapture::open(Patience);
    if (!capture)
        return false;
    m_take = Take::start(m_path, capture->format(), m_settings);
    if (!m_take)
        return false;
    m_capture = std::move(capture);
    return true;
}

bool SoundServerRecorder::record()
{
    if (!m_take)
        return false;
    m_capture->resume(*m_take);
    return true;
}

void SoundServerRecorder::pause()
{
    if (m_take)
        m_capture->pause();
}

void SoundServerRecorder::stop()
{
    if (!m_take)
        return;
    m_capture->pause();
    m_capture.reset();
    m_isComplete = m_take->finish();
    m_lastTime = m_take->seconds();
    m_take.reset();
    if (QCoreApplication::instance())
        m_tellDelegate.start(0);
}

double SoundServerRecorder::currentTime() const
{
    return m_take ? m_take->seconds() : m_lastTime;
}

SoundHeard SoundServerRecorder::soundHeard() const
{
    return m_take ? m_take->soundHeard() : SoundHeard();
}

} // namespace tarvelo::engine
