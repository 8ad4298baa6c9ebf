"""The student comes back after a power cut: what waits is stored or offered, and what is offered is kept."""

import os

import numpy

from outside import sound
from outside.waiting import Failed, wait_for

from . import student

FRAME = 1024  # samples
SHORTER = 2 * FRAME / sound.RATE  # may a kept recording be: what was cut off in its last frame goes
NO_SUBJECT = "Untitled"  # of a lecture whose subject was not on the disk yet
BY_PROGRAM = 0.1  # of the starts at which something is offered


class Starts:
    """Each on the folder of the data as it is then. Afterwards every recording that it held is there once, in a row, and as long."""

    def __init__(self, tools, sitting):
        self._random = tools.random
        self._sitting = sitting
        self._home = sitting.home
        self._cut = os.path.join(tools.folder, "cut")
        self._student = student.Student(tools, os.path.dirname(self._home))
        self._kept = []  # subjects, before anything is brought back from a copy
        self.count = 0
        self.offered = 0
        self.by_program = 0

    def start(self, moment, lectures, sound_of, seen=lambda: None):
        """`lectures` are those that may be there at that moment; `seen` hears when the program has looked at what the cut left."""
        sounds = [sound_of(path) for path in student.sounds_of(self._home)]
        held = [(lecture, max((seconds_of(samples, lecture.sound) for samples in sounds), default=0)) for lecture in lectures]
        student.renew(self._cut, self._home)
        self.count += 1
        offered = self._by_student(seen)
        self.offered += len(offered)
        self._expect_rows(moment, held, sound_of)
        if len(offered) == 1 and self._random.random() < BY_PROGRAM:
            subjects = self._kept
            student.renew(self._home, self._cut)
            self.by_program += 1
            seen()
            self._by_program(offered[0], subjects)
            self._student.do("back", "later")
            self._expect_rows(moment, held, sound_of)

    def _by_student(self, seen):
        """Gives the subjects of what is offered."""
        offered = [line.split(" ", 2)[2] for line in self._student.told("later", "offered") if line.startswith("offered")]
        seen()
        told = self._student.told("keep", "later", "offered")
        if told:
            raise Failed(f"when all was kept there is still {told[-1]!r}")
        self._kept = self._subjects()
        self._student.do("back", "later")
        return offered

    def _by_program(self, offered, subjects):
        try:
            self._sitting.start()
            self._sitting.keep_left(offered or NO_SUBJECT)
            wait_for("all rows", lambda: self._subjects() == subjects)
            self._sitting.program.quit()
        finally:
            self._sitting.program.stop()

    def _subjects(self):
        return sorted(row.subject for row in student.lectures_of(self._home))

    def _expect_rows(self, moment, held, sound_of):
        rows = student.lectures_of(self._home)
        for lecture, _ in held:
            lecture.typed.lost(moment, rows)
        stored = [(row.subject, sound_of(row.path)) for row in rows if os.path.exists(row.path)]
        for lecture, seconds in held:
            if seconds == 0:
                continue
            lengths = [(subject, seconds_of(samples, lecture.sound)) for subject, samples in stored]
            found = [(subject, length) for subject, length in lengths if length > 0]
            if len(found) != 1 or found[0][1] < seconds - SHORTER:
                raise Failed(f"{seconds:.2f} s of {lecture.subject!r} were left, and after the start there are {found}")
            if found[0][0] not in lecture.subjects and (found[0][0] != NO_SUBJECT or moment > lecture.saved):
                raise Failed(f"{lecture.subject!r} is called {found[0][0]!r} after the start")


def seconds_of(samples, whole):
    """How much of a lecture's beginning it is, sample by sample; none when it is something else. In an unfinished file
    the frame with which the encoder warms up is heard by some readers, and in its last frame the encoder may differ."""
    for before in (0, FRAME):
        length = min(len(samples) - before, len(whole)) - 2 * FRAME
        if length > 0 and numpy.abs(samples[before : before + length] - whole[:length]).max() < 1e-3:
            return (length + 2 * FRAME) / sound.RATE
    return 0.0
