#pragma once

#include "app/Request.h"

#include <QStringList>

namespace tarvelo::app {

// What a start was asked for. A question is answered in text, and the program ends without a
// window.
struct CommandLine
{
    Request request = Request::Reopen;
    // Nothing for a start that goes on.
    QByteArray answer;
    // With which the program ends after its answer: 0, or 2 for an argument that it does not know,
    // which is then said on the error channel.
    int status = 0;

    bool endsAtOnce() const { return !answer.isEmpty(); }
};

// A question of the user's among the arguments, looked for before there is a window system.
CommandLine questionIn(const QStringList &arguments);
// `arguments` without the toolkit's own, the program's name first.
CommandLine commandLineOf(const QStringList &arguments);

} // namespace tarvelo::app
