#pragma once

#include "audio/PlaybackOutlets.h"
#include "lectures/LectureOutlets.h"

#include <QWidget>

#include <memory>

namespace tarvelo::lectures {

// The card that plays a lecture.
struct PlayAudioWindow
{
    std::unique_ptr<QWidget> window;
    PlayAudioOutlets outlets;
    audio::LecturePlayerOutlets player;
};

PlayAudioWindow buildPlayAudioWindow();

} // namespace tarvelo::lectures
