#pragma once

#include <QByteArrayView>

namespace tarvelo::engine {

// How many bytes of a file are enough to tell.
constexpr qsizetype SignatureLength = 12;

// Whether a file of sound may begin like that. Where the answer is no there is none, and nobody
// needs to look further; a yes says little about what follows.
bool beginsLikeSound(QByteArrayView head);

} // namespace tarvelo::engine
