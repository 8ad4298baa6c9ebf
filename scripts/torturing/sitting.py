"""A student before the real program, with a murmur in the microphone."""

import contextlib
import os
import subprocess
import time

from outside import names
from outside.hands import Atspi
from outside.program import Program
from outside.waiting import wait_for

SHEET = "Bring Lectures Back"
BRING_BACK = "Bring Back"
# From the first command of the menu to the one of the sheet.
TO_THE_SHEET = ("Down", "Down", "Down", "Down", "Return")


def xdotool(*command):
    subprocess.run(["xdotool", *command], check=True, stdin=subprocess.DEVNULL)


def goes_from_screen(title):
    """By the screen's own word: a program that waits for a disk does not answer. Gives when it was gone."""
    while _shows(title):
        pass
    return time.monotonic()


def _shows(title):
    """A search stumbles over any other window that goes meanwhile, and says so; then nobody knows."""
    found = subprocess.run(["xdotool", "search", "--onlyvisible", "--name", f"^{title}$"], check=False, stdin=subprocess.DEVNULL, capture_output=True)
    return found.returncode == 0 or bool(found.stderr)


def into_notes(hands, window=names.NEW_LECTURE_WINDOW):
    hands.click(window, names.NOTES, Atspi.StateType.EDITABLE)
    xdotool("key", "ctrl+End")


def open_bring_back_sheet(hands):
    hands.press(names.MAIN_WINDOW, "F10")
    hands.control(names.MAIN_WINDOW, "New Lecture")
    xdotool("key", *TO_THE_SHEET)
    hands.window(SHEET)


@contextlib.contextmanager
def surroundings(**environment):
    """For the programs that start meanwhile."""
    os.environ.update(environment)
    try:
        yield
    finally:
        for name in environment:
            del os.environ[name]


class Sitting:
    def __init__(self, tools, desktop, played):
        self._desktop = desktop
        self._played = played
        self.program = Program(tools.program, desktop)
        self.hands = self.program.hands
        self._starts = 0
        self.home = os.path.join(desktop.data, "Tarvelo")

    def start(self, **environment):
        self._starts += 1
        with surroundings(**environment):
            self.program.start(f"start{self._starts}")

    def begin(self, subject, notes=""):
        """A new lecture that records, and is called something. Gives the moment before recording was asked for."""
        self.hands.click(names.MAIN_WINDOW, names.NEW_LECTURE)
        self.hands.control(names.NEW_LECTURE_WINDOW, names.START_RECORDING)
        asked = time.monotonic()
        self.hands.click(names.NEW_LECTURE_WINDOW, names.START_RECORDING)
        self.hands.control(names.NEW_LECTURE_WINDOW, names.PAUSE)
        self.hands.write(names.NEW_LECTURE_WINDOW, names.SUBJECT, subject)
        if notes:
            self.hands.write(names.NEW_LECTURE_WINDOW, names.NOTES, notes)
        return asked

    def heard(self):
        """Seconds of the murmur so far."""
        return self._played.now()

    def listen(self, seconds):
        """The lecture goes on for so long."""
        until = self._played.now() + seconds
        wait_for("the lecture to go on", lambda: self._played.now() >= until, seconds + 30)

    def stop(self):
        self.hands.click(names.NEW_LECTURE_WINDOW, names.STOP)
        self.hands.control(names.NEW_LECTURE_WINDOW, names.PLAY)

    def save(self, subject):
        """Gives when the window was gone."""
        self.hands.click(names.NEW_LECTURE_WINDOW, names.DONE)
        gone = goes_from_screen(names.NEW_LECTURE_WINDOW)
        self.hands.row(names.MAIN_WINDOW, names.LECTURES, subject)
        return gone

    def rename(self, subject, new):
        """Another subject for a stored lecture."""
        self.hands.point_at_row(names.MAIN_WINDOW, names.LECTURES, subject)
        self.hands.click(names.MAIN_WINDOW, names.EDIT)
        self.hands.write(names.EDIT_WINDOW, names.SUBJECT, new)
        self.hands.click(names.EDIT_WINDOW, names.DONE)
        self.hands.row(names.MAIN_WINDOW, names.LECTURES, new)

    def bring_back(self, are_back):
        open_bring_back_sheet(self.hands)
        self.hands.click(SHEET, BRING_BACK)
        wait_for("the lectures", are_back)
        self.hands.press(SHEET, "Escape")

    def keep_left(self, subject):
        """What a killed program left is asked about after the next start."""
        self.hands.click(names.LEFT_LECTURE, names.KEEP)
        self.hands.window_goes(names.LEFT_LECTURE)
        self.hands.row(names.MAIN_WINDOW, names.LECTURES, subject)

    def delete(self, subject):
        self.hands.point_at_row(names.MAIN_WINDOW, names.LECTURES, subject)
        self.hands.click(names.MAIN_WINDOW, names.DELETE)
        self.hands.click(names.CONFIRM_DELETE, names.YES)
        self.hands.row_goes(names.MAIN_WINDOW, names.LECTURES, subject)
