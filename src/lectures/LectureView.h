#pragma once

#include "audio/PlaybackOutlets.h"
#include "lectures/LectureOutlets.h"

class QWidget;

namespace tarvelo::lectures {

// A stored lecture and its player, beside the list.
struct LectureView
{
    LectureViewOutlets outlets;
    audio::EditPlayerOutlets player;
};

// Fills `pane`.
LectureView buildLectureView(QWidget &pane);

} // namespace tarvelo::lectures
