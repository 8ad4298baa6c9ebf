#pragma once

#include <QByteArray>

#include <optional>

namespace tarvelo::app {

// What someone outside the program may ask of it: a start, a second start, the desktop.
enum class Request { Reopen, NewLecture, ShowPreferences };

// The word for it between two starts of the program and on the session bus.
QByteArray wordOf(Request request);
// None for a word that means nothing.
std::optional<Request> requestOf(const QByteArray &word);

} // namespace tarvelo::app
