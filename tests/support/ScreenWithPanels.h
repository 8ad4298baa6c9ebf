#pragma once

#include <QScreen>

namespace tarvelo::tests {

// What panels take of the screen: the one of the tests, in memory, has none. So much of each edge
// that one is not taken for another.
constexpr QMargins Panels(7, 31, 11, 43);

} // namespace tarvelo::tests

// In place of the toolkit's own, in a program that includes this (one file of it may).
QRect QScreen::availableGeometry() const
{
    return geometry() - tarvelo::tests::Panels;
}
