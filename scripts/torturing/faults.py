"""One call after the other fails, once: the second run has the second one fail, and so on until none is left."""

import concurrent.futures
import contextlib
import errno
import os
import queue
import signal
import subprocess

from outside import sound
from outside.waiting import Failed, wait_for

from . import student
from .result import Result

EVENT = "every write, sync, rename, open, allocation failing once (ENOSPC, EIO, EINTR, short write, ENOMEM), one step further each time"
PROMISE = "nothing that was there before"
# Of the libraries that are driven through C. Qt and the C++ library end a program that has no memory left, and so does
# the sound server's: nobody can promise anything for those.
LIBRARIES = "libsqlite3 libavformat libavcodec libavutil libswresample"
ERRORS = {
    "write": (errno.ENOSPC, errno.EIO, errno.EINTR, "short"),
    "sync": (errno.EIO, errno.ENOSPC, errno.EINTR),
    "rename": (errno.ENOSPC, errno.EIO),
    "open": (errno.ENOSPC, errno.EIO, errno.EINTR, errno.ENOMEM),
    "truncate": (errno.ENOSPC, errno.EIO, errno.EINTR),
    "unlink": (errno.ENOSPC, errno.EIO),
    "memory": (errno.ENOMEM,),
}
WORKS = {
    "recording and saving": ("later", "begin", "record:Kepler:1"),
    "editing": ("later", "begin", "edit:Optics:Light"),
    "deleting": ("later", "begin", "delete:Waves"),
    "starting": (),
    "starting the whole program": None,
}
BEFORE = ("Optics", "Waves")
AT_A_TIME = 2
IN_SHORT = 2  # of each work and kind
UNSAFE = 0.3  # seconds at the end of a take that may not have come to the disk


def run(tools, short):
    desks = queue.Queue()
    for number in range(AT_A_TIME):
        desks.put(Desk(tools, number))
    faults = list(all_faults(desks.queue[0], tools.random, short))
    with concurrent.futures.ThreadPoolExecutor(AT_A_TIME) as pool:
        losses = [loss for loss in pool.map(lambda fault: on_a_desk(desks, fault), faults) if loss]
    for line in losses[:20]:
        tools.tell(line)
    if losses:
        tools.keep("losses.txt", "\n".join(losses) + "\n")
    return Result(not losses, f"{len(faults)} faults in {', '.join(WORKS)}: {len(losses)} of them lost something")


def all_faults(desk, random, short):
    """Work, kind, error and number of the call."""
    for work in WORKS:
        for kind, errors in ERRORS.items():
            # Who asked for memory takes long to find out in the whole program; the student's start asks the same of SQLite.
            if kind == "memory" and WORKS[work] is None:
                continue
            calls = desk.count(work, kind)
            found = [(work, kind, error, number) for error in errors for number in range(1, calls + 1)]
            yield from random.sample(found, min(IN_SHORT, len(found))) if short else found


def on_a_desk(desks, fault):
    """Gives what was lost, in words, or nothing."""
    desk = desks.get()
    try:
        desk.suffer(*fault)
        return None
    except Failed as failure:
        work, kind, error, number = fault
        return f"{work}, {kind} {number}, {errno.errorcode.get(error, error)}: {failure}"
    finally:
        desks.put(desk)


class Desk:
    """A folder with two lectures in it, made anew for every fault."""

    def __init__(self, tools, number):
        self._tools = tools
        self._folder = os.path.join(tools.folder, f"desk{number}")
        self._template = self._folder + "-before"
        self._count = self._folder + "-count"
        os.makedirs(self._folder)
        self._student = student.Student(tools, self._folder)
        self._student.do(*(f"record:{subject}:1" for subject in BEFORE))
        os.rename(self._folder, self._template)
        home = self._template + "/Tarvelo"
        self._before = {os.path.basename(path): student.content(path) for path in student.sounds_of(home)}
        self._lengths = {}

    def count(self, work, kind):
        self._work(work, f"{kind} 0 0")
        return int(student.content(self._count))

    def suffer(self, work, kind, error, number):
        recorded = self._work(work, f"{kind} {error} {number}")
        home = self._student.home
        rows = student.rows_of(home)
        gone = {"Waves"} if work == "deleting" else set()
        here = rows | student.copied_rows_of(home)
        for subject in set(BEFORE) - gone:
            if subject not in here and not (work == "editing" and subject == "Optics" and "Light" in here):
                raise Failed(f"the row of {subject!r} is gone")
        found = {os.path.basename(path): student.content(path) for path in student.sounds_of(home)}
        for name, content in self._before.items():
            if found.get(name) != content and not (gone and name == max(self._before)):
                raise Failed(f"{name} is gone or changed")
        new = [path for path in student.sounds_of(home) if os.path.basename(path) not in self._before]
        longest = max((self._seconds(path) for path in new), default=0)
        if longest < recorded - UNSAFE:
            raise Failed(f"{recorded:.2f} s were recorded, {longest:.2f} s are left")
        if work == "recording and saving" and "Kepler" not in here and not self._is_pending(home):
            raise Failed("the new lecture has no row, and nothing waits to be stored")

    @staticmethod
    def _is_pending(home):
        folder = os.path.join(home, "temp")
        return any(b"Kepler" in student.content(os.path.join(folder, name)) for name in os.listdir(folder)
                   if os.path.isfile(os.path.join(folder, name)))

    def _work(self, work, fault):
        student.renew(self._folder, self._template)
        layer = {"LD_PRELOAD": self._tools.built("tests/torture/OneFault.so"), "TORTURE_FAULT": fault, "TORTURE_FOLDER": self._student.home,
                 "TORTURE_LIBRARIES": LIBRARIES, "TORTURE_COUNT": self._count}
        tasks = WORKS[work]
        if not tasks or "begin" not in tasks:
            layer["TORTURE_BEGIN"] = "1"
        return self._start_program(layer) if tasks is None else self._student.do(*tasks, **layer)

    def _start_program(self, layer):
        """The whole program, without a screen, until it shows its day or cannot; then it is asked to end."""
        environment = {"PATH": os.environ["PATH"], "HOME": self._folder, "XDG_DATA_HOME": self._folder, "XDG_CONFIG_HOME": self._folder + "/config",
                       "XDG_CACHE_HOME": self._folder + "/cache", "XDG_RUNTIME_DIR": self._folder + "/run", **student.ENVIRONMENT}
        os.makedirs(environment["XDG_RUNTIME_DIR"], mode=0o700)
        process = subprocess.Popen([self._tools.program], env=environment | layer, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                                   stderr=subprocess.STDOUT, text=True)
        with contextlib.suppress(Failed):
            wait_for("the day", lambda: process.poll() is not None or self._holds_database(process.pid), 10)
        process.send_signal(signal.SIGTERM)
        said = [line for line in process.communicate(timeout=60)[0].splitlines() if line != "This plugin does not support raise()"]
        # A slow machine may ask it to end before it listens.
        if process.returncode not in (0, -signal.SIGTERM) or said:
            raise Failed(f"it ended with {process.returncode} and said {said[:3]}")
        return 0.0

    @staticmethod
    def _holds_database(pid):
        folder = f"/proc/{pid}/fd"
        with contextlib.suppress(OSError):
            return any(os.readlink(os.path.join(folder, name)).endswith("TarveloInfo.db") for name in os.listdir(folder))
        return False

    def _seconds(self, path):
        content = student.content(path)
        if content not in self._lengths:
            self._lengths[content] = len(student.decoded(path)) / sound.RATE
        return self._lengths[content]
