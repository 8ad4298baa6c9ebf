#pragma once

class QLabel;
class QPainter;
class QRect;
class QString;
class QWidget;

namespace tarvelo::widgets {

// What a label's text needs in every language. Lengths in points.

// Letters that another font lends may reach lower than any font says, and a label would cut them.
// One that stands in a layout gets room for them below its text that the layout does not count, so
// that nothing moves.
void giveRoomBelow(QLabel &label);
// What the layout does not count: nothing of a label that has no such room, or of what is none.
int roomBelow(const QWidget *view);

// Whether `text`, drawn with `flags`, is broken into lines that run from the right.
bool isBrokenFromTheRight(const QString &text, int flags);
// Draws such a text as its lines are meant to stand: the painter's own way leaves room at the edge
// for the blanks at which they break, and pushes them out at the other.
void paintBrokenFromTheRight(QPainter &painter, const QRect &place, int flags, QString text);

} // namespace tarvelo::widgets
