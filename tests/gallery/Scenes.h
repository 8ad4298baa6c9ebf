#pragma once

#include "app/Application.h"

#include <functional>

namespace tarvelo::tests {

// The windows of the program and their states, as a student meets them, on a program whose clock
// stands at 9 o'clock on Tuesday, 5 March 2024. Needs tarvelo_app and tarvelo_resources.

// The program speaks this language from now on, whatever it spoke before.
void speak(const QString &language);

// Every language that there are texts in, such as "de".
QStringList languages();

// Goes through every window and state, in one order that is always the same, and shows each to
// `look` under a name of its own ("main-list"). False when one of them did not come to rest.
bool goThrough(Application &program, const std::function<void(const QString &, QWidget &)> &look);

} // namespace tarvelo::tests
