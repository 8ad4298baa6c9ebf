#pragma once

#include "audio/RecordingDisplay.h"
#include "audio/RecordingOutlets.h"
#include "audio/engine/AudioEngine.h"
#include "audio/engine/Hearing.h"
#include "platform/Clock.h"
#include "platform/DelayedCall.h"

#include <QVariantMap>

#include <functional>
#include <memory>
#include <utility>

class QWidget;

namespace tarvelo::platform {
class Dates;
class SleepInhibitor;
} // namespace tarvelo::platform

namespace tarvelo::audio {

class AudioFileLocations;
class Playback;

// What happens to a take, for who follows it.
enum class TakeEvent { Started, Paused, Resumed, Stopped, Tagged };

// Records one take at a time from the default input into the temporary file: start, pause, resume,
// stop, then the take to listen to. Its display keeps the controls of the new-lecture window in
// step.
// Nothing here is ever shown as an error: the controls change state whether or not sound comes in.
class RecordingControl final : public engine::AudioRecorderDelegate
{
public:
    // All references must outlive this object.
    RecordingControl(engine::AudioEngine &engine, const AudioFileLocations &locations,
                     const platform::Dates &dates, Playback &playback,
                     platform::SleepInhibitor &sleep, const RecordingOutlets &outlets,
                     const ClockOutlets &clock);
    RecordingControl(const RecordingControl &) = delete;
    RecordingControl &operator=(const RecordingControl &) = delete;

    // What a take is recorded with, whatever the preference "fileFormat" says.
    static QVariantMap audioRecordingSettings();

    // True from the start of a take until it is stopped, paused or not.
    bool recording() const { return m_recording; }
    // A stopped take waits that is neither saved nor discarded.
    bool bIsRecordingSaved() const { return m_bIsRecordingSaved; }
    // True while the new-lecture window is visible. The flag beside it is never set; both are
    // wanted.
    bool isRecordingNow() const;
    // Nothing in the program sets it; guards may ask it.
    bool bIsRecordingNeedPreventingQuit() const { return m_bIsRecordingNeedPreventingQuit; }
    // Seconds of the finished take, 0 while there is none.
    double floatRecordingDuration() const { return m_floatRecordingDuration; }
    // Whole seconds spent paused in this take.
    qint64 durationPause() const { return m_durationPause; }
    bool hasRecorder() const { return m_recorder != nullptr; }
    // A take runs and is not paused, whether or not there is anything to record from.
    bool isTakingSound() const;
    // From a start or a resume to the next pause or stop.
    struct Stretch
    {
        int number = 0;
        double begin = 0; // as soundHeard().arrived was
    };
    const Stretch &stretch() const { return m_stretch; }
    engine::SoundHeard soundHeard() const;
    // Of the take that runs, or of the finished one.
    double recordedSeconds() const
    {
        return m_recording ? recorderTime() : m_floatRecordingDuration;
    }

    // Hears of each after it has happened; none is allowed.
    void setTakeObserver(std::function<void(TakeEvent)> observer)
    {
        m_takeObserver = std::move(observer);
    }
    // Zeroes the bookkeeping of pauses.
    void resetPauses();
    void setBIsRecordingNeedPreventingQuit(bool need) { m_bIsRecordingNeedPreventingQuit = need; }

    void startRecording(QWidget *sender);
    void pauseResumeRecording(QWidget *sender);
    void stopRecording(QWidget *sender);
    // Ends a running take without turning the stop button into a play button; otherwise starts
    // again on the recorder that there is, if any.
    void startStopRecording(QWidget *sender);
    void postRecordingFinished();
    // There is no limit to a recording's length; who sets one calls this.
    void onMaxRecordingTimeReached();
    // Puts the time recorded so far at the end of the notes.
    void onSetTimeTag(QWidget *sender);

    // Stops the recorder, deletes its file and clears the display; the recorder itself goes with
    // the next take.
    void discardTake();
    // The process ends: the file of a take that runs is made whole and stays where it is. No window
    // is touched, for there may be none any more.
    void closeTake();
    // The take was moved to its place as a lecture, or none was there.
    void takeWasSaved();
    void forgetSavedTake() { m_bIsRecordingSaved = false; }

    // From now on updateTimeDisplay() runs once a second for this object's whole life.
    void startDisplayTimer();
    void updateTimeDisplay();
    // Writes the present time, or date, into the clock labels.
    void showTimeOfDay() { m_display.showTimeOfDay(); }
    void showDate() { m_display.showDate(); }

    void audioRecorderDidFinishRecordingSuccessfully(engine::AudioRecorder *recorder,
                                                     bool successfully) override;

private:
    // To who cannot see the controls change.
    void say(const char *textKey) const;
    void beginStretch(double arrived) { m_stretch = {m_stretch.number + 1, arrived}; }
    void removeTemporaryFile();
    void makeAndStartRecorder();
    void pauseTake();
    void resumeTake();
    // From here on the computer stays awake, through pauses too: a lecture goes on in its break,
    // and whoever comes back wants to go on with the same take.
    void runRecorder();
    void stopRecorder();
    void tellObserver(TakeEvent event) const;
    void invalidateLevelTimer() { m_audioLevelTimer.reset(); }
    double recorderTime() const { return m_recorder ? m_recorder->currentTime() : 0; }

    engine::AudioEngine &m_engine;
    const AudioFileLocations &m_locations;
    const platform::Dates &m_dates;
    Playback &m_playback;
    platform::SleepInhibitor &m_sleep;
    RecordingOutlets m_outlets;
    RecordingDisplay m_display;

    std::unique_ptr<engine::AudioRecorder> m_recorder;
    bool m_recording = false;
    bool m_bIsRecordingSaved = false;
    // Never set; asked all the same.
    bool m_bIsRecording = false;
    bool m_bIsRecordingNeedPreventingQuit = false;
    double m_floatRecordingDuration = 0;
    double m_pauseTimeInterval = 0; // seconds since 1970
    qint64 m_durationPause = 0;
    Stretch m_stretch;
    std::unique_ptr<platform::Clock::Pending> m_timerDateTimeDisplay;
    // Never started: no level is read from the recorder. Whoever ends a take takes it back
    // nonetheless.
    std::unique_ptr<platform::Clock::Pending> m_audioLevelTimer;
    platform::DelayedCall m_postRecordingFinished;
    std::function<void(TakeEvent)> m_takeObserver;
};

} // namespace tarvelo::audio
