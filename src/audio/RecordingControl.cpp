#include "audio/RecordingControl.h"

#include "audio/AudioFileLocations.h"
#include "audio/Playback.h"
#include "audio/engine/AudioEngine.h"
#include "platform/Announcer.h"
#include "platform/Dates.h"
#include "platform/SleepInhibitor.h"
#include "platform/Texts.h"
#include "widgets/ImageButton.h"

#include <QDateTime>
#include <QFile>
#include <QWidget>

#include <chrono>

using namespace std::chrono_literals;

namespace tarvelo::audio {

using engine::AudioRecorder;
using platform::Dates;

namespace {

constexpr auto ClockTick = 1000ms;
constexpr auto AfterStop = 500ms;

double secondsSince1970(const QDateTime &moment)
{
    return static_cast<double>(moment.toMSecsSinceEpoch()) / 1000.0;
}

} // namespace

RecordingControl::RecordingControl(engine::AudioEngine &engine, const AudioFileLocations &locations,
                                   const Dates &dates, Playback &playback,
                                   platform::SleepInhibitor &sleep, const RecordingOutlets &outlets,
                                   const ClockOutlets &clock)
    : m_engine(engine)
    , m_locations(locations)
    , m_dates(dates)
    , m_playback(playback)
    , m_sleep(sleep)
    , m_outlets(outlets)
    , m_display(dates, outlets, clock)
    , m_postRecordingFinished(dates.clock(), [this] { postRecordingFinished(); })
{
}

QVariantMap RecordingControl::audioRecordingSettings()
{
    using Setting = engine::RecorderSettingKeys;
    return {{Setting::SampleRate, 44100.0F},
            {Setting::NumberOfChannels, 2},
            {Setting::EncoderBitRate, 80000},
            {Setting::Format, 0x61616320}, // 'aac '
            {Setting::EncoderQuality, 0}};
}

bool RecordingControl::isRecordingNow() const
{
    return m_bIsRecording || m_outlets.newNoteWindow->isVisible();
}

bool RecordingControl::isTakingSound() const
{
    return m_recording && !m_display.isPauseOn();
}

engine::SoundHeard RecordingControl::soundHeard() const
{
    return m_recorder ? m_recorder->soundHeard() : engine::SoundHeard();
}

void RecordingControl::resetPauses()
{
    m_pauseTimeInterval = 0;
    m_durationPause = 0;
}

void RecordingControl::say(const char *textKey) const
{
    platform::announce(*m_outlets.newNoteWindow, platform::text(textKey));
}

void RecordingControl::tellObserver(TakeEvent event) const
{
    if (m_takeObserver)
        m_takeObserver(event);
}

void RecordingControl::removeTemporaryFile()
{
    if (QFile::exists(m_locations.tempAudioSavePath()))
        QFile::remove(m_locations.tempAudioSavePath());
}

void RecordingControl::makeAndStartRecorder()
{
    m_recorder = m_engine.makeRecorder(m_locations.tempAudioSavePath(), audioRecordingSettings());
    if (!m_recorder)
        return;
    m_recorder->setDelegate(this);
    if (!m_recorder->prepareToRecord()) {
        // Whoever stops this take then finds no recorder, and leaves the file alone.
        m_recorder.reset();
        return;
    }
    runRecorder();
    m_recorder->setMeteringEnabled(true);
    m_recording = true;
}

void RecordingControl::startRecording(QWidget *sender)
{
    // A take that was stopped a moment ago is finished now: half a second later its end would stop
    // the new one.
    if (m_postRecordingFinished.pendingCount() > 0) {
        m_postRecordingFinished.cancel();
        postRecordingFinished();
    }

    removeTemporaryFile();
    m_playback.discardPlayer();
    makeAndStartRecorder();
    say("ANNOUNCE_RECORDING_STARTED");

    m_display.takeStarts();
    m_outlets.btnStopRecord->setAction(
        {"stopRecording", [this](QWidget *from) { stopRecording(from); }});

    m_floatRecordingDuration = 0;
    // Also when there is no recorder: the take then counts as running though nothing is captured,
    // as is wanted.
    m_recording = true;
    beginStretch(0);
    m_durationPause = 0;
    tellObserver(TakeEvent::Started);
    m_display.offerPause(sender);
}

void RecordingControl::pauseResumeRecording(QWidget *)
{
    const bool pausing = m_display.isPauseOn();
    if (pausing)
        pauseTake();
    else
        resumeTake();
    tellObserver(pausing ? TakeEvent::Paused : TakeEvent::Resumed);
}

void RecordingControl::pauseTake()
{
    say("ANNOUNCE_RECORDING_PAUSED");
    m_pauseTimeInterval = secondsSince1970(m_dates.now());
    m_display.takePauses();
    if (m_recorder)
        m_recorder->pause();
}

void RecordingControl::resumeTake()
{
    say("ANNOUNCE_RECORDING_RESUMED");
    beginStretch(soundHeard().arrived);
    m_display.takeGoesOn();
    // Cut to whole seconds at each resume, which is wanted: two pauses of 2.7 s count as 2 and
    // then 4.
    m_durationPause = static_cast<qint64>(secondsSince1970(m_dates.now()) - m_pauseTimeInterval +
                                          static_cast<double>(m_durationPause));
    if (m_recorder)
        m_recorder->record();
}

void RecordingControl::runRecorder()
{
    m_sleep.hold();
    m_recorder->record();
    m_recorder->updateMeters();
}

void RecordingControl::stopRecorder()
{
    if (m_recorder)
        m_recorder->stop();
    m_sleep.release();
}

void RecordingControl::stopRecording(QWidget *)
{
    say("ANNOUNCE_RECORDING_STOPPED");
    m_recording = false;
    m_bIsRecordingSaved = true;
    m_display.takeStops();
    m_floatRecordingDuration = recorderTime();
    stopRecorder();
    m_postRecordingFinished.schedule(AfterStop);
    m_outlets.btnStopRecord->setAction(
        {"playRecordTemp", [this](QWidget *from) { m_playback.playRecordTemp(from); }});
    m_durationPause = 0;
    tellObserver(TakeEvent::Stopped);
}

void RecordingControl::startStopRecording(QWidget *)
{
    if (m_recording) {
        m_recording = false;
        m_floatRecordingDuration = recorderTime();
        m_display.disablePause();
        stopRecorder();
        m_postRecordingFinished.schedule(AfterStop);
        tellObserver(TakeEvent::Stopped);
        return;
    }
    removeTemporaryFile();
    m_floatRecordingDuration = 0;
    m_durationPause = 0;
    // Also without a recorder, when nothing will be recorded: wanted so.
    m_recording = true;
    beginStretch(0);
    if (m_recorder) {
        m_recorder->prepareToRecord();
        runRecorder();
    }
    m_display.enablePause();
    tellObserver(TakeEvent::Started);
}

void RecordingControl::postRecordingFinished()
{
    m_recording = false;
    stopRecorder();
    m_recorder.reset();
    invalidateLevelTimer();
    m_display.takeHasEnded(m_floatRecordingDuration);
}

void RecordingControl::onMaxRecordingTimeReached()
{
    startStopRecording(m_outlets.btnStartStopRecording);
}

void RecordingControl::onSetTimeTag(QWidget *)
{
    m_display.appendTimeTag();
    tellObserver(TakeEvent::Tagged);
}

void RecordingControl::closeTake()
{
    stopRecorder();
}

void RecordingControl::discardTake()
{
    say("ANNOUNCE_RECORDING_DISCARDED");
    m_recording = false;
    stopRecorder();
    removeTemporaryFile();
    invalidateLevelTimer();
    m_display.clear();
}

void RecordingControl::takeWasSaved()
{
    m_floatRecordingDuration = 0;
    m_durationPause = 0;
}

void RecordingControl::startDisplayTimer()
{
    m_timerDateTimeDisplay = m_dates.clock().callEvery(ClockTick, [this] { updateTimeDisplay(); });
}

void RecordingControl::updateTimeDisplay()
{
    if (m_recording && m_recorder)
        m_display.showLength(recorderTime());
    m_playback.updateTimeDisplay();
    m_display.tick();
}

void RecordingControl::audioRecorderDidFinishRecordingSuccessfully(AudioRecorder *recorder, bool)
{
    recorder->stop();
    m_sleep.release();
}

} // namespace tarvelo::audio
