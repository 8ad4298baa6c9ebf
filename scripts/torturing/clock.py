"""The clock does what clocks do, and the computer sleeps, while the program records."""

import datetime
import glob
import os
import shutil
import signal
import subprocess
import time
import zoneinfo

from outside import names, sound
from outside.desktop import Desktop
from outside.program import Program
from outside.waiting import Failed, wait_for

from . import stored
from .devices import Microphone
from .result import Result
from .sitting import surroundings
from .spoken import Spoken

EVENT = "suspend and resume, clock set back or on, time zone changed, midnight, clock change"
PROMISE = "nothing"
ZONE = zoneinfo.ZoneInfo("Europe/Berlin")
MOST_LATE = 0.05  # seconds; what is compared goes in steps of half of this
STANDSTILL = 3  # seconds
# What is mounted then is for the one program.
PRIVATE = ("unshare", "--mount", "--propagation", "private")


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
# The same, with the zone from the event on and the one during the pause behind it.
ZONES = {"time zone changed": (_moment(2027, 3, 30, 23), "Pacific/Auckland", "America/Los_Angeles")}
OF_SHORT = ("set back an hour", "midnight", "time zone changed", "asleep")


def run(tools, short):
    home = Zone(os.path.join(tools.folder, "etc")) if Zone.is_permitted() else None
    events = [event for event in (*JUMPS, *(ZONES if home else ()), "program stands still", "asleep") if not short or event in OF_SHORT]
    with Desktop(tools.folder) as desktop, Microphone() as microphone:
        trial = _Trial(tools, desktop, microphone, home)
        late = trial.run(events)
    without = "" if home else "; it was not permitted to change the time zone of a running program"
    return Result(late <= MOST_LATE,
                  f"{len(events)} lectures: all that was spoken is in them, under the day that was shown; "
                  f"a start in another time zone changes no row{without}")


class Zone:
    """The time zone of a computer of its own, as far as a program sees it that is started by `program`."""

    @staticmethod
    def is_permitted():
        return subprocess.run([*PRIVATE, "mount", "--bind", "/tmp", "/etc"], check=False, stdin=subprocess.DEVNULL, capture_output=True).returncode == 0

    def __init__(self, folder):
        self._folder = folder
        shutil.copytree("/etc", folder, symlinks=True)

    def program(self, path):
        """The same process becomes the program."""
        starter = self._folder + "-start"
        with open(starter, "w", encoding="utf-8") as file:
            file.write(f"#!/bin/sh\nexec {' '.join(PRIVATE)} sh -c 'mount --bind {self._folder} /etc && exec {path}'\n")
        os.chmod(starter, 0o700)
        return starter

    def change(self, zone):
        """As desktops do: another link takes the place of the one that is there."""
        half = os.path.join(self._folder, "localtime.new")
        os.symlink(os.path.join("/usr/share/zoneinfo", zone), half)
        os.rename(half, os.path.join(self._folder, "localtime"))


class _Trial:
    def __init__(self, tools, desktop, microphone, home):
        self._tools = tools
        self._desktop = desktop
        self._microphone = microphone
        self._home = home
        self._program = Program(home.program(tools.program) if home else tools.program, desktop)
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
                 "FAKETIME_DONT_FAKE_MONOTONIC": "1", "NO_FAKE_STAT": "1"}
        if self._home:
            self._home.change(zone)
            os.environ.pop("TZ", None)
        else:
            false["TZ"] = zone
        with surroundings(**false):
            self._program.start(which)

    def _show(self, moment):
        half = self._offset + ".new"
        with open(half, "w", encoding="utf-8") as file:
            file.write(f"{round(moment - time.time()):+d}\n")
        os.rename(half, self._offset)

    def _lecture(self, event):
        """Gives how much of what was spoken is missing, in seconds."""
        begin, jump = JUMPS.get(event, (LAST, 0))
        begin, *zones = ZONES.get(event, (begin,))
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
        elif zones:
            self._change_zone(zones[0])
        else:
            self._stand_still(event, begin)
        self._spoken.speak()
        self._hands.click(window, names.PAUSE)
        self._hands.control(window, names.RESUME)
        if jump:
            self._show(begin - HOUR)
        elif zones:
            self._change_zone(zones[1])
        self._hands.click(window, names.RESUME)
        self._hands.control(window, names.PAUSE)
        if jump:
            self._show(begin + 8 + jump)
        elif zones:
            self._change_zone(zones[0])
        self._spoken.speak()
        self._hands.click(window, names.STOP)
        self._hands.control(window, names.PLAY)
        self._hands.click(window, names.DONE)
        self._hands.window_goes(window)
        path = wait_for("the lecture", lambda: stored.sound_of(self._desktop.data, event))
        if zones:
            self._change_zone("Europe/Berlin")
        self._expect_row(event, datetime.datetime.fromtimestamp(begin, ZONE).date().isoformat(), path)
        return self._spoken.missing(path, event)

    def _change_zone(self, zone):
        self._home.change(zone)
        if not os.readlink(f"/proc/{self._program.pid}/root/etc/localtime").endswith(zone):
            raise Failed("the program does not see the time zone that was changed")

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
