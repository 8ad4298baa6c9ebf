#pragma once

#include "audio/AudioFileLocations.h"
#include "audio/Playback.h"
#include "audio/RecordingControl.h"
#include "platform/Dates.h"
#include "platform/UserDefaults.h"
#include "support/FakeClock.h"
#include "support/FakeSleepInhibitor.h"
#include "support/RecordingWindow.h"
#include "support/TemporaryPlaces.h"

namespace tarvelo::tests {

// Everything that recording stands on, with a folder of its own and a clock that stands still.
// Needs tarvelo_audio and tarvelo_resources.
class RecordingStage final
{
public:
    explicit RecordingStage(engine::AudioEngine &engine)
        : playback(engine, locations, window.playbackOutlets())
        , control(engine, locations, dates, playback, sleep, window.outlets(),
                  window.clockOutlets())
    {
        locations.createFolders();
        locations.setTempAudioSavePathWithFormat();
        window.btnStopRecord.setAction(
            {"stopRecording", [this](QWidget *sender) { control.stopRecording(sender); }});
        window.btnPauseResumeRecording.setAction({"pauseResumeRecording", [this](QWidget *sender) {
                                                      control.pauseResumeRecording(sender);
                                                  }});
    }

    // As the user does it.
    void start() { control.startRecording(&window.btnStartRecord); }
    void pressPauseResume() { window.btnPauseResumeRecording.click(); }
    void pressStop() { window.btnStopRecord.click(); }

    QString takePath() const { return locations.tempAudioSavePath(); }
    bool takeIsThere() const { return QFile::exists(takePath()); }
    void writeTake(const QByteArray &content)
    {
        QFile file(takePath());
        if (file.open(QIODevice::WriteOnly))
            file.write(content);
    }

    TemporaryPlaces places;
    FakeClock clock;
    platform::Dates dates{clock, {"en_GB", QStringLiteral("UTC")}};
    platform::UserDefaults defaults{places.folder() + QStringLiteral("/Tarvelo.conf")};
    audio::AudioFileLocations locations{places.places(), defaults, dates};
    RecordingWindow window;
    audio::Playback playback;
    FakeSleepInhibitor sleep;
    audio::RecordingControl control;
};

} // namespace tarvelo::tests
