#pragma once

#include <QColor>
#include <QPalette>

class QWidget;

namespace tarvelo::widgets {

// The colours of the windows, which are white on every desktop. Where the desktop asks for high
// contrast all that is grey is black.
struct Colours
{
    QColor ink;
    QColor faint;    // of texts beside those that count
    QColor disabled; // of texts
    QColor hairline; // between two areas
    QColor outline;  // of controls, 3 to 1 against white
    QColor disabledOutline;
    QColor panel;
    QColor turnedTo; // of a control under the mouse
    QColor warning;
    QColor accent; // under white texts, and of what is chosen
    QColor chosen; // under dark texts
};

// As the desktop's palette wanted them when the windows were built.
Colours colours();

// That of the drawings, in high contrast too.
inline constexpr QColor Red(252, 39, 52);

// Of that role alone; the others follow the window as before.
void setColour(QWidget &view, QPalette::ColorRole role, const QColor &colour);

} // namespace tarvelo::widgets
