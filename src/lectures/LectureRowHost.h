#pragma once

class QWidget;

namespace tarvelo::lectures {

// What a row of the lecture table asks of the application around it.
class LectureRowHost
{
public:
    virtual ~LectureRowHost() = default;

    virtual bool isConfirmDeleteShowing() const = 0;
    // Whether the music library takes the file of the lecture that `cell` shows.
    virtual bool isSupportedIniTunes(QWidget *cell) const = 0;
};

} // namespace tarvelo::lectures
