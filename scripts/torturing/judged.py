"""What has to be there after a work in which a call failed: at once, and when the program was started once more."""

import collections
import os

from outside import sound
from outside.waiting import Failed

from . import student

UNSAFE = 0.05  # seconds that may be missing at the end of a take that was stopped, or was on the disk before: the encoder's last two frames
NO_AUDIO = "No Audio"
NO_SUBJECT = "Untitled"  # is called what is not wanted any more, when the disk keeps its recording alone
_lengths = {}


class Judgement:
    """Of one work. Made when the folder is as it was before."""

    def __init__(self, work, home):
        self._work = work
        self._home = home
        self._lectures = {lecture.subject: lecture for lecture in student.copied_lectures_of(home) + student.lectures_of(home)}
        self._sounds = {path: student.content(path) for path in student.sounds_of(home) if self._is_saved(path)}
        self._left = max((seconds_of(path) for path in student.sounds_of(home) if not self._is_saved(path)), default=0.0)

    def expect_sound_kept(self, recorded):
        """What was there is in the table or in a copy, and what was recorded somewhere. On a full disk there may be no more."""
        self._expect_lectures(student.lectures_of(self._home) + student.copied_lectures_of(self._home))
        self._expect_sounds()
        if not self._work.new:
            return
        longest = max((seconds_of(path) for path in student.sounds_of(self._home) if path not in self._sounds), default=0.0)
        if longest < self._least(recorded):
            raise Failed(f"of the new recording {longest:.2f} s of {max(recorded, self._left):.2f} s are there")

    def expect_nothing_lost(self, recorded):
        """As the program leaves the folder: what is not saved waits to be, besides."""
        self.expect_sound_kept(recorded)
        for subject in self._work.new - {lecture.subject for lecture in student.lectures_of(self._home)}:
            if not self._waits(subject):
                raise Failed(f"{subject!r} has no row, and does not wait for one")

    def expect_all_there(self, recorded, said):
        """When what was offered was kept, and what copies have was brought back."""
        here = student.lectures_of(self._home)
        self._expect_lectures(here)
        self._expect_sounds()
        self._expect_once(here)
        named = {os.path.normpath(lecture.path): lecture for lecture in here if lecture.path}
        for subject in self._work.new:
            self._expect_new(next((lecture for lecture in here if lecture.subject == subject), None), subject, recorded)
        for path, lecture in named.items():
            if lecture.subject not in self._work.gone and not os.path.exists(path):
                raise Failed(f"the recording of {lecture.subject!r} is gone")
        if self._work.gone:  # what is not wanted any more may lie about
            return
        if said and said[-1].startswith(("offered", "owed")):
            raise Failed(f"still {said[-1]!r}")
        stray = [path for path in student.sounds_of(self._home) if os.path.normpath(path) not in named]
        if stray:
            raise Failed(f"{os.path.relpath(stray[0], self._home)} belongs to no lecture")

    def _expect_lectures(self, there):
        old, new = self._work.changed or (None, None)
        for subject, lecture in self._lectures.items():
            accepted = [lecture, lecture._replace(subject=new)] if subject == old else [lecture]
            if subject not in self._work.gone and not any(one in there for one in accepted):
                similar = any(one.subject == subject for one in there)
                raise Failed(f"the row of {subject!r} is {'changed' if similar else 'gone'}")

    def _expect_sounds(self):
        unwanted = {os.path.normpath(self._lectures[subject].path) for subject in self._work.gone if subject in self._lectures}
        for path, content in self._sounds.items():
            if os.path.normpath(path) not in unwanted and not (os.path.exists(path) and student.content(path) == content):
                raise Failed(f"{os.path.basename(path)} is gone or changed")

    def _expect_once(self, here):
        counts = collections.Counter(lecture.subject for lecture in here)
        old, new = self._work.changed or (None, None)
        if old in counts and new in counts:
            raise Failed(f"{old!r} is there before and after its change")
        for subject, count in counts.items():
            if count > 1:
                raise Failed(f"{subject!r} is there {count} times")
            is_unwanted = self._work.gone and subject == NO_SUBJECT and not _is_double(subject, here)
            if subject not in {*self._lectures, *self._work.new, *self._work.gone, new} and not is_unwanted:
                raise Failed(f"nobody made a lecture {subject!r}")

    def _expect_new(self, lecture, subject, recorded):
        if not lecture:
            raise Failed(f"{subject!r} was not stored")
        if lecture.notes != f"{subject} notes":
            raise Failed(f"the notes of {subject!r} are {lecture.notes!r}")
        length = seconds_of(lecture.path) if lecture.path and os.path.exists(lecture.path) else 0.0
        if length < self._least(recorded):
            raise Failed(f"{subject!r} has {length:.2f} s of {max(recorded, self._left):.2f} s")
        if bool(lecture.path) != (lecture.duration != NO_AUDIO):
            raise Failed(f"{subject!r} has the recording {lecture.path!r} and the duration {lecture.duration!r}")

    def _least(self, recorded):
        return max(recorded, self._left) - UNSAFE

    def _waits(self, subject):
        """In a file beside the take. Whether that is any good, the next start shows."""
        folder = os.path.join(self._home, "temp")
        files = [os.path.join(root, name) for root, _, names in os.walk(folder) for name in names]
        return any(subject.encode() in student.content(path) for path in files)

    def _is_saved(self, path):
        return os.path.basename(os.path.dirname(path)) == "Audio"


def _is_double(subject, lectures):
    """Whether another lecture has the same recording, or both have none."""
    def recording(lecture):
        return student.content(lecture.path) if lecture.path and os.path.exists(lecture.path) else b""

    its = next(recording(lecture) for lecture in lectures if lecture.subject == subject)
    return any(recording(lecture) == its for lecture in lectures if lecture.subject != subject)


def seconds_of(path):
    content = student.content(path)
    if content not in _lengths:
        _lengths[content] = len(student.decoded(path)) / sound.RATE
    return _lengths[content]
