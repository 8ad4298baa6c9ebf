"""A process that is killed at a moment, whatever it does then, and what of the sound it leaves."""

import collections
import math
import os
import signal
import threading
import time

from outside.waiting import Failed

from . import student
from .played import BLOCK, RATE
from .waited import watched

SIGNALS = (signal.SIGKILL, signal.SIGKILL, signal.SIGKILL, signal.SIGABRT, signal.SIGSEGV)
SLOW = 4  # every so many processes write to a slow disk
SLOWNESS = "1500"  # milliseconds until it has taken what is forced to it

SERVER_THREAD = "threaded-ml"  # fetches the sound; what it has not fetched nobody can write
MOST_WAITED = 1.0  # seconds for which a thread without a processor is no excuse any more
MOST_ELSEWHERE = 0.3  # seconds, what is on its way through the sound server
EDGE = 3 * BLOCK / RATE  # seconds: so exactly is known where a take goes on beside a pause

# Seconds at the end of a take; for how many of them those that fetch and write the sound waited for a processor, without which
# nobody can; and seconds that are missing where the take begins or beside a pause.
Lost = collections.namedtuple("Lost", "seconds waited elsewhere")
# In played seconds. It was asked to run at the first moment and known to by the second, infinity where that was not seen.
Piece = collections.namedtuple("Piece", "asked runs end")


def slow_disk(tools, number):
    """The environment of the process with that number."""
    return {"LD_PRELOAD": tools.built("tests/torture/SlowDisk.so"), "TORTURE_SLOWNESS": SLOWNESS} if number % SLOW == 0 else {}


class Killer(threading.Thread):
    """`process` has a pid and send(signal). In played seconds, `heard` is the moment of its end; `ended` is that by the clock."""

    def __init__(self, played, pid, send, how, moment):
        super().__init__()
        self._played = played
        self._pid = pid
        self._send = send
        self._how = how
        self.after = moment
        self._moment = time.monotonic() + moment
        self.began = played.now()
        self.heard = None
        self.start()

    def run(self):
        with watched(self._pid, self._played.now, lambda thread: _carries_sound(self._pid, thread)) as self.waited:
            time.sleep(max(0, self._moment - time.monotonic()))
        self.ended, self.heard = time.monotonic(), self._played.now()
        self._send(self._how)

    @property
    def is_done(self):
        return self.heard is not None


def _carries_sound(pid, thread):
    """A take's own threads have the name of the program, as its first one, which nobody waits for."""
    name, first = (_name_of(folder) for folder in (thread, f"/proc/{pid}/task/{pid}"))
    return name == SERVER_THREAD or name == first and os.path.basename(thread) != str(pid)


def _name_of(thread):
    with open(os.path.join(thread, "comm"), encoding="utf-8") as file:
        return file.read().strip()


def lost_of(played, take, killer, pieces, told=0.0):
    """Of what the microphone heard in these pieces of the time, the last of which may be short, and of what was told to be recorded."""
    length = len(take) / RATE
    until = pieces[-1].end
    by_witness = sum(piece.end - piece.asked for piece in pieces) - length
    kept, elsewhere = until - max(0, by_witness), 0.0
    if len(take) >= 4 * BLOCK:
        spans, rest = played.parts(take, pieces[0].asked - 1, killer.heard, len(pieces) - 1)
        if len(spans) < len(pieces) and pieces[-1].runs == math.inf:  # it was killed before it went on
            pieces = pieces[:-1]
            until = pieces[-1].end
        elsewhere = missing_elsewhere(spans, pieces)
        if not rest and len(spans) == len(pieces):
            kept = spans[-1][1]
            by_witness = until - kept
    waited = min(killer.waited.since(kept), MOST_WAITED)
    return Lost(max(by_witness, told - length, 0.0), waited, elsewhere)


def missing_elsewhere(spans, pieces):
    """Than at the end: before the take's beginning, and at both sides of a pause, where it is not known more exactly."""
    begins = [begin - piece.runs - (EDGE if number else 0) for number, ((begin, _), piece) in enumerate(zip(spans, pieces))]
    ends = [piece.end - end - EDGE for (_, end), piece in zip(spans, pieces[:-1])]
    return max(0.0, *begins, *ends)


def take_of(path):
    """A kill in the middle of a write tears the last fragment; before the first there may be no file."""
    return student.decoded(path) if os.path.exists(path) else student.NOTHING


def expect_end(process, how):
    said = process.communicate()[1]
    if said or process.returncode != -how:
        raise Failed(f"it ended with {process.returncode} and said {said!r}")
