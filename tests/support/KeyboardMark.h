#pragma once

#include "platform/HighContrast.h"

#include <QImage>
#include <QPixmap>
#include <QWidget>

namespace tarvelo::tests {

// Of a mark that is seen: as much as a line of a finger's width.
constexpr int EnoughPixels = 10;

inline bool isForTheKeyboard(const QWidget &control)
{
    const bool isShown = control.isVisible() && control.isEnabled() &&
                         control.window()->rect().contains(
                             QRect(control.mapTo(control.window(), QPoint()), control.size()));
    return isShown && control.focusPolicy() != Qt::NoFocus && !control.focusProxy();
}

// How many pixels change by 3 to 1 when the keyboard comes to this control of an active window,
// nothing else being different.
inline int pixelsOfTheKeyboard(QWidget &window, QWidget &control)
{
    const QRect place = QRect(control.mapTo(&window, QPoint()), control.size())
                            .adjusted(-3, -3, 3, 3)
                            .intersected(window.rect());
    window.setFocus();
    const QImage without = window.grab(place).toImage();
    control.setFocus(Qt::TabFocusReason);
    const QImage with = window.grab(place).toImage();
    int count = 0;
    for (int y = 0; y < with.height(); ++y)
        for (int x = 0; x < with.width(); ++x)
            count += platform::contrastOf(without.pixelColor(x, y), with.pixelColor(x, y)) >= 3;
    return count;
}

} // namespace tarvelo::tests
