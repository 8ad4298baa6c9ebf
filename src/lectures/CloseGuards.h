#pragma once

#include <QObject>

#include <functional>

class QWidget;

namespace tarvelo::audio {
class RecordingControl;
}
namespace tarvelo::platform {
class Alerts;
}

namespace tarvelo::lectures {

class LectureEditing;
class NewLecture;

// Decides whether a window may close: unsaved work is kept, with a sheet that says so. It asks the
// others and owns nothing. A window that does close runs its cancel action.
class CloseGuards final : public QObject
{
    Q_OBJECT

public:
    struct Collaborators
    {
        audio::RecordingControl &recording;
        NewLecture &newLecture;
        LectureEditing &editing;
        platform::Alerts &alerts;
        // Ends what the play window plays and closes it, for a sender or none.
        std::function<void(QWidget *)> onClosePlayAudioWindow;
        // Hears the return code of a guard's sheet.
        std::function<void(int)> alertDidEnd;
    };

    struct Windows
    {
        QWidget *mainWindow = nullptr;
        QWidget *newNoteWindow = nullptr;
        QWidget *windowEditLecture = nullptr;
        QWidget *playAudioWindow = nullptr;
    };

    CloseGuards(Collaborators collaborators, const Windows &windows);

    // From now on this object is asked before the window closes.
    void guard(QWidget &window);
    // The order of the questions is fixed: first whether anything is pending, then which window.
    bool windowShouldClose(QWidget *window);
    void windowWillClose(QWidget *window);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool nothingIsPending() const;
    bool closeIdleWindow(QWidget *window);
    bool newLectureMayClose();
    bool editMayClose();

    Collaborators m_with;
    Windows m_windows;
};

} // namespace tarvelo::lectures
