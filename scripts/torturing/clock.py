"""The clock does what clocks do, and the computer sleeps, while the program records."""

import datetime
import glob
import os
import signal
import time
import zoneinfo

from outside import names, sound
from outside.desktop import Desktop
from outside.program import Program
from outside.waiting import Failed, wait_for

from . import stored
from .devices import Microphone
from .result import Result
from .spoken import Spoken

EVENT = "suspend and resume, clock set back or on, time zone changed, midnight, clock change"
PROMISE = "nothing"
ZONE = zoneinfo.ZoneInfo("Europe/Berlin")
MOST_LATE = 0.05  # seconds; what is compared goes in steps of half of this
STANDSTILL = 3  # seconds


def _moment(*parts, fold=0):
    return datetime.datetime(*parts, tzinfo=ZONE, fold=fold).timestamp()


NOON = _moment(2026, 11, 20, 12)
HOUR, DAY = 3600, 86400
LAST = _moment(2027, 4, 1, 12)
# What happens, when the lecture is begun, and what the clock then shows from the event on, counted from the event.
# Each begins later than the one before: the program shows the day of that, and a new lecture is filed under the day shown unless that is past.
JUMPS = {
    "end of summer time": (_moment(2026, 10, 25, 2, 58), 119 - 8),
    "set back an hour": (NOON, -HOUR),
    "set on three hours": (NOON + HOUR, 3 * HOUR),
    "midnight": (_moment(2026, 11, 20, 23, 58), 119 - 8),
    "set back a year": (NOON + DAY, -365 * DAY),
    "set on ten years": (NOON + 2 * DAY, 3653 * DAY),
    "beginning of summer time": (_moment(2027, 3, 28, 1, 58), 119 - 8),
}
OF_SHORT = ("set back an hour", "midnight", "asleep")


def run(tools, short):
    events = [event for event in (*JUMPS, "program stands still", "asleep") if not short or event in OF_SHORT]
    with Desktop(tools.folder) as desktop, Microphone() as microphone:
        trial = _Trial(tools, desktop, microphone)
        late = trial.run(events)
    return Result(late <= MOST_LATE, f"{len(events)} lectures and a new time zone: all that was spoken is in them, under the day that was shown")


class _Trial:
    def __init__(self, tools, desktop, microphone):
        self._tools = tools
        self._desktop = desktop
        self._microphone = microphone
        self._program = Program(tools.program, desktop)
        self._hands = self._program.hands
        self._spoken = Spoken(tools, microphone)
        self._offset = os.path.join(tools.folder, "offset")

    def run(self, events):
        try:
            self._start("first", "Europe/Berlin")
            late = max(self._lecture(event) for event in events)
            self._program.quit()
            before = stored.lectures(self._desktop.data)
            self._start("second", "Pacific/Auckland")
            self._hands.click(names.MAIN_WINDOW, "All List")
            self._program.quit()
            self._program.expect_silence()
        except Failed:
            self._desktop.screenshot("failed")
            self._tools.keep("screenshots", os.path.join(self._desktop.folder, "screenshots"))
            raise
        finally:
            self._program.stop()
        if stored.lectures(self._desktop.data) != before:
            raise Failed("in another time zone the lectures are others")
        return late

    def _start(self, which, zone):
        """Only what the program takes for the time is false; the time that passes is not."""
        library = glob.glob("/usr/lib/*/faketime/libfaketimeMT.so.1")
        if not library:
            raise Failed("there is no libfaketime")
        self._show(_moment(2026, 10, 25, 1) if which == "first" else LAST)
        false = {"LD_PRELOAD": library[0], "FAKETIME_TIMESTAMP_FILE": self._offset, "FAKETIME_NO_CACHE": "1",
                 "FAKETIME_DONT_FAKE_MONOTONIC": "1", "NO_FAKE_STAT": "1", "TZ": zone}
        os.environ.update(false)
        try:
            self._program.start(which)
        finally:
            for name in false:
                del os.environ[name]

    def _show(self, moment):
        half = self._offset + ".new"
        with open(half, "w", encoding="utf-8") as file:
            file.write(f"{round(moment - time.time()):+d}\n")
        os.rename(half, self._offset)

    def _lecture(self, event):
        """Gives how much of what was spoken is missing, in seconds."""
        begin, jump = JUMPS.get(event, (LAST, 0))
        window = names.NEW_LECTURE_WINDOW
        self._spoken.begin()
        self._show(begin)
        self._hands.press(names.MAIN_WINDOW, "ctrl+n")
        self._hands.window(window)
        self._hands.point_at(window, names.START_RECORDING)  # it may slide in late on a busy machine
        self._hands.click(window, names.START_RECORDING)
        self._hands.control(window, names.PAUSE)
        self._hands.write(window, names.SUBJECT, event)
        self._spoken.speak()
        if jump:
            self._show(begin + 8 + jump)
        else:
            self._stand_still(event, begin)
        self._spoken.speak()
        self._hands.click(window, names.PAUSE)
        self._hands.control(window, names.RESUME)
        if jump:
            self._show(begin - HOUR)
        self._hands.click(window, names.RESUME)
        self._hands.control(window, names.PAUSE)
        if jump:
            self._show(begin + 8 + jump)
        self._spoken.speak()
        self._hands.click(window, names.STOP)
        self._hands.control(window, names.PLAY)
        self._hands.click(window, names.DONE)
        self._hands.window_goes(window)
        path = wait_for("the lecture", lambda: stored.sound_of(self._desktop.data, event))
        self._expect_row(event, datetime.datetime.fromtimestamp(begin, ZONE).date().isoformat(), path)
        return self._spoken.missing(path, event)

    def _stand_still(self, event, begin):
        """The program alone, which the server's patience makes up for; or the whole computer, whose clock goes on meanwhile."""
        self._program.send(signal.SIGSTOP)
        if event == "asleep":
            self._microphone.hang()
            time.sleep(STANDSTILL)  # as long as it sleeps
            self._show(begin + 8 * HOUR)
            self._program.send(signal.SIGCONT)
            self._microphone.go_on()
        else:
            self._spoken.speak()
            self._program.send(signal.SIGCONT)

    def _expect_row(self, subject, day, path):
        row = next(row for row in stored.lectures(self._desktop.data) if row["subject"] == subject)
        if row["recordingDate"] != day:
            raise Failed(f"{subject!r} is filed under {row['recordingDate']} instead of {day}")
        hours, minutes, seconds = (int(part) for part in row["recordDuration"].split(":"))
        length = len(sound.samples(path)) / sound.RATE
        if not 0 <= length - (3600 * hours + 60 * minutes + seconds) < 1.1:
            raise Failed(f"{subject!r} lasts {length:.2f} s, its row says {row['recordDuration']}")
