#pragma once

#include <QString>

namespace tarvelo::store {

// `text` with the first character of every word in upper case and all others in lower case, the
// same in every locale. A word is what stands between spaces, tabs and line ends: hyphens and
// apostrophes end none ("E-mail", "O'neill").
QString capitalised(const QString &text);

} // namespace tarvelo::store
