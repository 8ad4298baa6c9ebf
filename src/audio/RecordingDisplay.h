#pragma once

#include "audio/RecordingOutlets.h"

class QWidget;

namespace tarvelo::platform {
class Dates;
}

namespace tarvelo::audio {

// Level and length of a take that is recorded; the player of a finished one is hidden.
void showLevel(const RecordingOutlets &outlets);
// The player stands in their place.
void showPlayer(const RecordingOutlets &outlets);

// What the windows show of recording: the looks of its buttons, the length of the take, the clock.
// What a press does, and whether sound comes in, is not known here.
class RecordingDisplay final
{
public:
    // `dates` must outlive this object.
    RecordingDisplay(const platform::Dates &dates, const RecordingOutlets &outlets,
                     const ClockOutlets &clock);
    RecordingDisplay(const RecordingDisplay &) = delete;
    RecordingDisplay &operator=(const RecordingDisplay &) = delete;

    // The toggle says that the take is paused, or is to be.
    bool isPauseOn() const;

    void takeStarts();
    // In the place of the button that was pressed, if there is one, whose keyboard it gets.
    void offerPause(QWidget *pressed);
    void takePauses();
    void takeGoesOn();
    // The stop button looks as if it played the take.
    void takeStops();
    void enablePause();
    void disablePause();
    // Nothing is written any more.
    void takeHasEnded(double seconds);
    void clear();

    void showLength(double seconds);
    // The length shown, at the end of the notes.
    void appendTimeTag();

    // The labels follow the minute: to be called once a second. A tick that skips second 00 leaves
    // them a minute behind, which is accepted.
    void tick();
    void showTimeOfDay();
    void showDate();

private:
    const platform::Dates &m_dates;
    RecordingOutlets m_outlets;
    ClockOutlets m_clockLabels;
};

} // namespace tarvelo::audio
