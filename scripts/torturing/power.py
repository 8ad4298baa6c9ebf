"""The power is cut: the disk forgets what was not forced to it.

The real program records, saves, changes, resets its table and brings it back, deletes, is killed, started again and keeps what was left, while a layer before the C library writes down what it
does to its files. Afterwards the folder is made again as each of many moments may have left it, and on some of them the student starts anew."""

import collections
import contextlib
import os
import shutil
import signal
import sqlite3
import subprocess
import sys
import time

from outside import names, sound
from outside.desktop import Desktop
from outside.waiting import Failed

from . import disk, student
from .played import Played
from .result import Result
from .sitting import Sitting, into_notes
from .started import Starts, seconds_of
from .typed import Typed, texts_of_journals
from .works import FAILING_INSERT, FAILING_NO_MORE

EVENT = "power cut"
PROMISE = "the last 3 s of sound; no notes older than 5 s; nothing once a window of a lecture that was Done is gone"
MOST_LOST = 3.0
MOST_AFTER_DONE = 0.05  # once the window was gone, or what was left was kept: the encoder's last two frames
# Of the states of the disk.
STARTED = 1.0
STARTED_IN_SHORT = 0.25
# In a process of its own, before which the layer stands too.
EXECUTE = "import sqlite3, sys; database = sqlite3.connect(sys.argv[1]); database.execute(sys.argv[2]); database.close()"

Lecture = collections.namedtuple("Lecture", "subject sound begin end gone saved deleted subjects typed")


def run(tools, short):
    with Desktop(tools.folder) as desktop, sound.SoundServer():
        with Played(tools.random, tools.folder) as played:
            story = Story(tools, desktop, played)
            story.tell(short)
        sitting = Sitting(tools, desktop, played)
        cuts = Cuts(tools, story, Starts(tools, sitting), STARTED_IN_SHORT if short else STARTED)
        moments = sorted(tools.random.uniform(story.first, story.last) for _ in range(20 if short else 100))
        for moment in moments:
            cuts.at(moment)
        sitting.program.expect_silence()
    starts = cuts.starts
    tools.tell(f"{len(moments)} cuts in {story.last - story.first:.0f} s, {cuts.states} states of the disk, {len(cuts.broken)} of them with a loss")
    tools.tell(f"{starts.count} starts on them, {starts.by_program} by the whole program; {starts.offered} lectures were offered and kept")
    for line in cuts.broken[:10]:
        tools.tell(line)
    if cuts.broken:
        tools.keep("broken.txt", "\n".join(cuts.broken) + "\n")
        tools.keep("log", story.log)
    return Result(not cuts.broken, f"{len(moments)} cuts, {cuts.states} states of the disk: at most {cuts.most:.2f} s lost and no notes older than {cuts.oldest:.1f} s, "
                  f"{max(0, cuts.most_after_done):.2f} s of what was Done, every file readable; "
                  f"{starts.count} starts on them, {starts.offered} lectures offered and kept")


class Story:
    """What happened, with the moments at which it did."""

    def __init__(self, tools, desktop, played):
        self._tools = tools
        self._played = played
        self._sitting = Sitting(tools, desktop, played)
        self.home = self._sitting.home
        self.log = os.path.join(tools.folder, "log")
        self._layer = {"LD_PRELOAD": tools.built("tests/torture/DiskLog.so"), "TORTURE_FOLDER": self.home, "TORTURE_LOG": self.log}
        self.lectures = []
        self.reset = (0, 0)  # while their rows may be in a copy alone

    def tell(self, short):
        try:
            self._play(5 if short else 9)
        finally:
            self._sitting.program.stop()
        self._sitting.program.expect_silence()

    def _play(self, seconds):
        sitting = self._sitting
        self.first = time.monotonic()
        sitting.start(**self._layer)
        for subject, stops in (("Optics", True), ("Algebra", False)):
            typed = self._begin(subject)
            self._type(subject, typed, seconds)
            if stops:
                sitting.stop()
            notes = sitting.hands.text(names.NEW_LECTURE_WINDOW, names.NOTES)
            gone = sitting.save(subject)
            typed.saw(gone, subject, notes, 0)  # nobody looks after it any more
            self._add(subject, time.monotonic(), self._played.now(), gone, time.monotonic(), typed)
        self._rename(self.lectures[1], "Geometry")
        self._reset()
        deleting = time.monotonic()
        sitting.delete("Optics")
        self.lectures[0] = self.lectures[0]._replace(deleted=deleting)
        typed = self._begin("Kepler")
        self._type("Kepler", typed, seconds)
        killed, heard = time.monotonic(), self._played.now()
        sitting.program.send(signal.SIGKILL)
        sitting.program.expect_end(-signal.SIGKILL)
        typed.is_killed(killed)
        sitting.start(**self._layer)
        sitting.keep_left("Kepler")
        self.last = time.monotonic()
        self._add("Kepler", killed, heard, self.last, self.last, typed)

    def _begin(self, subject):
        self._sitting.begin(subject)
        typed = Typed()
        typed.saw(time.monotonic(), subject, "")
        return typed

    def _type(self, subject, typed, seconds):
        """While it is recorded, for so long."""
        into_notes(self._sitting.hands)
        until, count = self._played.now() + seconds, 0
        while self._played.now() < until:
            count += 1
            self._sitting.hands.type(f"Lens {count} bends light. ")
            typed.saw(time.monotonic(), subject, self._sitting.hands.text(names.NEW_LECTURE_WINDOW, names.NOTES))

    def _rename(self, lecture, new):
        self._sitting.rename(lecture.subject, new)
        notes = next(row.notes for row in student.lectures_of(self.home) if row.subject == new)
        lecture.typed.saw(time.monotonic(), new, notes, MOST_LOST)
        lecture.subjects.add(new)

    def _reset(self):
        """By a save that fails, behind which the program puts a new table in the place of the old one; and all comes back."""
        begin, count = time.monotonic(), len(self.lectures)
        subprocess.run([sys.executable, "-c", EXECUTE, os.path.join(self.home, "TarveloInfo.db"), FAILING_INSERT], check=True, stdin=subprocess.DEVNULL,
                       env=os.environ | self._layer)
        hands = self._sitting.hands
        hands.click(names.MAIN_WINDOW, names.NEW_LECTURE)
        hands.write(names.NEW_LECTURE_WINDOW, names.SUBJECT, "Newcomer")
        self._sitting.save("Newcomer")
        if len(student.lectures_of(self.home)) != 1:
            raise Failed("the table was not reset")
        self._sitting.bring_back(lambda: len(student.lectures_of(self.home)) == count + 1)
        self.reset = (begin, time.monotonic() + MOST_LOST)

    def _add(self, subject, ended, heard, gone, saved, typed):
        """It was recorded until the moment `ended`, of which the witness had heard so many seconds by then. Nobody looked after it
        any more from the moment `gone` on."""
        samples = sound.samples(student.rows_of(self.home)[subject])
        begin, end = (ended - heard + moment for moment in self._played.span(samples, heard))
        self.lectures.append(Lecture(subject, samples, begin, end, gone, saved, None, {subject}, typed))


class Cuts:
    """Judges what each cut may have left."""

    def __init__(self, tools, story, starts, share):
        self._tools = tools
        self._story = story
        self._share = share
        self._records = list(disk.read_log(story.log))
        self._disk = disk.Disk(story.home)
        self._expect_all_seen()
        self._done = 0
        self._decoded = {}
        # In its old place, since the rows and the journals have whole paths.
        self._folder = story.home
        self.starts = starts
        self.states = 0
        self.most = 0.0
        self.most_after_done = 0.0
        self.oldest = 0.0
        self.broken = []

    def at(self, moment):
        """Later than the one before."""
        while self._done < len(self._records) and self._records[self._done][1] <= moment:
            self._disk.do(*self._records[self._done])
            self._done += 1
        for variant, tree in self._disk.variants(self._tools.random):
            shutil.rmtree(self._folder, ignore_errors=True)
            os.makedirs(self._folder)
            disk.write(tree, self._story.home, self._folder)
            self.states += 1
            try:
                self._judge(moment)
                if self._tools.random.random() < self._share:
                    self.starts.start(moment, self._lectures_at(moment), self._sound_of, lambda: self._let_inserts_through(moment))
            except Failed as failure:
                self.broken.append(f"{moment - self._story.first:.2f} s, {variant}: {failure}")

    def _let_inserts_through(self, moment):
        """What makes the story's save fail is no fault of the disk, and a lecture that waits for its end would wait for ever. Only after
        the program has looked: who opens a database takes back what was half done."""
        path = os.path.join(self._folder, "TarveloInfo.db")
        if self._story.reset[0] < moment < self._story.reset[1] and os.path.exists(path):
            with contextlib.suppress(sqlite3.DatabaseError), contextlib.closing(sqlite3.connect(path)) as database:
                database.execute(FAILING_NO_MORE)

    def _expect_all_seen(self):
        """The layer missed nothing: what it makes of the end is what is there."""
        tree = disk.replay(self._story.home, self._records)
        for path, content in tree.items():
            if content is not None and (not os.path.exists(path) or student.content(path) != content):
                raise Failed(f"the layer did not see all that was done to {path}")
        for root, _, found in os.walk(self._story.home):
            for name in found:
                if os.path.join(root, name) not in tree:
                    raise Failed(f"the layer did not see where {name} came from")

    def _judge(self, moment):
        rows = student.lectures_of(self._folder)
        if self._story.reset[0] < moment < self._story.reset[1]:
            rows += student.copied_lectures_of(self._folder)
        texts = [*rows, *texts_of_journals(self._folder)]
        sounds = {path: self._sound_of(path) for path in student.sounds_of(self._folder)}
        for lecture in self._lectures_at(moment):
            self._expect_sound(lecture, moment, list(sounds.values()))
            self.oldest = max(self.oldest, lecture.typed.lost(moment, texts))
            its = [row for row in rows if row.subject in lecture.subjects]
            if moment > lecture.saved + MOST_LOST and not its:
                raise Failed(f"the row of {lecture.subject!r} is gone, {moment - lecture.saved:.2f} s after it was stored")
            if any(os.path.normpath(row.path) not in sounds for row in its):
                raise Failed(f"the file of {lecture.subject!r} is gone")

    def _lectures_at(self, moment):
        """Those that nobody deleted by then."""
        return [lecture for lecture in self._story.lectures if not lecture.deleted or moment < lecture.deleted]

    def _expect_sound(self, lecture, moment, sounds):
        found = max((seconds_of(samples, lecture.sound) for samples in sounds), default=0)
        if moment > lecture.gone:
            recorded, most = len(lecture.sound) / sound.RATE, MOST_AFTER_DONE
            self.most_after_done = max(self.most_after_done, recorded - found)
        else:
            recorded, most = min(moment, lecture.end) - lecture.begin, MOST_LOST
            self.most = max(self.most, min(recorded, recorded - found))
        if recorded - found > most:
            when = f", {moment - lecture.gone:.2f} s after its window was gone" if moment > lecture.gone else ""
            raise Failed(f"{recorded - found:.2f} s of {lecture.subject!r} are lost, of {recorded:.2f} s{when}")

    def _sound_of(self, path):
        content = student.content(path)
        if content not in self._decoded:
            self._decoded[content] = student.decoded(path)
        return self._decoded[content]
