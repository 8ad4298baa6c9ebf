"""Lectures go in bulk, and come back through the program's own menu."""

import collections
import datetime
import os
import shutil
import sqlite3

from outside import names
from outside.desktop import Desktop
from outside.program import Program
from outside.waiting import Failed, wait_for

from . import stored
from .result import Result
from .sitting import BRING_BACK, SHEET, open_bring_back_sheet
from .works import FAILING_INSERT, FAILING_UPDATE

EVENT = "the table reset, a delete that takes several rows"
PROMISE = "nothing: the copy in `Backups/` brings every row back"
COLUMNS = ("subject", "course", "notes", "recordingDate", "lectureStartTime", "lectureEndTime", "audioFileFullPath", "recordDuration")
TABLE = f"CREATE TABLE audioData (ID INTEGER PRIMARY KEY, {', '.join(f'{column} TEXT' for column in COLUMNS)})"
INSERT = f"INSERT INTO audioData ({', '.join(COLUMNS)}) VALUES (?,?,?,?,?,?,?,?)"

NEWCOMER = "Newcomer"


def run(tools, short):
    most = 50 if short else 1000
    trials = (_insert_resets, _update_resets, _delete_takes_several)
    lost = []
    with Desktop(tools.folder) as desktop:
        for trial in trials:
            lost.append(_Trial(tools, desktop, most).run(trial))
            shutil.rmtree(os.path.dirname(stored.path(desktop.data)))
    return Result(sum(lost) == 0, f"{len(lost)} times {most} lectures: {sum(lost)} rows missing, changed or there twice after they were brought back")


def _insert_resets(trial):
    trial.spoil(FAILING_INSERT)
    trial.hands.click(names.MAIN_WINDOW, names.NEW_LECTURE)
    trial.hands.write(names.NEW_LECTURE_WINDOW, names.SUBJECT, NEWCOMER)
    trial.hands.click(names.NEW_LECTURE_WINDOW, names.DONE)
    trial.added.add(NEWCOMER)
    trial.wait_for_loss(1)


def _update_resets(trial):
    trial.spoil(FAILING_UPDATE)
    trial.hands.point_at_row(names.MAIN_WINDOW, names.LECTURES, trial.shown)
    trial.hands.click(names.MAIN_WINDOW, names.EDIT)
    trial.hands.write(names.EDIT_WINDOW, names.SUBJECT, "Changed")
    trial.hands.click(names.EDIT_WINDOW, names.DONE)
    trial.wait_for_loss(0)


def _delete_takes_several(trial):
    """All lectures without a recording have the same empty path, and go with the first of them."""
    trial.hands.point_at_row(names.MAIN_WINDOW, names.LECTURES, trial.shown)
    trial.hands.click(names.MAIN_WINDOW, names.DELETE)
    trial.hands.click(names.CONFIRM_DELETE, names.YES)
    trial.wait_for_loss(trial.with_recording)


class _Trial:
    def __init__(self, tools, desktop, count):
        self._tools = tools
        self._desktop = desktop
        self._program = Program(tools.program, desktop)
        self.hands = self._program.hands
        self._before = [self._lecture(number, count) for number in range(count)]
        self.with_recording = sum(1 for lecture in self._before if lecture[6])
        self.shown = self._before[-1][0]
        self.added = set()  # subjects

    def run(self, what):
        """Gives how many rows are not there in the end as they were in the beginning, or are there besides."""
        self._fill()
        try:
            self._program.start(what.__name__)
            self.hands.row(names.MAIN_WINDOW, names.LECTURES, self.shown)
            what(self)
            left = len(stored.lectures(self._desktop.data))
            self._bring_back()
            before, rows = collections.Counter(self._before), collections.Counter(self._rows())
            missing, besides = before - rows, rows - before
            self.hands.press(SHEET, "Escape")
            self.hands.row(names.MAIN_WINDOW, names.LECTURES, self.shown)
            self._program.quit()
            self._program.expect_silence()
        except Failed:
            self._desktop.screenshot("failed")
            self._tools.keep(what.__name__, self._desktop.folder)
            raise
        finally:
            self._program.stop()
        self._tools.tell(f"{what.__name__.strip('_').replace('_', ' ')}: {left} of {len(self._before)} rows left, then {sum(missing.values())} missing "
                         f"and {sum(besides.values())} besides")
        added = sorted(row[0] for row in besides.elements()) == sorted(self.added)
        return sum(missing.values()) + (0 if added else sum(besides.values()))

    def spoil(self, statement):
        with sqlite3.connect(stored.path(self._desktop.data)) as database:
            database.execute(statement)

    def wait_for_loss(self, left):
        wait_for(f"no more than {left} lectures", lambda: stored.count(self._desktop.data) <= left)

    @staticmethod
    def _lecture(number, count):
        """Many days, and a few of today; one in three has a recording, but not the one that shows."""
        today = datetime.date.today()
        day = today - datetime.timedelta(days=0 if number >= count - 3 else 1 + number % 700)
        path = f"/nowhere/Audio - {number}.aac" if number % 3 == 0 and number != count - 1 else ""
        return (f"Lecture {number}", "test course", f"Notes {number}\n\u0661 'quoted' \U0001d11e", day.isoformat(), "10.00 AM", "11.30 AM", path,
                "00:00:10" if path else "No Audio")

    def _fill(self):
        path = stored.path(self._desktop.data)
        os.makedirs(os.path.dirname(path))
        with sqlite3.connect(path) as database:
            database.execute(TABLE)
            database.executemany(INSERT, self._before)

    def _rows(self):
        return [tuple(row[column] for column in COLUMNS) for row in stored.lectures(self._desktop.data)]

    def _bring_back(self):
        open_bring_back_sheet(self.hands)
        self.hands.click(SHEET, BRING_BACK)
        wait_for("the lectures", lambda: stored.count(self._desktop.data) >= len(self._before) + len(self.added))
