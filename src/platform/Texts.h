#pragma once

#include <QString>

namespace tarvelo::platform {

// Makes the texts of the user's language known to the application, English for a language that has
// none, and with it Qt's own texts as far as they are installed. To be called once, after the
// application object exists and before the first text is asked for.
void installTexts();

// The text of a key such as "LABEL_NOTES" in the user's language; the key itself when it has no
// text.
QString text(const char *key);

} // namespace tarvelo::platform
