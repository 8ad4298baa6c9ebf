#pragma once

#include <QPalette>
#include <QRectF>

class QFont;
class QPainter;
class QRect;
class QStyleOption;
class QStyleOptionSlider;

namespace tarvelo::widgets {

// How the controls of that style are drawn which all windows share. Lengths in points. All colours
// come from the palette, which setLightPalette() fills from colours(): the outline is its Shadow,
// the line between two areas its Mid, what is turned to its Midlight, the accent its Highlight. How
// the mouse and the press show is said by colours() too.

constexpr double ControlRadius = 6;
constexpr int SliderHandleSide = 16;
// Around a box or a circle that is ticked, for the ring of the keyboard.
constexpr int RoomAroundIndicator = 3;
// The line around a control under the mouse, where colours() are bold.
constexpr double BoldLine = 3;

// Whether ground and ink of the control have changed places, as a press is shown then.
bool isInverted(const QStyleOption &option);
// The role of what is written on a control, which may be filled with the accent.
QPalette::ColorRole inkOn(const QStyleOption &option, bool isFilled);
// Of a box or a circle that is ticked: as large as the words beside it want it.
int indicatorSide(const QFont &font);

void paintButton(QPainter &painter, const QStyleOption &option, bool isDefault);
// One of the choices that share an outline.
void paintSegment(QPainter &painter, const QStyleOption &option, const QRectF &place,
                  double radius);
// The ring of the keyboard, in a light one where it lies on the accent itself.
void paintKeyboardRing(QPainter &painter, const QStyleOption &option, bool isOnAccent);
// The white ground of a text or a list, with its outline.
void paintField(QPainter &painter, const QStyleOption &option);
void paintCheckBox(QPainter &painter, const QStyleOption &option);
void paintRadioButton(QPainter &painter, const QStyleOption &option);
void paintHeaderSection(QPainter &painter, const QStyleOption &option);
void paintSlider(QPainter &painter, const QStyleOptionSlider &option, const QRect &groove,
                 const QRect &handle);
// On what lies below it when it is seen through.
void paintScrollBar(QPainter &painter, const QStyleOptionSlider &option, const QRect &handle,
                    bool isSeenThrough);

} // namespace tarvelo::widgets
