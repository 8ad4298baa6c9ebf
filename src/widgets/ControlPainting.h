#pragma once

#include <QRect>

class QPainter;
class QStyleOption;
class QStyleOptionSlider;

namespace tarvelo::widgets {

// How the controls of that style are drawn which all windows share. Lengths in points. All colours
// come from the palette, which setLightPalette() fills from colours(): the outline is its Shadow,
// the line between two areas its Mid, what is turned to its Midlight, the accent its Highlight.

constexpr double ControlRadius = 6;
constexpr int SliderHandleSide = 16;

void paintButton(QPainter &painter, const QStyleOption &option, bool isDefault);
// The ring of the keyboard, in a light one where it lies on the accent itself.
void paintKeyboardRing(QPainter &painter, const QStyleOption &option, bool isOnAccent);
// The white ground of a text or a list, with its outline.
void paintField(QPainter &painter, const QStyleOption &option);
void paintCheckBox(QPainter &painter, const QStyleOption &option);
void paintRadioButton(QPainter &painter, const QStyleOption &option);
void paintHeaderSection(QPainter &painter, const QStyleOption &option);
void paintSlider(QPainter &painter, const QStyleOptionSlider &option, const QRect &groove,
                 const QRect &handle);
void paintScrollBar(QPainter &painter, const QStyleOptionSlider &option, const QRect &handle);

} // namespace tarvelo::widgets
