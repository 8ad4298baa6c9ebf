#pragma once

#include "lectures/LectureOutlets.h"

#include <QWidget>

#include <memory>

namespace tarvelo::lectures {

// The window in which a stored lecture is changed.
struct EditLectureWindow
{
    std::unique_ptr<QWidget> window;
    EditLectureOutlets outlets;
};

EditLectureWindow buildEditLectureWindow();

} // namespace tarvelo::lectures
