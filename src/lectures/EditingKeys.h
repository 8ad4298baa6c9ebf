#pragma once

#include <QList>
#include <Qt>

class QLineEdit;
class QTextEdit;
class QWidget;

namespace tarvelo::audio {
struct RecordingOutlets;
}
namespace tarvelo::widgets {
class ImageButton;
}

namespace tarvelo::lectures {

// What keys do where a lecture is recorded, written or listened to, so that a student who listens
// and writes never needs the mouse. Each key presses a button or moves the keyboard on;
// a button that is disabled does nothing.

// Ctrl+Return anywhere in `place` presses `done`.
void doneWithControlReturn(QWidget &place, widgets::ImageButton &done);
// Return in the subject goes on to the notes.
void returnGoesOnToNotes(QLineEdit &subject, QTextEdit &notes);
// Escape and Ctrl+W close the window as its title bar does.
void escapeCloses(QWidget &window);
// F8, or the media key, anywhere in `place` presses the one of the two that can be pressed. Many
// keyboards show the sign for play and pause on it. Whoever presses one of them by keyboard is on
// the other next. `alsoBy` are more keys that do it.
void playAndPauseWithF8(QWidget &place, widgets::ImageButton &play, widgets::ImageButton &pause,
                        const QList<Qt::Key> &alsoBy = {});
// Ctrl+R starts, pauses and resumes a take, Ctrl+Shift+R stops it and then plays and pauses it, as
// F8 does then too; Ctrl+T puts the recorded time into the notes. The tool tips show the keys.
void recordWithKeys(const audio::RecordingOutlets &controls);

} // namespace tarvelo::lectures
