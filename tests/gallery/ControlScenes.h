#pragma once

#include "gallery/Scenes.h"

namespace tarvelo::tests {

// A file that plays, the path of which it gives.
QString makeTake(const Application &program);

// What the windows look like when they are full and in use, and their controls under the mouse,
// pressed and with the keyboard: after all other scenes, on the same program.
void goThroughControls(Application &program,
                       const std::function<void(const QString &, QWidget &)> &look);

} // namespace tarvelo::tests
