"""A process that is killed at a moment, whatever it does then, and what of the sound it leaves."""

import collections
import os
import signal
import threading
import time

from outside import sound
from outside.waiting import Failed

from . import student
from .played import BLOCK
from .waited import watched

SIGNALS = (signal.SIGKILL, signal.SIGKILL, signal.SIGKILL, signal.SIGABRT, signal.SIGSEGV)
SLOW = 4  # every so many processes write to a slow disk
SLOWNESS = "1500"  # milliseconds until it has taken what is forced to it

Lost = collections.namedtuple("Lost", "seconds waited")  # waited for a processor meanwhile, which nobody can write without


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
        with watched(self._pid, self._played.now) as self.waited:
            time.sleep(max(0, self._moment - time.monotonic()))
        self.ended, self.heard = time.monotonic(), self._played.now()
        self._send(self._how)

    @property
    def is_done(self):
        return self.heard is not None


def lost_of(played, take, killer, pieces, told=0.0):
    """Of what the microphone heard in these pieces of the time, the last of which may be short, and of what was told to be recorded."""
    length = len(take) / sound.RATE
    until = pieces[-1][1]
    by_witness = sum(end - begin for begin, end in pieces) - length
    kept = until - max(0, by_witness)
    if len(take) >= 4 * BLOCK:
        spans, rest = played.parts(take, pieces[0][0] - 1, until, len(pieces) - 1)
        if not rest and len(spans) == len(pieces):
            kept = spans[-1][1]
            by_witness = until - kept
    return Lost(max(by_witness, told - length, 0.0), killer.waited.since(kept))


def take_of(path):
    """A kill in the middle of a write tears the last fragment; before the first there may be no file."""
    return student.decoded(path) if os.path.exists(path) else student.NOTHING


def expect_end(process, how):
    said = process.communicate()[1]
    if said or process.returncode != -how:
        raise Failed(f"it ended with {process.returncode} and said {said!r}")
