#pragma once

#include <QDateTime>

namespace tarvelo::lectures {

// What the lecture controller asks of the application around it.
class LectureApplication
{
public:
    virtual ~LectureApplication() = default;

    // The day selected on the calendar.
    virtual QDateTime getCurrentDate() const = 0;
    // A new lecture was finished or its window closed.
    virtual void setRecordingStateForButton(bool recording) = 0;
};

} // namespace tarvelo::lectures
