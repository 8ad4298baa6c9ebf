"""The whole program, killed while a lecture is typed and recorded, or while its Done is carried out."""

import json
import math
import os
import re
import shutil
import time

from outside import names, sound
from outside.waiting import Failed

from . import killed, student
from .sitting import goes_from_screen, into_notes, xdotool

LONGEST = 9  # seconds of typing and recording
DONE_LASTS = 0.6  # seconds, a little longer than it takes to carry it out
DONE_LASTS_SLOWLY = 6  # on a slow disk
MOST_AT_DONE = 0.3  # seconds of sound: what is on its way through the sound server then
TIME_TAG = re.compile(r"\d\d:\d\d:\d\d")
WINDOW = names.NEW_LECTURE_WINDOW


class Typing:
    """What was seen to stand in the notes, and since when."""

    def __init__(self, sitting):
        self._sitting = sitting
        self.seen = []
        self.look()

    def look(self):
        text = self._sitting.hands.text(WINDOW, names.NOTES)
        if text:
            self.seen.append((time.monotonic(), text))

    @property
    def last(self):
        return self.seen[-1][1]

    def lost(self, kept, ended):
        """How old the oldest is that was typed by then and was not kept; fails when it is a time tag."""
        missing = sorted(set(TIME_TAG.findall(self.last)) - set(TIME_TAG.findall(kept)))
        if missing:
            raise Failed(f"the time tags {missing} are lost")
        return max((ended - when for when, text in self.seen if not kept.startswith(text)), default=0.0)


class Trial:
    def __init__(self, tools, sitting, played):
        self._tools = tools
        self._sitting = sitting
        self._played = played
        self._hands = sitting.hands
        self._temp = os.path.join(sitting.home, "temp")
        self._journal = os.path.join(self._temp, "lecture.journal")
        self._student = student.Student(tools, os.path.dirname(sitting.home))

    def at_any_instant(self, number, how, moment):
        """Gives what of the sound and how many seconds of typing are not on the disk. Every other one sets time tags, every third one pauses."""
        slow = killed.slow_disk(self._tools, number)
        self._prepare(f"Lecture {number}", **slow)
        typing = Typing(self._sitting)
        pieces = []
        killer = None
        try:
            self._hands.point_at(WINDOW, names.START_RECORDING)
            killer = self._killer(how, moment)
            pieces.append([killer.began, math.inf, None])
            xdotool("click", "1")
            self._hands.control(WINDOW, names.PAUSE)
            pieces[-1][1] = self._played.now()
            self._type_until_death(killer, typing, pieces, number % 2 == 0, number % 3 == 0)
        except Failed:
            if not killer or not killer.is_done and self._sitting.program.is_running():
                raise
        killer.join()
        pieces[-1][2] = pieces[-1][2] or killer.heard
        return self._judged(f"kill {number} of the program ({how.name} at {moment:.2f} s{', slow disk' if slow else ''})", how, lambda: (
            killed.lost_of(self._played, self._take(), killer, [killed.Piece(*piece) for piece in pieces]), typing.lost(self._notes_kept(), killer.ended)))

    def during_done(self, number, how, stops):
        """The same; once Done was seen to be taken both have to be nothing."""
        subject = f"Lecture {number}"
        slow = killed.slow_disk(self._tools, number)
        self._prepare(subject, **slow)
        asked = self._played.now()
        self._hands.click(WINDOW, names.START_RECORDING)
        self._hands.control(WINDOW, names.PAUSE)
        runs = self._played.now()
        self._sitting.listen(self._tools.random.uniform(0.5, 2.5))
        stopped = self._played.now()
        if stops:
            self._sitting.stop()
        into_notes(self._hands)
        self._hands.type(" what was said last")
        typing = Typing(self._sitting)
        self._hands.point_at(WINDOW, names.DONE)
        until = stopped if stops else self._played.now()
        killer = self._killer(how, self._tools.random.uniform(0, DONE_LASTS_SLOWLY if slow else DONE_LASTS))
        xdotool("click", "1")
        is_taken = self._window_gone(killer)
        return self._judged(f"kill {number} of the program {killer.after:.2f} s after Done ({how.name}{', slow disk' if slow else ''})", how,
                            lambda: self._after_done(subject, typing, killer, killed.Piece(asked, runs, until), stops, is_taken))

    def _prepare(self, subject, **environment):
        """A new lecture that does not record yet."""
        shutil.rmtree(self._sitting.home, ignore_errors=True)
        self._sitting.start(**environment)
        self._hands.click(names.MAIN_WINDOW, names.NEW_LECTURE)
        self._hands.control(WINDOW, names.START_RECORDING)
        self._hands.write(WINDOW, names.SUBJECT, subject)
        self._hands.write(WINDOW, names.NOTES, "Notes:")

    def _killer(self, how, moment):
        return killed.Killer(self._played, self._sitting.program.pid, self._sitting.program.send, how, moment)

    def _type_until_death(self, killer, typing, pieces, sets_tags, pauses):
        into_notes(self._hands)
        count = 0
        while not killer.is_done:
            count += 1
            if pauses and count in (5, 8):
                self._pause_or_resume(pieces, count == 5)
            elif sets_tags and count % 4 == 0:
                xdotool("key", "ctrl+t")
            else:
                self._hands.type(f" word{count}")
            typing.look()

    def _pause_or_resume(self, pieces, pauses):
        asked = self._played.now()
        if not pauses:
            pieces.append([asked, math.inf, None])
        xdotool("key", "ctrl+r")
        self._hands.control(WINDOW, names.RESUME if pauses else names.PAUSE)
        pieces[-1][2 if pauses else 1] = asked if pauses else self._played.now()

    @staticmethod
    def _window_gone(killer):
        """And not with the program."""
        gone = goes_from_screen(WINDOW)
        killer.join()
        return gone < killer.ended

    def _take(self):
        found = [name for name in os.listdir(self._temp) if name.startswith("tempAudioFile")] if os.path.isdir(self._temp) else []
        return killed.take_of(os.path.join(self._temp, found[0])) if found else student.NOTHING

    def _notes_kept(self):
        """By the next start, which moves what was left aside."""
        self._student.told("later", "offered")
        left = sorted(name for name in os.listdir(self._temp) if name.startswith("leftover-") and name.endswith(".journal"))
        return _journal(os.path.join(self._temp, left[-1])).get("notes", "") if left else ""

    def _judged(self, words, how, judge):
        try:
            self._sitting.program.expect_end(-how)
            lost, notes = judge()
        except Failed as failure:
            raise Failed(f"{words}: {failure}; see {self._tools.keep(words.split(' (')[0].replace(' ', '-'), self._sitting.home)}") from None
        if lost.seconds > 1 or lost.elsewhere > killed.MOST_ELSEWHERE or notes > 5:
            self._tools.tell(f"{words}: {lost.seconds:.2f} s of sound are lost, and it waited {lost.waited:.2f} s for a processor meanwhile; "
                             f"{lost.elsewhere:.2f} s where it begins or beside a pause; {notes:.1f} s of notes are")
        return lost, notes

    def _after_done(self, subject, typing, killer, piece, stops, is_taken):
        is_taken = is_taken or _journal(self._journal).get("done", False) or subject in student.rows_of(self._sitting.home)
        kept = self._tools.keep(f"left-by-{subject}", self._sitting.home)
        offered = [line for line in self._student.told("later", "offered") if line.startswith("offered")]
        left = self._student.told("keep", "later", "offered")
        rows = [row for row in student.lectures_of(self._sitting.home) if row.subject == subject]
        if left or len(rows) != 1:
            raise Failed(f"there are {len(rows)} rows of it, and {left} after the next start (left was {kept})")
        take = killed.take_of(rows[0].path)
        lost = killed.lost_of(self._played, take, killer, [piece])
        if is_taken or stops:
            if lost.seconds > MOST_AT_DONE + lost.waited:
                raise Failed(f"{lost.seconds:.2f} s are missing of {len(take) / sound.RATE:.2f} s (left was {kept})")
        if is_taken and (offered or rows[0].notes != typing.last):
            raise Failed(f"Done was taken, and {'it was offered' if offered else f'the notes are {rows[0].notes!r}'} (left was {kept})")
        self._tools.forget(kept)
        return lost, max((killer.ended - when for when, text in typing.seen if not rows[0].notes.startswith(text)), default=0.0)


def _journal(path):
    if not os.path.exists(path):
        return {}
    with open(path, "rb") as file:
        return json.loads(file.read().rstrip())
