#pragma once

#include <QColor>
#include <QPalette>

class QWidget;

namespace tarvelo::widgets {

// The colours of the windows, which are white on every desktop. Where the desktop asks for high
// contrast all that is grey is black, and no shade tells one state from another.
struct Colours
{
    QColor ink;
    QColor faint; // of texts beside those that count
    QColor placeholder;
    QColor disabled; // of texts
    QColor hairline; // between two areas
    QColor outline;  // of controls, 3 to 1 against white
    QColor disabledOutline;
    QColor panel;
    QColor tile;     // of a drawing that is a button, but has no outline
    QColor turnedTo; // of a control under the mouse
    QColor warning;
    QColor accent; // under white texts, and of what is chosen
    QColor chosen; // of a row in a list
    QColor onChosen;
    // Whether the mouse shows by a thick line around a control, and a press by black and white that
    // change places: greys that lie far enough from white and from each other would hide a title.
    bool isBold;
};

// As the desktop's palette wanted them when the windows were built.
Colours colours();

// That of the drawings, in high contrast too.
inline constexpr QColor Red(252, 39, 52);

// Of that role alone; the others follow the window as before.
void setColour(QWidget &view, QPalette::ColorRole role, const QColor &colour);

} // namespace tarvelo::widgets
