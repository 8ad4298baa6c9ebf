#pragma once

#include "audio/RecordingOutlets.h"
#include "lectures/LectureOutlets.h"

#include <QWidget>

#include <memory>

namespace tarvelo::lectures {

// The window of a new lecture with the controls of its recording, as they stand before a take.
struct NewLectureWindow
{
    std::unique_ptr<QWidget> window;
    NewLectureOutlets outlets;
    audio::RecordingOutlets recording;
};

NewLectureWindow buildNewLectureWindow();

} // namespace tarvelo::lectures
