#pragma once

#include <QString>

class QWidget;

namespace tarvelo::platform {

// Says something to who listens with a screen reader, wherever the keyboard is. Nothing shows and
// nothing moves. It is said from the active window, else from that of `near`; the words stay there
// as a notification until the next ones come.
void announce(QWidget &near, const QString &words);

} // namespace tarvelo::platform
