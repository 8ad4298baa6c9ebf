#include "lectures/CloseGuards.h"

#include "audio/RecordingControl.h"
#include "lectures/LectureEditing.h"
#include "lectures/NewLecture.h"
#include "platform/Alerts.h"

#include <QEvent>
#include <QWidget>

#include <utility>

namespace tarvelo::lectures {

CloseGuards::CloseGuards(Collaborators collaborators, const Windows &windows)
    : m_with(std::move(collaborators))
    , m_windows(windows)
{
}

void CloseGuards::guard(QWidget &window)
{
    window.installEventFilter(this);
}

bool CloseGuards::nothingIsPending() const
{
    return !m_with.editing.bHasChangesInNote() && !m_with.recording.recording() &&
           !m_with.newLecture.bIsOnRecordingView() && !m_with.editing.bHasChangesInNoteTitle();
}

bool CloseGuards::windowShouldClose(QWidget *window)
{
    if (nothingIsPending())
        return closeIdleWindow(window);
    if (window == m_windows.mainWindow || window == m_windows.playAudioWindow)
        return true;
    if (window == m_windows.newNoteWindow)
        return newLectureMayClose();
    if (window == m_windows.windowEditLecture)
        return editMayClose();
    return false;
}

bool CloseGuards::closeIdleWindow(QWidget *window)
{
    if (window == m_windows.playAudioWindow)
        m_with.onClosePlayAudioWindow(nullptr);
    else if (window == m_windows.mainWindow || window == m_windows.newNoteWindow ||
             window == m_windows.windowEditLecture)
        window->hide();
    return true;
}

bool CloseGuards::newLectureMayClose()
{
    QString message;
    if (m_with.recording.recording())
        message = QStringLiteral("Recording is on process!");
    else if (m_with.recording.bIsRecordingSaved())
        message = QStringLiteral("There is a record that needs to be saved!");
    else if (m_with.editing.bHasChangesInNoteTitle())
        message = QStringLiteral("Lecture has been edited!");
    else
        return true;
    m_with.alerts.beginSheet({message, QStringLiteral("Ok"),
                              QStringLiteral("Please click Done to save or Cancel to exit.")},
                             *m_windows.newNoteWindow, m_with.alertDidEnd);
    return false;
}

bool CloseGuards::editMayClose()
{
    // Without a change of its own the window stays open without a word while something else is
    // unsaved: wanted so.
    if (!m_with.editing.bHasChangesInNoteTitle())
        return false;
    m_with.alerts.beginSheet({QStringLiteral("Lecture has been changed!"), QStringLiteral("Ok"),
                              QStringLiteral("Please click Done to save and exit.")},
                             *m_windows.windowEditLecture, m_with.alertDidEnd);
    return false;
}

void CloseGuards::windowWillClose(QWidget *window)
{
    if (window == m_windows.newNoteWindow)
        m_with.newLecture.onCancelAddNewLecture(nullptr);
    else if (window == m_windows.windowEditLecture)
        m_with.editing.onCancelLectureEdit(nullptr);
    else if (window == m_windows.playAudioWindow)
        m_with.onClosePlayAudioWindow(nullptr);
}

bool CloseGuards::eventFilter(QObject *watched, QEvent *event)
{
    auto *window = qobject_cast<QWidget *>(watched);
    if (event->type() != QEvent::Close || !window)
        return QObject::eventFilter(watched, event);
    if (!windowShouldClose(window)) {
        event->ignore();
        return true;
    }
    windowWillClose(window);
    return false;
}

} // namespace tarvelo::lectures
