#pragma once

#include <QString>

namespace tarvelo::store {

// Makes an intact database at `intactPath`, in the place of what is there, with every lecture that
// can be read in the damaged file, under its own ID. That file and its journal stay as they are.
// False when something else than the damage was in the way, such as a full disk.
bool rescueLectures(const QString &damagedPath, const QString &intactPath);

} // namespace tarvelo::store
