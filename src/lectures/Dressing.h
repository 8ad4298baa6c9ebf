#pragma once

class QColor;
class QLabel;
class QLineEdit;
class QTextEdit;
class QWidget;

namespace tarvelo::widgets {
class ImageButton;
}

namespace tarvelo::lectures {

// In the face of the windows, and in a size that follows the desktop's.
void style(QLabel &label, double size, const QColor &colour);
void fill(QWidget &view, const QColor &colour);
// A hidden control keeps its room, so that nothing moves when it comes back.
void keepRoom(QWidget &view);
// Room between the edge and what is typed.
void giveMargins(QLineEdit &field, QTextEdit &notes);
// Room between the edge and a title that may be long, or large.
void giveRoomToTitle(widgets::ImageButton &button);
// No more than 255 characters can be typed.
void limitSubject(QLineEdit &field);
void dressPlayPause(widgets::ImageButton &play, widgets::ImageButton &pause);

} // namespace tarvelo::lectures
