#pragma once

#include "audio/PlaybackOutlets.h"
#include "lectures/LectureList.h"
#include "lectures/LectureOutlets.h"
#include "lectures/LectureSaving.h"
#include "lectures/TextDelegate.h"
#include "platform/DelayedCall.h"

#include <QString>

class QLineEdit;
class QWidget;

namespace tarvelo::audio {
class Playback;
}
namespace tarvelo::platform {
class Alerts;
class Clock;
} // namespace tarvelo::platform
namespace tarvelo::store {
struct GoneLectures;
class LectureInfoItem;
struct LecturesBack;
} // namespace tarvelo::store
namespace tarvelo::widgets {
class MouseDownTextField;
}

namespace tarvelo::lectures {

class DayList;
class ViewChanges;

// Shows and changes a stored lecture in two places: in the edit window, and in the lecture view
// beside the list. It knows whether texts were touched since a lecture was opened; both flags are
// set and cleared together, and do not tell which text it was.
class LectureEditing final : public TextDelegate
{
public:
    // Who works on a stored lecture. All of them outlive it.
    struct Collaborators
    {
        platform::Clock &clock;
        audio::Playback &playback;
        const DayList &dayList;
        ViewChanges &viewChanges;
        platform::Alerts &alerts;
    };

    struct Outlets
    {
        MainWindowOutlets main;
        EditLectureOutlets window;
        LectureViewOutlets view;
        audio::EditPlayerOutlets player;
        PopoverOutlets popovers;
    };

    LectureEditing(const Collaborators &collaborators, LectureSaving::Collaborators saving,
                   const Outlets &outlets);
    LectureEditing(const LectureEditing &) = delete;
    LectureEditing &operator=(const LectureEditing &) = delete;

    bool bHasChangesInNote() const { return m_bHasChangesInNote; }
    bool bHasChangesInNoteTitle() const { return m_bHasChangesInNoteTitle; }
    bool bIsEditingNow() const { return m_bIsEditingNow; }
    // The lecture that was opened last, in either place; none before the first.
    const Lecture &itemEditingNow() const { return m_itemEditingNow; }

    // Opening takes a control in a row; from anywhere else no lecture is opened.
    void onEditLecture(QWidget *sender);
    // A blank subject is refused on the sender's window.
    void onDoneEdit(QWidget *sender);
    // Closes the edit window without saving.
    void onCancelLectureEdit(QWidget *sender);
    void openPlayEditWindow(QWidget *sender);
    void onDoneLectureEdit(QWidget *sender);
    void mouseDownTextFieldClicked(widgets::MouseDownTextField &field);
    // A lecture was deleted: what shows it saves no more, since its ID may be given again.
    void closeWhatIsNotStored();
    // That lecture was, and nothing of it is to be saved any more.
    void forgetUnsavedTexts(const store::LectureInfoItem &lecture);
    // What is saved from now on into one of them that was open goes to the copy in which it is.
    void lecturesHaveGone(const store::GoneLectures &gone);
    // And goes to its row again.
    void lecturesCameBack(const store::LecturesBack &back);

    void clearChanges();
    void textDidBeginEditing(QWidget *view) override;
    void textDidChange(QWidget *view) override;
    // Counts as a change also when nothing was typed, which is wanted.
    void textDidEndEditing(QWidget *view) override;
    void controlTextDidEndEditing(QWidget *) override {}

private:
    // Selects the sender's row alone; none for a sender outside the rows.
    Lecture selectedLectureOfSender(const QWidget *sender);
    void openWithAudio(const QString &path);
    void showThatThereIsNoAudio(const QWidget &sender);
    bool refuseBlankSubject(const QLineEdit &subject, QWidget *sender);
    void save(const Lecture &lecture, const QString &subject, const QString &notes);
    bool lectureViewShowsUntouched(const Lecture &lecture) const;
    void textWasTouched();

    Collaborators m_with;
    Outlets m_outlets;
    Lecture m_itemEditingNow;
    // Each place saves the lecture that it shows, also after another was opened in the other place.
    Lecture m_itemOfWindow;
    Lecture m_itemOfView;
    bool m_bIsEditingNow = false;
    bool m_bHasChangesInNote = false;
    bool m_bHasChangesInNoteTitle = false;
    LectureSaving m_saving;
    platform::DelayedCall m_stopSoundPlayEdit;
};

} // namespace tarvelo::lectures
