#pragma once

#include "audio/RecordingOutlets.h"
#include "lectures/LectureOutlets.h"
#include "platform/DelayedCall.h"

#include <QString>

class QWidget;

namespace tarvelo::audio {
class AudioFileLocations;
class Playback;
class RecordingControl;
} // namespace tarvelo::audio
namespace tarvelo::platform {
class Alerts;
class Dates;
} // namespace tarvelo::platform
namespace tarvelo::store {
class LectureDatabase;
}

namespace tarvelo::lectures {

class DayList;
class LectureApplication;
class LectureEditing;
class LectureJournalKeeper;

// A new lecture from the first click to its row in the store: opens the new-lecture window, saves,
// cancels and closes it. There is one new lecture at a time; a second is refused while the first is
// open.
class NewLecture final
{
public:
    // Who works on a new lecture. All of them outlive it.
    struct Collaborators
    {
        platform::Dates &dates;
        store::LectureDatabase &database;
        audio::AudioFileLocations &locations;
        audio::RecordingControl &recording;
        audio::Playback &playback;
        DayList &dayList;
        LectureEditing &editing;
        LectureJournalKeeper &journal;
        platform::Alerts &alerts;
    };

    struct Outlets
    {
        MainWindowOutlets main;
        NewLectureOutlets window;
        audio::RecordingOutlets recording;
        PlayAudioOutlets playAudio;
        LectureViewOutlets lectureView;
    };

    NewLecture(const Collaborators &collaborators, const Outlets &outlets);
    NewLecture(const NewLecture &) = delete;
    NewLecture &operator=(const NewLecture &) = delete;

    // A new lecture is open and not yet saved.
    bool bIsOnRecordingView() const { return m_bIsOnRecordingView; }

    // Hears of the end of a new lecture; none is allowed.
    void setApplication(LectureApplication *application) { m_application = application; }

    void onAddItem(QWidget *sender);
    // By the sender's tag, TagDone or TagClose of its outlets; any other only resets the controls.
    void onDoneNewLectureOrCloseWindow(QWidget *sender);
    void onCancelAddNewLecture(QWidget *sender);
    void onCloseLectureWindow(QWidget *sender);
    // Slides the note view over the list.
    void onDone(QWidget *sender);
    // Stores the new lecture under the day shown. Files that cannot be moved are left where they
    // are for a later try, and the row is stored with their new path all the same.
    void doSaveNewAudioInfos();
    // Brings a save forward that Done has scheduled; to be called before anything that would undo
    // it.
    void saveWhatWaits();

private:
    struct Audio
    {
        QString path; // empty without audio
        QString duration;
        bool isInPlace = true;
    };

    // Moves the finished take to its place, if there is one.
    Audio takeAudioToItsPlace();
    void done();
    void closeWithoutSaving();
    // The controls as a lecture that has not begun shows them. `stopAlternate` names the pressed
    // image of the stop button.
    void resetControls(const QString &stopAlternate);

    Collaborators m_with;
    Outlets m_outlets;
    LectureApplication *m_application = nullptr;
    bool m_bIsOnRecordingView = false;
    platform::DelayedCall m_save;
    platform::DelayedCall m_stopSoundPlay;
};

} // namespace tarvelo::lectures
