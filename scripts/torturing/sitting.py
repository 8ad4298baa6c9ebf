"""A student before the real program, with a murmur in the microphone."""

import contextlib
import os
import time

from outside import names
from outside.program import Program
from outside.waiting import wait_for


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
        self.hands.click(names.NEW_LECTURE_WINDOW, names.DONE)
        self.hands.window_goes(names.NEW_LECTURE_WINDOW)
        self.hands.row(names.MAIN_WINDOW, names.LECTURES, subject)

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
