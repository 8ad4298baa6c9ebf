#include "audio/RecordingControl.h"

#include "audio/AudioFileLocations.h"
#include "audio/DurationText.h"
#include "audio/Playback.h"
#include "platform/Announcer.h"
#include "platform/Dates.h"
#include "platform/SleepInhibitor.h"
#include "platform/Texts.h"
#include "widgets/ImageButton.h"
#include "widgets/LevelIndicator.h"
#include "widgets/WholeText.h"

#include <QFile>
#include <QLabel>
#include <QSlider>
#include <QTextCursor>
#include <QTextEdit>

using namespace std::chrono_literals;

namespace tarvelo::audio {

using engine::AudioRecorder;
using platform::Dates;
using widgets::ImageButton;

namespace {

constexpr auto ClockTick = 1000ms;
constexpr auto AfterStop = 500ms;

// The looks of the two buttons, each with its pressed image and tool tip.
void lookPause(ImageButton &button)
{
    button.setLook(QStringLiteral("BtnPause"), QStringLiteral("BtnPauseH"),
                   QStringLiteral("Pause"));
}

void lookResume(ImageButton &button)
{
    button.setLook(QStringLiteral("record"), QStringLiteral("recordH"), QStringLiteral("Resume"));
}

void showStopImage(ImageButton &button, const QString &name)
{
    button.setImage(platform::imageNamed(name));
    button.setAlternateImage(platform::imageNamed(name + u'H'));
}

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
    , m_clockLabels(clock)
    , m_postRecordingFinished(dates.clock(), [this] { postRecordingFinished(); })
{
}

QVariantMap RecordingControl::audioRecordingSettings()
{
    using Setting = engine::RecorderSetting;
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
    return m_recording && m_outlets.btnPauseResumeRecording->state() != 1;
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

    m_outlets.audioLevelMeter->show();
    m_outlets.imgLevelIndicatorBG->show();
    m_outlets.lblRecordingDuration->show();
    m_outlets.sliderPlayProgress2->hide();
    m_outlets.lblElapsedTimeTemp->hide();
    m_outlets.lblRemainingTimeTemp->hide();

    m_outlets.btnStopRecord->setAction(
        {"stopRecording", [this](QWidget *from) { stopRecording(from); }});
    m_outlets.btnStopRecord->setLook(QStringLiteral("stopRed"), QStringLiteral("stopRedH"),
                                     QStringLiteral("Stop"));
    m_outlets.btnStopRecord->setEnabled(true);
    m_outlets.btnTimeTag->show();

    m_floatRecordingDuration = 0;
    // Also when there is no recorder: the take then counts as running though nothing is captured,
    // as is wanted.
    m_recording = true;
    beginStretch(0);
    m_durationPause = 0;
    tellObserver(TakeEvent::Started);

    // A take that was left while it was paused left the toggle on.
    if (m_outlets.btnPauseResumeRecording->state() == 1) {
        m_outlets.btnPauseResumeRecording->setState(0);
        lookPause(*m_outlets.btnPauseResumeRecording);
    }
    // Shown before the pressed one hides, so that the keyboard focus has where to go.
    m_outlets.btnPauseResumeRecording->setEnabled(true);
    m_outlets.btnPauseResumeRecording->show();
    if (sender) {
        if (sender->hasFocus())
            m_outlets.btnPauseResumeRecording->setFocus();
        sender->hide();
    }
}

void RecordingControl::pauseResumeRecording(QWidget *)
{
    const bool pausing = m_outlets.btnPauseResumeRecording->state() == 1;
    if (pausing)
        pauseTake();
    else
        resumeTake();
    m_outlets.btnTimeTag->setHidden(pausing);
    tellObserver(pausing ? TakeEvent::Paused : TakeEvent::Resumed);
}

void RecordingControl::pauseTake()
{
    say("ANNOUNCE_RECORDING_PAUSED");
    m_pauseTimeInterval = secondsSince1970(m_dates.now());
    lookResume(*m_outlets.btnPauseResumeRecording);
    showStopImage(*m_outlets.btnStopRecord, QStringLiteral("stop"));
    m_outlets.audioLevelMeter->setFloatValue(0);
    if (m_recorder)
        m_recorder->pause();
}

void RecordingControl::resumeTake()
{
    say("ANNOUNCE_RECORDING_RESUMED");
    beginStretch(soundHeard().arrived);
    lookPause(*m_outlets.btnPauseResumeRecording);
    showStopImage(*m_outlets.btnStopRecord, QStringLiteral("stopRed"));
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
    m_outlets.btnPauseResumeRecording->hide();
    m_outlets.btnPauseResumeRecording->setState(0);
    // Out and in again: the start button stays hidden, as is wanted.
    m_outlets.btnStartRecord->setHidden(false);
    m_outlets.btnStartRecord->setHidden(true);
    m_floatRecordingDuration = recorderTime();
    stopRecorder();
    m_outlets.btnPauseResumeRecording->setEnabled(false);
    m_postRecordingFinished.schedule(AfterStop);
    m_outlets.btnStopRecord->setLook(QStringLiteral("play"), QStringLiteral("playH"),
                                     QStringLiteral("Play"));
    m_outlets.btnStopRecord->setAction(
        {"playRecordTemp", [this](QWidget *from) { m_playback.playRecordTemp(from); }});
    m_durationPause = 0;
    m_outlets.btnTimeTag->hide();
    tellObserver(TakeEvent::Stopped);
}

void RecordingControl::startStopRecording(QWidget *)
{
    if (m_recording) {
        m_recording = false;
        m_floatRecordingDuration = recorderTime();
        m_outlets.btnPauseResumeRecording->setState(0);
        stopRecorder();
        m_outlets.btnPauseResumeRecording->setEnabled(false);
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
    m_outlets.btnPauseResumeRecording->setEnabled(true);
    tellObserver(TakeEvent::Started);
}

void RecordingControl::postRecordingFinished()
{
    m_recording = false;
    stopRecorder();
    m_recorder.reset();
    lookPause(*m_outlets.btnPauseResumeRecording);
    invalidateLevelTimer();
    m_outlets.audioLevelMeter->setFloatValue(0);
    m_outlets.lblRecordingDuration->setText(QString());
    m_outlets.lblRecordingDuration->setText(getDuration(wholeSeconds(m_floatRecordingDuration)));
}

void RecordingControl::onMaxRecordingTimeReached()
{
    startStopRecording(m_outlets.btnStartStopRecording);
}

void RecordingControl::onSetTimeTag(QWidget *)
{
    QTextEdit &notes = *m_outlets.txtView;
    const QString text =
        QStringLiteral("%1\n\n%2\n")
            .arg(widgets::wholeText(notes), m_outlets.lblRecordingDuration->text());
    // One replacement with the format that typing has, so that one undo takes the tag back.
    const QTextCharFormat typing = notes.currentCharFormat();
    QTextCursor cursor = notes.textCursor();
    cursor.select(QTextCursor::Document);
    cursor.insertText(text, typing);
    notes.setTextCursor(cursor);
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
    m_outlets.audioLevelMeter->setFloatValue(0);
    m_outlets.lblRecordingDuration->setText(QString());
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
        m_outlets.lblRecordingDuration->setText(getDuration(wholeSeconds(recorderTime())));
    m_playback.updateTimeDisplay();
    // The labels follow the minute; a tick that skips second 00 leaves them a minute behind, which
    // is accepted.
    if (m_dates.formatFixed(m_dates.now(), QStringLiteral("ss")).toInt() == 0) {
        showTimeOfDay();
        showDate();
    }
}

void RecordingControl::showTimeOfDay()
{
    const QString time = m_dates.format(m_dates.now(), Dates::Style::None, Dates::Style::Short);
    for (QLabel *label :
         {m_clockLabels.textTime, m_clockLabels.textEditTime, m_clockLabels.tEditTime})
        label->setText(time);
}

void RecordingControl::showDate()
{
    const QString date = m_dates.format(m_dates.now(), Dates::Style::Medium, Dates::Style::None);
    for (QLabel *label :
         {m_clockLabels.textDate, m_clockLabels.textEditDate, m_clockLabels.tEditDate})
        label->setText(date);
}

void RecordingControl::audioRecorderDidFinishRecordingSuccessfully(AudioRecorder *recorder, bool)
{
    recorder->stop();
    m_sleep.release();
}

} // namespace tarvelo::audio
